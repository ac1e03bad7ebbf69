// SPDX-License-Identifier: MIT
#include "port/mend.h"

#include <algorithm>
#include <map>
#include <string_view>

#include "gil/object.h"
#include "gil/tokens.h"
#include "osi/arena.h"
#include "port/bitmaps.h"
#include "port/colors.h"
#include "port/functions.h"
#include "port/mend_menus.h"
#include "port/port_events.h"
#include "port/targets.h"
#include "uilfix/literals.h"
#include "uilfix/module.h"
#include "uilfix/rewrites.h"
#include "widget/links.h"
#include "widget/nesting.h"
#include "widget/procedures.h"
#include "widget/tree.h"

namespace port {
namespace {

void Note(Session& session, std::string text) { session.model.mends.push_back(std::move(text)); }

char* Keep(const std::string& text) { return ArenaText(text.c_str(), text.size()); }

// Pixels that a pointer hits.
constexpr int kLeastDropTarget = 12;

// ---- Lists ----

void TurnItems(Session& session, Widg* list, const PortObject& object) {
  const std::string value = GetResourceValue(list, "XmNitems");
  std::vector<std::string> literals;
  for (const uilfix::ValuePart& part : uilfix::SplitValue(value)) {
    if (part.literal) literals.push_back(part.text);
  }
  if (literals.size() < 2) return;
  std::string turned = "string_table(";
  for (auto at = literals.rbegin(); at != literals.rend(); ++at) {
    if (at != literals.rbegin()) turned += ",\n";
    turned += *at;
  }
  AddResource(list, "XmNitems", Keep(turned + ")"));
  Note(session, "the items of " + object.name + " are in the order of the file");
}

// The items that are selected at the start; of a list that takes one, the first of them.
void SelectItems(Widg* list, const PortObject& object) {
  const GilAttribute* selections = object.Find(INITIAL_SELECTIONS);
  if (!selections) return;
  const bool several =
      std::string_view(GetResourceValue(list, "XmNselectionPolicy")) == "XmMULTIPLE_SELECT";
  std::string selected;
  int count = 0;
  std::size_t index = 0;
  for (const uilfix::ValuePart& part : uilfix::SplitValue(GetResourceValue(list, "XmNitems"))) {
    if (!part.literal || index >= selections->values.size()) continue;
    const GilValue& value = selections->values[index++];
    if (value.kind != GilValue::Kind::kToken || value.number != T || (count > 0 && !several)) {
      continue;
    }
    selected += (count++ > 0 ? ",\n" : "") + part.text;
  }
  if (count == 0) return;
  AddResource(list, "XmNselectedItems", Keep("string_table(" + selected + ")"));
  AddResource(list, "XmNselectedItemCount", Keep(std::to_string(count)));
}

// ---- Sliders ----

// The number stood in front of OPEN LOOK's slider and stands over Motif's, which shows as much of
// it as its height leaves room for.
void MakeRoomForTheNumber(Session& session, Widg* scale, const PortObject& object) {
  // Real files have rows of sliders 26 pixels apart.
  constexpr int kBar = 12;
  constexpr int kBarAndNumber = 26;
  if (std::string_view(GetResourceValue(scale, "XmNshowValue")) != "true" ||
      std::string_view(GetResourceValue(scale, "XmNorientation")) != "XmHORIZONTAL" ||
      GetResourceInt(scale, "XmNheight") >= kBarAndNumber) {
    return;
  }
  AddResource(scale, "XmNheight", Keep(std::to_string(kBarAndNumber)));
  AddResource(scale, "XmNscaleHeight", Keep(std::to_string(kBar)));
  Note(session, "slider " + object.name + " is now high enough for its number");
}

// ---- Drop targets ----

// The conversion has no class for a drop target, and so leaves it unwritten; any widget can be one.
void ShowDropTarget(Session& session, int index) {
  const PortObject& object = session.model.objects[index];
  for (Widg* target : OwnWidgets(session, index)) {
    const Widg* container = session.parent_of.at(target);
    if (IsInModule(target) || !container || !IsClass(container, "XmBulletinBoard")) continue;
    target->class_name = "XmDrawingArea";
    const auto set = [&](const char* resource, int32_t value) {
      AddResource(target, resource, Keep(std::to_string(value)));
    };
    set("XmNwidth", std::max(object.Number(WIDTH), kLeastDropTarget));
    set("XmNheight", std::max(object.Number(HEIGHT), kLeastDropTarget));
    set("XmNborderWidth", 1);
    Note(session, "drop target " + object.name + " is a drawing area");
  }
}

// ---- Groups ----

// The widget that holds the first member of the group, as the file has it; null for none.
Widg* ContainerOfMembers(const Session& session, const PortObject& group) {
  const GilAttribute* members = group.Find(MEMBERS);
  if (!members) return nullptr;
  for (const GilValue& member : members->values) {
    for (int index : session.model.files[group.file].objects) {
      const PortObject& object = session.model.objects[index];
      if (object.name != member.text || object.parent < 0) continue;
      const std::vector<Widg*> own = OwnWidgets(session, object.parent);
      return own.empty() ? nullptr : own[0];
    }
  }
  return nullptr;
}

// The conversion appends a group to its members' container. If that holds a popup menu, whose list
// continues with the other windows, the group ends up behind those: a widget that nobody controls.
void BringBackGroup(Session& session, int index) {
  const PortObject& object = session.model.objects[index];
  std::vector<Widg*> candidates = WidgetsOf(session, index);
  for (Widg* list : session.cut_off) {
    for (Widg* widg = list; widg; widg = widg->next) candidates.push_back(widg);
  }
  for (Widg* group : candidates) {
    if (object.name != group->gil_name || group->actions != session.objs[index]->actions ||
        !group->child) {
      continue;
    }
    const auto parent = session.parent_of.find(group);
    Widg* container = ContainerOfMembers(session, object);
    const bool is_loose = parent == session.parent_of.end() || !parent->second;
    if (!is_loose || !container) return;
    if (parent != session.parent_of.end()) top_widget = RemoveWidg(top_widget, group);
    group->next = nullptr;
    AddChildLast(container, group);
    Note(session, "group " + object.name + " is back in " + GilText(container->gil_name));
    return;
  }
}

// ---- Callbacks ----

void MendArgument(Session& session, const Link& link) {
  constexpr std::string_view kSetting = ".mappedWhenManaged=";
  const Connection& connection = session.model.connections[link.connection];
  if (connection.function_type != "user_defined") return;
  const Widg* target = TargetWidget(session, connection);
  if (!target) return;
  const std::string argument = link.callback->argument;
  const std::size_t setting = argument.rfind(kSetting);
  std::string mended = target->name;
  if (argument.starts_with("\"(WL)[")) {
    mended = "(WL)[" + mended + "]";
  } else if (setting != argument.npos) {
    mended += GilText(("\"" + argument.substr(setting)).c_str());
  }
  mended = "\"" + mended + "\"";
  if (mended == argument) return;
  const_cast<Callback*>(link.callback)->argument = Keep(mended);
  Note(session, connection.action + " of " + session.model.objects[connection.to_object].name +
                    " names the widget " + target->name);
}

// ---- Names that are no words ----

bool IsWord(std::string_view name) {
  return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '$' || c == '.';
  });
}

// The file may have a name in quotes; a module cannot. Resources share the name's text.
void CleanWidgetNames(Session& session) {
  std::map<const char*, const char*> renamed;
  for (Widg* widg : session.widgets) {
    if (IsWord(widg->name)) continue;
    char* name = Keep(CWord(GilText(widg->name)));
    Note(session, "widget " + GilText(widg->name) + " is now " + name + ": not a name in UIL");
    renamed[widg->name] = name;
    widg->name = name;
  }
  if (renamed.empty()) return;
  for (Widg* widg : session.widgets) {
    for (Resource* at = widg->resources; at; at = at->next) {
      const auto found = renamed.find(at->value);
      if (found != renamed.end()) at->value = found->second;
    }
  }
}

void CleanProcedures(Session& session) {
  char** procedures = nullptr;
  const std::size_t count = GetProcedures(&procedures);
  std::map<std::string, char*> renamed;
  for (std::size_t i = 0; i < count; ++i) {
    if (IsWord(procedures[i])) continue;
    std::string name = CWord(GilText(procedures[i]));
    while (AlreadyInProcList(name.c_str())) name += "_";
    char*& kept = renamed[procedures[i]];
    kept = Keep(name);
    Note(session, "procedure " + GilText(procedures[i]) + " is now " + name);
    procedures[i] = kept;
  }
  for (const Link& link : session.links) {
    const auto found = renamed.find(link.callback->procedure);
    if (found != renamed.end()) const_cast<Callback*>(link.callback)->procedure = found->second;
  }
}

// ---- The module's callbacks ----

// One entry for each event, its calls in the file's order; calls that no action made come first.
void RebuildCallbacks(const Session& session, const Widg* widg,
                      const std::map<const Callback*, int>& order, uilfix::Object& object) {
  std::vector<std::pair<std::string, std::vector<const Callback*>>> events;
  for (const Callback* at = widg->callbacks; at; at = at->next) {
    if (session.left_out.contains(at)) continue;
    const std::string reason = at->callback_name;
    auto event = std::find_if(events.begin(), events.end(),
                              [&](const auto& candidate) { return candidate.first == reason; });
    if (event == events.end()) event = events.insert(events.end(), {reason, {}});
    event->second.push_back(at);
  }
  const auto place = [&](const Callback* callback) {
    const auto found = order.find(callback);
    return found == order.end() ? -1 : found->second;
  };
  std::vector<uilfix::Entry> entries;
  bool placed = false;
  for (uilfix::Entry& entry : object.entries) {
    const auto* old = std::get_if<uilfix::Callback>(&entry);
    if (!old) {
      entries.push_back(std::move(entry));
      continue;
    }
    if (placed) continue;
    placed = true;
    for (auto& [reason, callbacks] : events) {
      std::stable_sort(callbacks.begin(), callbacks.end(),
                       [&](const Callback* a, const Callback* b) { return place(a) < place(b); });
      uilfix::Callback made = *old;
      made.reason = reason;
      made.list = callbacks.size() > 1;
      made.calls.clear();
      for (const Callback* callback : callbacks) {
        const char* argument = callback->argument ? callback->argument : "";
        made.calls.push_back({callback->procedure, argument, old->line});
      }
      entries.push_back(made);
    }
  }
  object.entries = std::move(entries);
}

// Colours that only OPEN LOOK's server knew.
void MendColors(Session& session, uilfix::Module& module) {
  uilfix::ForEachObject(module, [&](uilfix::Object& object) {
    uilfix::ForEachEntry<uilfix::Argument>(object, [&](uilfix::Argument& argument) {
      if (!argument.value.starts_with("color(\"") || !argument.value.ends_with("\")")) return;
      const std::string name = argument.value.substr(7, argument.value.size() - 9);
      const std::string known = KnownColor(name);
      if (known == name) return;
      argument.value = "color(\"" + known + "\")";
      Note(session, "colour " + name + " of " + object.name + " is now " + known);
    });
  });
}

std::vector<uilfix::Object*> ObjectsOf(uilfix::Module& module) {
  std::vector<uilfix::Object*> objects;
  uilfix::ForEachObject(module, [&](uilfix::Object& object) { objects.push_back(&object); });
  return objects;
}

std::vector<std::string> DeclaredIn(const uilfix::Module& module) {
  std::vector<std::string> names;
  for (const uilfix::Item& item : module.items) {
    if (const auto* declaration = std::get_if<uilfix::Declaration>(&item)) {
      names.push_back(declaration->name);
    }
  }
  return names;
}

}  // namespace

void MendTree(Session& session) {
  Model& model = session.model;
  for (std::size_t i = 0; i < model.objects.size(); ++i) {
    const int index = static_cast<int>(i);
    const PortObject& object = model.objects[i];
    if (object.type == GROUP) BringBackGroup(session, index);
    if (object.type == DROP_TARGET) ShowDropTarget(session, index);
    if (object.type != SCROLLING_LIST && object.type != SLIDER) continue;
    for (Widg* widg : OwnWidgets(session, index)) {
      if (IsClass(widg, "XmScale")) MakeRoomForTheNumber(session, widg, object);
      if (!IsClass(widg, "XmList")) continue;
      TurnItems(session, widg, object);
      SelectItems(widg, object);
    }
  }
  MendMenus(session);
  LinkWidgets(session, 0);
  CleanWidgetNames(session);
}

void MendCallbacks(Session& session) {
  for (const Link& link : session.links) {
    if (IsClass(link.widg, "XmList") &&
        std::string_view(link.callback->callback_name) == "XmNsingleSelectionCallback") {
      const_cast<Callback*>(link.callback)->callback_name = SelectionCallback(link.widg);
      Note(session, "list " + GilText(link.widg->gil_name) + " calls when its policy does");
    }
    MendArgument(session, link);
  }
  CleanProcedures(session);
}

void MendModule(Session& session, const std::string& text) {
  session.model.converted = text;
  uilfix::Module module = uilfix::ParseModule(text);
  std::map<const Callback*, int> order;
  for (const Link& link : session.links) order.emplace(link.callback, link.connection);
  const std::vector<uilfix::Object*> objects = ObjectsOf(module);
  const std::vector<std::string> declared = DeclaredIn(module);
  // A text of the GIL file with a line end may look like the beginning of an object.
  const bool known = objects.size() == session.written.size();
  for (std::size_t i = 0; known && i < objects.size(); ++i) {
    const Widg* widg = session.written[i];
    if (widg->callbacks) RebuildCallbacks(session, widg, order, *objects[i]);
  }
  TakeBitmaps(session, module);
  MendColors(session, module);
  uilfix::Report report;
  uilfix::FixModule(module, {}, report);
  for (const uilfix::Change& change : report.Changes()) {
    Note(session, std::string(change.rewrite) + ": " + change.text);
  }
  const std::vector<uilfix::Object*> mended = ObjectsOf(module);
  for (std::size_t i = 0; known && i < mended.size() && i < session.written.size(); ++i) {
    session.names[session.written[i]] = mended[i]->name;
  }
  const std::vector<std::string> mended_procedures = DeclaredIn(module);
  for (std::size_t i = 0; i < declared.size() && i < mended_procedures.size(); ++i) {
    session.procedures[declared[i]] = mended_procedures[i];
  }
  session.model.module = uilfix::RenderModule(module);
  TakeButtonGlyphs(session);
}

}  // namespace port
