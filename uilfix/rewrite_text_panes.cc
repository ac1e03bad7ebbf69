// SPDX-License-Identifier: MIT
// Motif's text widget edits one line unless told otherwise; a GIL text pane says nothing, since in
// OPEN LOOK it always is an editor.
#include "uilfix/rewrites.h"

namespace uilfix {
void FixTextPanes(Module& module, Report& report) {
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment()) return;
    if (object.class_name != "XmText" && object.class_name != "XmScrolledText") return;
    if (FindArgument(object, "XmNeditMode")) return;
    if (!AddArgument(object, "XmNeditMode", "XmMULTI_LINE_EDIT")) return;
    report.Add(object.line, "text " + object.name + " now holds more than one line");
  });
}

}  // namespace uilfix
