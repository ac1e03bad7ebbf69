// SPDX-License-Identifier: MIT
// Popup menus come up on the menu button. Nothing in a module says so, and Motif does not do it by
// itself.
#ifndef PANDREL_VIEW_POPUP_MENUS_H
#define PANDREL_VIEW_POPUP_MENUS_H

#include "view_windows.h"

namespace view {

// Lets every popup menu post when button 3 goes down over its parent or a widget inside of that.
void PostPopupMenus(const Windows& windows);

}  // namespace view

#endif
