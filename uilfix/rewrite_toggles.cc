// SPDX-License-Identifier: MIT
// Under the OPEN LOOK style the choices of a setting have no indicator, and Motif then shows by a
// button's shadow alone whether it is set. In a radio or check box a toggle has no shadow by
// itself, so the chosen one could not be told from the others.
#include "uilfix/rewrites.h"

namespace uilfix {

void FixToggles(Module& module, Report& report) {
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment() || object.class_name != "XmToggleButton") return;
    const std::string* indicator = FindArgument(object, "XmNindicatorOn");
    if (!indicator || *indicator != "false" || FindArgument(object, "XmNshadowThickness")) return;
    if (!AddArgument(object, "XmNshadowThickness", "2")) return;
    report.Add(object.line, "toggle " + object.name + " now has a shadow to show its state");
  });
}

}  // namespace uilfix
