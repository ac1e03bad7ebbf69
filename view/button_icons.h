// SPDX-License-Identifier: MIT
// The icons of push buttons. In the module the label of such a button is the name of the icon's
// file; this gives it the icon if there is one.
#ifndef PANDREL_VIEW_BUTTON_ICONS_H
#define PANDREL_VIEW_BUTTON_ICONS_H

#include <filesystem>
#include <string>
#include <vector>

#include "gil_names.h"
#include "uilfix/module.h"

namespace view {

// The folders in which to look for icons, in this order, and the one for new bitmaps.
struct IconFolders {
  std::vector<std::filesystem::path> given;
  std::filesystem::path bitmaps;
  std::string bitmaps_name;  // as the program that shows the module calls it
};

// Lets each button of the module that has an icon's name for a label show the icon. One whose icon
// is not found, or is none, stays as it is.
void ShowButtonIcons(uilfix::Module& module, const std::vector<std::string>& gil_names,
                     const std::vector<GlyphButton>& buttons, const IconFolders& folders);

}  // namespace view

#endif
