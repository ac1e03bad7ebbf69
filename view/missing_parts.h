// SPDX-License-Identifier: MIT
// Icons and colours that a module names and that are not there.
#ifndef PANDREL_VIEW_MISSING_PARTS_H
#define PANDREL_VIEW_MISSING_PARTS_H

#include <Xm/Xm.h>

#include <string>
#include <vector>

#include "uilfix/module.h"

namespace view {

struct MissingPart {
  enum class Kind { kIcon, kColor };

  Kind kind;
  std::string widget;
  std::string name;  // the file or the colour, as the module has it
};

// The icons that cannot be read from the working directory and the colours that the display does
// not know, each once per widget, in the order of the module.
std::vector<MissingPart> FindMissingParts(const uilfix::Module& module, Display* display);

// Whether the file is a bitmap that the toolkit can show. Needs no display.
bool CanReadBitmap(const std::string& file);

// Draws the box that stands for an icon, the name in it, on a label or button.
void DrawIconName(Widget widget, const std::string& name);

}  // namespace view

#endif
