// SPDX-License-Identifier: MIT
// Posts popup menus on the menu button: modules do not ask for it, and Motif does not do it by
// itself.
#ifndef PANDREL_VIEW_POPUP_MENUS_H
#define PANDREL_VIEW_POPUP_MENUS_H

#include "view_windows.h"

namespace view {

// Posts every popup menu when button 3 goes down over its parent or a widget inside of that.
void PostPopupMenus(const Windows& windows);

}  // namespace view

#endif
