// SPDX-License-Identifier: MIT
// The icons of push buttons. The converter leaves such a button the name of the icon's file for a
// label; here it gets the icon, where that is found.
#ifndef PANDREL_VIEW_BUTTON_ICONS_H
#define PANDREL_VIEW_BUTTON_ICONS_H

#include <filesystem>
#include <string>
#include <vector>

#include "gil_names.h"
#include "uilfix/module.h"

namespace view {

// Where the files of icons are looked for, in this order, and where bitmaps may be written.
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
