// SPDX-License-Identifier: MIT
// From the user's file to a compiled module: converted if it is GIL, mended, compiled.
#ifndef PANDREL_VIEW_INPUT_H
#define PANDREL_VIEW_INPUT_H

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "gil_names.h"
#include "uilfix/module.h"
#include "view_options.h"

namespace view {

struct Interface {
  std::string error;             // why there is nothing to show, with line ends; empty on success
  std::filesystem::path uid;     // the compiled module
  std::filesystem::path folder;  // where its bitmaps are
  bool compiled = false;         // the user's file is a compiled module already
  bool has_module = false;       // false for a .uid without its .uil beside it
  uilfix::Module module;
  std::vector<std::string> gil_names;      // of the objects in the GIL file, if that is at hand
  std::vector<std::string> pinned_popups;  // among them, the popups whose pins are in
  std::vector<GlyphButton> glyph_buttons;  // and the buttons with an icon
  std::set<std::string> left_out;          // widgets that are in the module and in no window
};

// Does all that comes before the first window. Notes go to standard error. Only reads the user's
// folders: the output of the converter and the compiler goes to the folder `scratch`.
Interface PrepareInterface(const Options& options, const std::filesystem::path& scratch);

// An object as messages name it: its widget, and its name in the GIL file where that is known.
std::string WidgetAndObject(const std::vector<std::string>& gil_names, const std::string& widget);

}  // namespace view

#endif
