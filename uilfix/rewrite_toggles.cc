// SPDX-License-Identifier: MIT
// Under the OPEN LOOK style the choices of a setting have no indicator, so only a button's shadow
// shows whether it is set. A toggle in a radio or check box has no shadow by default, and the
// chosen one would look like the others.
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
