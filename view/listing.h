// SPDX-License-Identifier: MIT
// The widget tree as text.
#ifndef PANDREL_VIEW_LISTING_H
#define PANDREL_VIEW_LISTING_H

#include <ostream>

#include "view_windows.h"

namespace view {

// Prints the widgets of a window that is shown, one per line, indented by depth:
//   name: Class WIDTHxHEIGHT+X+Y label="..." insensitive
// The place is that of the widget's upper left corner in its window (menu items: in their menu).
// The words after it, where they apply: title, label, value, items, set, unmanaged, unmapped,
// insensitive.
void ListWindow(const Window& window, std::ostream& out);

// The same for all windows that are on the screen, as they are.
void ListShownWidgets(const Windows& windows, std::ostream& out);

}  // namespace view

#endif
