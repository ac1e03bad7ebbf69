// SPDX-License-Identifier: MIT
// Where the windows are, kept from one run of an interface to the next.
#ifndef PANDREL_VIEW_PLACES_H
#define PANDREL_VIEW_PLACES_H

#include <filesystem>

#include "view_windows.h"

namespace view {

// Writes which windows are shown, and where, to the file.
void SavePlaces(const Windows& windows, const std::filesystem::path& file);

// Shows the windows that were shown, where they were, and windows that the file does not name as
// the module says. Returns false when there is no such file.
bool RestorePlaces(const Windows& windows, const std::filesystem::path& file);

}  // namespace view

#endif
