// SPDX-License-Identifier: MIT
#include "stray_children.h"

#include <algorithm>
#include <string_view>

namespace view {
namespace {

using Classes = std::vector<std::string_view>;

struct ParentRow {
  std::string_view parent;
  Classes children;
};

// Classes that take the children of these classes and no others. A popup menu may hang on anything.
const std::vector<ParentRow>& Parents() {
  static const Classes menu = {"XmPopupMenu"};
  static const Classes cascade = {"XmPopupMenu", "XmPulldownMenu"};
  static const Classes items = {"XmPopupMenu", "XmPulldownMenu", "XmPushButton",
                                "XmLabel",     "XmToggleButton", "XmCascadeButton",
                                "XmSeparator", "XmOptionMenu"};
  static const std::vector<ParentRow> rows = {
      {"XmPushButton", menu},
      {"XmToggleButton", menu},
      {"XmLabel", menu},
      {"XmText", menu},
      {"XmTextField", menu},
      {"XmScrolledText", menu},
      {"XmList", menu},
      {"XmScrolledList", menu},
      {"XmScale", menu},
      {"XmScrollBar", menu},
      {"XmSeparator", menu},
      {"XmArrowButton", menu},
      {"XmDrawnButton", menu},
      {"XmCascadeButton", cascade},
      {"XmOptionMenu", cascade},
      {"XmMenuBar", {"XmCascadeButton", "XmPopupMenu", "XmPulldownMenu"}},
      {"XmPulldownMenu", items},
      {"XmPopupMenu", items},
  };
  return rows;
}

bool IsStray(const uilfix::Control& control, const ParentRow& row) {
  return std::find(row.children.begin(), row.children.end(), control.class_name) ==
         row.children.end();
}

}  // namespace

std::vector<StrayChild> RemoveStrayChildren(uilfix::Module& module) {
  std::vector<StrayChild> strays;
  uilfix::ForEachObject(module, [&](uilfix::Object& object) {
    const auto row = std::find_if(Parents().begin(), Parents().end(), [&](const ParentRow& known) {
      return known.parent == object.class_name;
    });
    if (object.IsComment() || row == Parents().end()) return;
    std::erase_if(object.entries, [&](const uilfix::Entry& entry) {
      const auto* control = std::get_if<uilfix::Control>(&entry);
      // A comment begins with more than tabs.
      const bool live = control && control->lead.find_first_not_of(" \t") == std::string::npos;
      if (!live || !IsStray(*control, *row)) return false;
      strays.push_back({control->name, object.name, object.class_name});
      return true;
    });
  });
  return strays;
}

}  // namespace view
