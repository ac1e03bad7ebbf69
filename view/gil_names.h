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

// The names of a GIL file; of a project, those of the interface files in its folder as well. Empty
// when the file cannot be read.
std::vector<std::string> ReadGilNamesFromFile(const std::filesystem::path& file);

// The GIL name that the widget's name was most likely made from: the longest that the widget's
// begins with, its first letter lowered and the whole cut to 30 characters. Empty for none.
std::string GuessGilName(const std::vector<std::string>& gil_names, std::string_view widget);

}  // namespace view

#endif
