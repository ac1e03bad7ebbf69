// SPDX-License-Identifier: MIT
// Showing each window alone, for a picture or a listing of it.
#ifndef PANDREL_VIEW_SCREENSHOTS_H
#define PANDREL_VIEW_SCREENSHOTS_H

#include <filesystem>
#include <functional>

#include "view_windows.h"

namespace view {

// Shows the windows one after the other, dialogs and hidden ones too, each alone in the corner of
// the screen and drawn to the end, and calls `visit` for it.
void ForEachShownWindow(const Windows& windows, const std::function<void(const Window&)>& visit);

// Writes one picture per window and dialog: the first to `file`, a further one to the file of that
// name with "-" and the window's name before the suffix. With `folder`, each to folder/NAME.png
// instead. Returns whether all could be written; failures are reported on standard error.
bool WriteScreenshots(const Windows& windows, const std::filesystem::path& file,
                      const std::filesystem::path& folder);

}  // namespace view

#endif
