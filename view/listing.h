// SPDX-License-Identifier: MIT
// The widget tree as text.
#ifndef PANDREL_VIEW_LISTING_H
#define PANDREL_VIEW_LISTING_H

#include <ostream>

#include "view_windows.h"

namespace view {

// Shows each window in turn and prints its widgets, one per line, indented by depth:
//   name: Class WIDTHxHEIGHT+X+Y label="..." insensitive
// The place is that of the widget's upper left corner in its window (menu items: in their menu).
// What is said after it, where it applies: title, label, value, items, set, unmanaged, unmapped,
// insensitive.
void ListWidgets(const Windows& windows, std::ostream& out);

// The same for the windows that are on the screen, as they are.
void ListShownWidgets(const Windows& windows, std::ostream& out);

}  // namespace view

#endif
