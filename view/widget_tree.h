// SPDX-License-Identifier: MIT
// Walking over live widgets.
#ifndef PANDREL_VIEW_WIDGET_TREE_H
#define PANDREL_VIEW_WIDGET_TREE_H

#include <Xm/Xm.h>

#include <functional>
#include <string>
#include <vector>

namespace view {

// The children of a widget, then the shells that pop up from it.
std::vector<Widget> ChildrenOf(Widget widget);

// Calls `visit` for the widget and all below it, parents first.
void WalkWidgets(Widget widget, const std::function<void(Widget)>& visit);

// Whether the widget is a popup menu (the row-column itself, not its shell).
bool IsPopupMenu(Widget widget);

// The shell that the widget lies in.
Widget ShellOf(Widget widget);

}  // namespace view

#endif
