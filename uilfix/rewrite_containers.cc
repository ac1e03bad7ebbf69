// SPDX-License-Identifier: MIT
// A GIL object may own others that its Motif widget cannot hold, for example a button that owns a
// label. A bulletin board takes the widget's place, and holds it and its children.
#include <algorithm>
#include <array>
#include <unordered_map>
#include <unordered_set>

#include "uilfix/renamer.h"
#include "uilfix/rewrites.h"

namespace uilfix {
namespace {

constexpr std::array<std::string_view, 13> kChildless = {
    "XmPushButton",  "XmToggleButton", "XmCascadeButton", "XmLabel",        "XmText",
    "XmTextField",   "XmScrolledText", "XmList",          "XmScrolledList", "XmSeparator",
    "XmArrowButton", "XmDrawnButton",  "XmScrollBar"};

// What places a widget in its parent.
constexpr std::array<std::string_view, 20> kPlacing = {"XmNx",
                                                       "XmNy",
                                                       "XmNtopAttachment",
                                                       "XmNbottomAttachment",
                                                       "XmNleftAttachment",
                                                       "XmNrightAttachment",
                                                       "XmNtopWidget",
                                                       "XmNbottomWidget",
                                                       "XmNleftWidget",
                                                       "XmNrightWidget",
                                                       "XmNtopOffset",
                                                       "XmNbottomOffset",
                                                       "XmNleftOffset",
                                                       "XmNrightOffset",
                                                       "XmNtopPosition",
                                                       "XmNbottomPosition",
                                                       "XmNleftPosition",
                                                       "XmNrightPosition",
                                                       "XmNchildType",
                                                       "XmNchildVerticalAlignment"};

constexpr std::array<std::string_view, 4> kNeighbours = {"XmNtopWidget", "XmNbottomWidget",
                                                         "XmNleftWidget", "XmNrightWidget"};

template <typename Table>
bool Holds(const Table& table, std::string_view word) {
  return std::find(table.begin(), table.end(), word) != table.end();
}

bool IsMenu(std::string_view class_name) {
  return class_name == "XmPulldownMenu" || class_name == "XmPopupMenu" ||
         class_name == "XmMenuBar" || class_name == "XmOptionMenu";
}

bool IsMisplaced(const Entry& entry) {
  const auto* control = std::get_if<Control>(&entry);
  return control && !IsCommented(control->lead) && !IsMenu(control->class_name);
}

bool NeedsContainer(const Object& object) {
  return !object.IsComment() && Holds(kChildless, object.class_name) &&
         std::any_of(object.entries.begin(), object.entries.end(), IsMisplaced);
}

// Takes the entries that `wanted` picks out of the object.
template <typename Wanted>
std::vector<Entry> TakeEntries(Object& object, Wanted wanted) {
  std::vector<Entry> taken;
  std::vector<Entry> left;
  for (Entry& entry : object.entries) (wanted(entry) ? taken : left).push_back(std::move(entry));
  object.entries = std::move(left);
  return taken;
}

Object MakeContainer(Object& object, const std::string& name) {
  Object box;
  box.name = name;
  box.class_name = "XmBulletinBoard";
  box.line = object.line;
  auto& entries = box.entries;
  entries.emplace_back(Verbatim{"\tcontrols {\n", Mark::kControls, object.line});
  entries.emplace_back(Control{"\t\t", object.class_name, object.name, false, object.line});
  for (const Entry& entry : TakeEntries(object, IsMisplaced)) {
    const auto& child = std::get<Control>(entry);
    entries.emplace_back(
        Control{"\t\t", child.class_name, child.name, child.unmanaged, child.line});
  }
  entries.emplace_back(Verbatim{"\t\t};\n", Mark::kEnd, object.line, true});
  entries.emplace_back(Verbatim{"\targuments {\n", Mark::kArguments, object.line});
  const auto placing = TakeEntries(object, [](const Entry& entry) {
    const auto* argument = std::get_if<Argument>(&entry);
    return argument && !IsCommented(argument->lead) && Holds(kPlacing, argument->resource);
  });
  for (const Entry& entry : placing) {
    const auto& argument = std::get<Argument>(entry);
    entries.emplace_back(Argument{"\t\t", argument.resource, argument.value, argument.line});
  }
  for (const char* margin : {"XmNmarginWidth", "XmNmarginHeight"}) {
    entries.emplace_back(Argument{"\t\t", margin, "0", object.line});
  }
  entries.emplace_back(
      Verbatim{"\t\t};\n\tcallbacks {\n\t\t};\n\n\t};\n", Mark::kObjectEnd, object.line, true});
  return box;
}

// The names of all widgets that stand in a list of controls other than a menu's, which takes no
// bulletin board.
std::unordered_set<std::string> Controlled(const Module& module) {
  std::unordered_set<std::string> names;
  ForEachObject(module, [&](const Object& object) {
    if (IsMenu(object.class_name)) return;
    ForEachEntry<Control>(object, [&](const Control& control) {
      if (object.IsComment() || !IsCommented(control.lead)) names.insert(control.name);
    });
  });
  return names;
}

// Puts the container where the widget was.
void TakePlaces(Object& object, const std::unordered_map<std::string, std::string>& boxes) {
  ForEachEntry<Control>(object, [&](Control& control) {
    const auto box = boxes.find(control.name);
    if (box == boxes.end() || box->second == object.name || IsMenu(object.class_name)) return;
    control.class_name = "XmBulletinBoard";
    control.name = box->second;
  });
  ForEachEntry<Argument>(object, [&](Argument& argument) {
    if (!Holds(kNeighbours, argument.resource)) return;
    const auto box = boxes.find(argument.value);
    if (box != boxes.end()) argument.value = box->second;
  });
}

}  // namespace

void FixContainers(Module& module, Report& report) {
  bool needed = false;
  ForEachObject(module, [&](const Object& object) { needed |= NeedsContainer(object); });
  if (!needed) return;
  const auto controlled = Controlled(module);
  Renamer renamer(module);
  std::unordered_map<std::string, std::string> boxes;  // by the name of the widget
  std::vector<Item> items;
  for (Item& item : module.items) {
    auto* object = std::get_if<Object>(&item);
    std::optional<Object> box;
    if (object && NeedsContainer(*object) && controlled.contains(object->name)) {
      box = MakeContainer(*object, renamer.NewName(object->name, "_box", true));
      boxes[object->name] = box->name;
      report.Add(object->line,
                 "children of " + object->name + " now stand beside it in " + box->name);
    }
    items.push_back(std::move(item));
    if (!box) continue;
    items.emplace_back(Verbatim{"\n", Mark::kNone, box->line});
    items.emplace_back(std::move(*box));
  }
  module.items = std::move(items);
  ForEachObject(module, [&](Object& object) { TakePlaces(object, boxes); });
}

}  // namespace uilfix
