// SPDX-License-Identifier: MIT
// Motif takes a dialog off the screen when one of its buttons is pressed, unless it is told not to.
// An OPEN LOOK popup with its pin in stays.
#include <unordered_set>

#include "uilfix/rewrites.h"

namespace uilfix {

void FixDialogs(Module& module, Report& report) {
  std::unordered_set<std::string> contents;
  ForEachObject(module, [&](const Object& object) {
    if (object.class_name != "XmDialogShell") return;
    ForEachEntry<Control>(object, [&](const Control& control) { contents.insert(control.name); });
  });
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment() || !contents.contains(object.name)) return;
    if (object.class_name != "XmBulletinBoard" && object.class_name != "XmForm") return;
    if (FindArgument(object, "XmNautoUnmanage")) return;
    if (!AddArgument(object, "XmNautoUnmanage", "false")) return;
    report.Add(object.line, "dialog " + object.name + " now stays when a button is pressed");
  });
}

}  // namespace uilfix
