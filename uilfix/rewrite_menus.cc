// SPDX-License-Identifier: MIT
// A menu that a GIL object owns and that no button, item or pane uses keeps its placeholder class,
// which the compiler does not know. A popup menu is what it can still be: its owner is its parent.
#include "uilfix/rewrites.h"

namespace uilfix {

void FixMenus(Module& module, Report& report) {
  ForEachObject(module, [&](Object& object) {
    if (object.class_name == "XmUnknownMenu") {
      object.class_name = "XmPopupMenu";
      report.Add(object.line, "menu " + object.name + " is now an XmPopupMenu");
    }
    ForEachEntry<Control>(object, [](Control& control) {
      if (control.class_name == "XmUnknownMenu") control.class_name = "XmPopupMenu";
    });
  });
}

}  // namespace uilfix
