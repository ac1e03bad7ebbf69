// SPDX-License-Identifier: MIT
// A managed popup menu is a posted one: fetched with its parent it shows in the corner of the
// screen and grabs the pointer.
#include "uilfix/rewrites.h"

namespace uilfix {

void FixPopups(Module& module, Report& report) {
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment()) return;
    ForEachEntry<Control>(object, [&](Control& control) {
      if (control.class_name != "XmPopupMenu" || control.unmanaged) return;
      if (IsCommented(control.lead)) return;
      Unmanage(control);
      report.Add(control.line,
                 "popup menu " + control.name + " of " + object.name + " is now unmanaged");
    });
  });
}

}  // namespace uilfix
