// SPDX-License-Identifier: MIT
// Pictures of windows as PNG files.
#ifndef PANDREL_VIEW_PICTURE_H
#define PANDREL_VIEW_PICTURE_H

#include <Xm/Xm.h>

#include <filesystem>
#include <string>

namespace view {

// Writes what the screen shows of the shell's window, borders of a window manager left out. Returns
// what went wrong, or the empty text.
std::string WritePicture(Widget shell, const std::filesystem::path& file);

}  // namespace view

#endif
