// SPDX-License-Identifier: MIT
#include "popup_menus.h"

#include <Xm/RowColumn.h>

#include <map>

#include "widget_tree.h"

namespace view {
namespace {

void Post(Widget, XtPointer menu, XEvent* event, Boolean* go_on) {
  if (event->xbutton.button != Button3) return;
  auto* widget = static_cast<Widget>(menu);
  XmMenuPosition(widget, &event->xbutton);
  XtManageChild(widget);
  *go_on = False;
}

// The popup menus of a window by the widget they belong to, the parent of their menu shell. One
// that has several keeps the first.
std::map<Widget, Widget> MenusByParent(const Window& window) {
  std::map<Widget, Widget> menus;
  WalkWidgets(window.shell, [&](Widget widget) {
    if (IsPopupMenu(widget)) menus.emplace(XtParent(XtParent(widget)), widget);
  });
  return menus;
}

// The menu of the nearest widget that has one, from `widget` upwards within its shell.
Widget NearestMenu(const std::map<Widget, Widget>& menus, Widget widget) {
  for (; widget; widget = XtParent(widget)) {
    const auto found = menus.find(widget);
    if (found != menus.end()) return found->second;
    if (XtIsShell(widget)) break;
  }
  return nullptr;
}

}  // namespace

// Builder 2.5 modules hang the menu of a drawing area on the board around it, so the widgets below
// the parent post it as well; events that they take for themselves never reach the parent.
void PostPopupMenus(const Windows& windows) {
  for (const Window& window : windows.windows) {
    const auto menus = MenusByParent(window);
    WalkWidgets(window.shell, [&](Widget widget) {
      if (!XtIsWidget(widget) || XtIsShell(widget)) return;
      if (Widget menu = NearestMenu(menus, widget)) {
        XtAddEventHandler(widget, ButtonPressMask, False, Post, menu);
      }
    });
  }
}

}  // namespace view
