// SPDX-License-Identifier: MIT
// Pictures of windows as PNG files.
#ifndef PANDREL_VIEW_PICTURE_H
#define PANDREL_VIEW_PICTURE_H

#include <Xm/Xm.h>

#include <filesystem>
#include <string>

namespace view {

// Lets the server keep the pictures of windows apart from the screen, so that none shows a part of
// another and none is cut at the screen's edge. To be called before any window is made. Returns
// false on a server that cannot; pictures are then taken from the screen.
bool KeepPicturesApart(Display* display);

// Writes what the shell's window shows, borders of a window manager left out. Returns what went
// wrong, or the empty text.
std::string WritePicture(Widget shell, const std::filesystem::path& file);

// The window below the root that `window` lies in: a window manager's frame, or itself.
::Window TopWindow(Display* display, ::Window window);

}  // namespace view

#endif
