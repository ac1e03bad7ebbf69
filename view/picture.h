// SPDX-License-Identifier: MIT
// Pictures of windows as PNG files.
#ifndef PANDREL_VIEW_PICTURE_H
#define PANDREL_VIEW_PICTURE_H

#include <Xm/Xm.h>

#include <filesystem>
#include <string>

namespace view {

// Makes the server draw windows off the screen, so that no picture shows a part of another window
// or is cut at the screen's edge. Call it before any window is made. Returns false on a server that
// cannot do so; pictures then come from the screen.
bool KeepPicturesApart(Display* display);

// Writes what the shell's window shows, borders of a window manager left out. Returns what went
// wrong, or the empty text.
std::string WritePicture(Widget shell, const std::filesystem::path& file);

// The window below the root that `window` lies in: a window manager's frame, or itself.
::Window TopWindow(Display* display, ::Window window);

}  // namespace view

#endif
