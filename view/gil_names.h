// SPDX-License-Identifier: MIT
// From a widget's name back to the name that the user gave the object in the GIL file.
#ifndef PANDREL_VIEW_GIL_NAMES_H
#define PANDREL_VIEW_GIL_NAMES_H

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace view {

// Every name that a GIL text gives to an object, in its order.
std::vector<std::string> ReadGilNames(std::string_view gil);

// The names of the popup windows of a GIL text whose pins are in at the start.
std::vector<std::string> ReadPinnedPopups(std::string_view gil);

struct GlyphButton {
  std::string name;
  std::string icon;  // the file, as the GIL text names it
};

// The buttons of a GIL text that show an icon. In the module their label is the icon's name.
std::vector<GlyphButton> ReadGlyphButtons(std::string_view gil);

// The text of a GIL file; of a project, with those of the interface files in its folder behind it.
// Empty when the file cannot be read.
std::string ReadGilText(const std::filesystem::path& file);

// The widget's name that the converter makes of an object's, unless another object has it already:
// the first letter lowered and the whole cut to 30 characters.
std::string WidgetForm(const std::string& gil_name);

// The GIL name that the widget's name was most likely made from: the longest that is, in its
// WidgetForm(), the widget's name without a number, a part's name or an item's at its end. Empty
// for none: the converter makes widgets of its own, such as "menubar".
std::string GuessGilName(const std::vector<std::string>& gil_names, std::string_view widget);

}  // namespace view

#endif
