// SPDX-License-Identifier: MIT
// Which widget was made for which object, and what became of each object.
#include <algorithm>
#include <array>
#include <string_view>

#include "flags/flags.h"
#include "gil/object.h"
#include "gil/tokens.h"
#include "port/port_session.h"
#include "widget/tree.h"

namespace port {
namespace {

// The suffixes that the conversion appends to an object's name for companion widgets.
constexpr std::array<std::string_view, 11> kSuffixes = {
    "_label",    "_rc",     "_sw",    "_form",        "_frame",          "_title",
    "_toggle_b", "_push_b", "choice", "_option_menu", "_option_pulldown"};

// Appends the widgets below the top level to those of the session, parents first, each once. Skips
// a widget that is not written with all below it.
std::vector<Widg*> CollectNew(Session& session) {
  std::vector<Widg*> fresh;
  std::vector<std::pair<Widg*, Widg*>> open;  // with its parent
  const auto push_list = [&](Widg* first, Widg* parent) {
    std::vector<Widg*> list;
    std::unordered_map<const Widg*, bool> seen;
    for (Widg* widg = first; widg && !seen[widg]; widg = widg->next) {
      seen[widg] = true;
      list.push_back(widg);
    }
    for (auto at = list.rbegin(); at != list.rend(); ++at) open.emplace_back(*at, parent);
  };
  std::unordered_map<const Widg*, bool> visited;
  push_list(top_widget, nullptr);
  while (!open.empty()) {
    const auto [widg, parent] = open.back();
    open.pop_back();
    if (visited[widg]) {
      // A menu may stand at the top level and with the control that uses it.
      Widg*& known = session.parent_of[widg];
      if (!known) known = parent;
      continue;
    }
    visited[widg] = true;
    session.parent_of[widg] = parent;
    if (session.object_of.emplace(widg, -1).second) {
      session.widgets.push_back(widg);
      session.made[widg] = NameLookup(InstanceNameTbl(), widg->name);
      fresh.push_back(widg);
    }
    if (IsInModule(widg)) push_list(widg->child, widg);
  }
  return fresh;
}

class Linker {
 public:
  Linker(Session& session, int first_object) : session_(session) {
    for (std::size_t i = first_object; i < session.objs.size(); ++i) {
      by_actions_.emplace(session.objs[i]->actions, static_cast<int>(i));
      by_name_.emplace(session.model.objects[i].name, static_cast<int>(i));
    }
  }

  void Link(const std::vector<Widg*>& widgets) {
    for (const Widg* widg : widgets) Set(widg, ByActions(widg));
    for (const Widg* widg : widgets) {
      if (Get(widg) < 0) Set(widg, ByName(widg));
    }
    // A wrapper without a name of its own belongs to what it holds; any other widget to its parent.
    for (const Widg* widg : widgets) {
      if (Get(widg) < 0 && IsClass(widg, "XmMenuBar") && widg->child) {
        Set(widg, Get(widg->child));
      }
      if (Get(widg) < 0 && session_.parent_of[widg]) Set(widg, Get(session_.parent_of[widg]));
    }
  }

 private:
  int Get(const Widg* widg) const {
    const auto found = session_.object_of.find(widg);
    return found == session_.object_of.end() ? -1 : found->second;
  }
  void Set(const Widg* widg, int object) { session_.object_of[widg] = object; }

  int ByActions(const Widg* widg) const {
    const auto found = by_actions_.find(widg->actions);
    return widg->actions && found != by_actions_.end() ? found->second : -1;
  }

  int Named(std::string name) const {
    auto found = by_name_.find(name);
    if (found != by_name_.end()) return found->second;
    // The name of a widget begins with a small letter.
    if (!name.empty() && name[0] >= 'a' && name[0] <= 'z') name[0] += 'A' - 'a';
    found = by_name_.find(name);
    return found != by_name_.end() ? found->second : -1;
  }

  int ByName(const Widg* widg) const {
    const std::string name = GilText(widg->gil_name);
    if (IsClass(widg, "XmOptionMenu")) return Named(name);
    for (std::string_view suffix : kSuffixes) {
      if (!name.ends_with(suffix)) continue;
      const int object = Named(name.substr(0, name.size() - suffix.size()));
      if (object >= 0) return object;
    }
    return -1;
  }

  Session& session_;
  std::unordered_map<const Action*, int> by_actions_;
  std::unordered_map<std::string, int> by_name_;
};

// Whether the widget is in a window; the program does not fetch one that is in none.
bool IsInWindow(const Session& session, const Widg* widg) {
  std::unordered_map<const Widg*, bool> seen;
  for (const Widg* at = widg; at && !seen[at]; at = session.parent_of.at(at)) {
    if (IsShell(at)) return true;
    seen[at] = true;
  }
  return false;
}

// Why an object has no widget at all.
std::string ReasonForLoss(const Model& model, const PortObject& object) {
  switch (object.type) {
    case TERM_PANE:
      return "Motif has no terminal";
    case DROP_TARGET:
      return "Motif has no widget for drop targets: any widget can be a drop site";
    case STACK:
      return "Motif has no counterpart";
    case MENU:
      return "no control uses the menu";
    case GROUP:
      return "its members are not in one container when the group is converted";
    default:
      break;
  }
  if (object.parent >= 0) {
    const PortObject& parent = model.objects[object.parent];
    if (&parent == &object) return "it owns itself";
    return "it lies in " + parent.name + ", which cannot hold it in Motif";
  }
  return "the conversion has no place for it";
}

std::string LabelOf(const Widg* widg) {
  for (const char* resource : {"XmNlabelString", "XmNoriginalPixmapName"}) {
    const char* value = GetResourceValue(widg, resource);
    if (*value) return GilText(value);
  }
  return "";
}

}  // namespace

void ListWritten(Session& session) {
  struct Frame {
    Widg* widg;
    Widg* next_child;
  };
  std::unordered_map<const Widg*, bool> seen;
  std::vector<Frame> open;
  const auto enter = [&](Widg* widg) {
    if (seen[widg]) return;
    seen[widg] = true;
    if (*widg->class_name) open.push_back({widg, widg->child});
  };
  for (Widg* top = top_widget; top; top = top->next) {
    enter(top);
    while (!open.empty()) {
      Frame& frame = open.back();
      if (Widg* child = frame.next_child) {
        frame.next_child = child->next;
        enter(child);
        continue;
      }
      if (!IsShell(frame.widg) || usezo || !nocomments) session.written.push_back(frame.widg);
      open.pop_back();
    }
  }
}

bool IsInModule(const Widg* widg) { return *widg->class_name; }

std::string NameOf(const Session& session, const Widg* widg) {
  const auto found = session.names.find(widg);
  return found == session.names.end() ? widg->name : found->second;
}

void IndexWidgets(Session& session) {
  session.widgets_of.clear();
  for (Widg* widg : session.widgets) session.widgets_of[session.object_of.at(widg)].push_back(widg);
}

const std::vector<Widg*>& WidgetsOf(const Session& session, int object) {
  static const std::vector<Widg*> none;
  const auto found = session.widgets_of.find(object);
  return found == session.widgets_of.end() ? none : found->second;
}

void LinkWidgets(Session& session, int first_object) {
  Linker(session, first_object).Link(CollectNew(session));
  IndexWidgets(session);
}

std::vector<Widg*> OwnWidgets(const Session& session, int object) {
  std::vector<Widg*> own;
  for (Widg* widg : WidgetsOf(session, object)) {
    if (widg->actions == session.objs[object]->actions) own.push_back(widg);
  }
  std::sort(own.begin(), own.end(),
            [&](const Widg* a, const Widg* b) { return session.made.at(a) < session.made.at(b); });
  return own;
}

void SettleObjects(Session& session) {
  Model& model = session.model;
  for (std::size_t i = 0; i < model.objects.size(); ++i) {
    PortObject& object = model.objects[i];
    std::vector<Widg*> widgets = WidgetsOf(session, static_cast<int>(i));
    std::erase_if(
        widgets, [&](const Widg* widg) { return !IsInModule(widg) || !IsInWindow(session, widg); });
    const auto stands_for_it = [&](const Widg* widg) {
      return widg->actions == session.objs[i]->actions;
    };
    std::sort(widgets.begin(), widgets.end(), [&](const Widg* a, const Widg* b) {
      if (stands_for_it(a) != stands_for_it(b)) return stands_for_it(a);
      return session.made.at(a) < session.made.at(b);
    });
    for (const Widg* widg : widgets) {
      object.widgets.push_back({NameOf(session, widg), widg->class_name, LabelOf(widg)});
    }
    if (widgets.empty()) {
      object.reason = ReasonForLoss(model, object);
      if (object.type == GROUP && ignore_groups) {
        object.fate = ObjectFate::kReplaced;
        object.reason = "its members stand where they stood";
      }
    } else if (stands_for_it(widgets[0])) {
      object.fate = ObjectFate::kShown;
    } else {
      object.fate = ObjectFate::kReplaced;
      object.reason = "an option menu stands for it";
    }
  }
}

}  // namespace port
