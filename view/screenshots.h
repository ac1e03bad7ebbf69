// SPDX-License-Identifier: MIT
// Shows each window alone, for a picture or a listing of it.
#ifndef PANDREL_VIEW_SCREENSHOTS_H
#define PANDREL_VIEW_SCREENSHOTS_H

#include <filesystem>
#include <functional>
#include <string>

#include "view_windows.h"

namespace view {

// Shows the windows one after the other, also dialogs and hidden ones, each alone in the corner of
// the screen, and calls `visit` for it once it is drawn.
void ForEachShownWindow(const Windows& windows, const std::function<void(const Window&)>& visit);

// The file of a window's picture: `file` for the first window and, for a further one, the file of
// that name with "-" and the window's name before the suffix; with `folder`, folder/NAME.png.
std::filesystem::path PictureFile(const std::filesystem::path& file,
                                  const std::filesystem::path& folder, const std::string& window,
                                  bool first);

// Writes the picture of a window that is shown. Returns false after a message on standard error
// when it cannot be written.
bool TakePicture(const Window& window, const std::filesystem::path& target);

}  // namespace view

#endif
