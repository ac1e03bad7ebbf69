// SPDX-License-Identifier: MIT
// The colours of OPEN LOOK's palette, which an X server does not know by name.
#ifndef PANDREL_VIEW_OPEN_LOOK_COLORS_H
#define PANDREL_VIEW_OPEN_LOOK_COLORS_H

#include <string_view>

#include "uilfix/module.h"

namespace view {

// The colour of this name in a form that X knows; empty for any other name.
std::string_view OpenLookColor(std::string_view name);

// Writes the names of the palette in a form that X knows, in live objects and in comments.
void ReplaceOpenLookColors(uilfix::Module& module);

}  // namespace view

#endif
