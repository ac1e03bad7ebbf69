// SPDX-License-Identifier: MIT
// A menu that a GIL object owns and that no button, item or pane uses keeps its placeholder class,
// which the compiler does not know. It becomes a popup menu, with its owner as parent.
#include <string>
#include <unordered_set>

#include "uilfix/rewrites.h"

namespace uilfix {

void FixMenus(Module& module, Report& report) {
  std::unordered_set<std::string> told;
  ForEachObject(module, [&](Object& object) {
    if (object.class_name == "XmUnknownMenu") {
      object.class_name = "XmPopupMenu";
      report.Add(object.line, "menu " + object.name + " is now an XmPopupMenu");
      told.insert(object.name);
    }
    ForEachEntry<Control>(object, [&](Control& control) {
      if (control.class_name != "XmUnknownMenu") return;
      control.class_name = "XmPopupMenu";
      if (told.contains(control.name)) return;  // it stands in front of what controls it
      report.Add(control.line, "menu " + control.name + " is now an XmPopupMenu");
    });
  });
}

}  // namespace uilfix
