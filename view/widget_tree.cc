// SPDX-License-Identifier: MIT
#include "widget_tree.h"

#include <X11/IntrinsicP.h>
#include <Xm/RowColumn.h>

namespace view {

std::vector<Widget> ChildrenOf(Widget widget) {
  std::vector<Widget> children;
  if (XtIsComposite(widget)) {
    WidgetList list = nullptr;
    Cardinal count = 0;
    XtVaGetValues(widget, XmNchildren, &list, XmNnumChildren, &count, nullptr);
    children.assign(list, list + count);
  }
  // The list of popup shells is no resource. Gadgets, which are no widgets, have none.
  if (XtIsWidget(widget)) {
    children.insert(children.end(), widget->core.popup_list,
                    widget->core.popup_list + widget->core.num_popups);
  }
  return children;
}

void WalkWidgets(Widget widget, const std::function<void(Widget)>& visit) {
  visit(widget);
  for (Widget child : ChildrenOf(widget)) WalkWidgets(child, visit);
}

bool IsPopupMenu(Widget widget) {
  if (!XmIsRowColumn(widget)) return false;
  unsigned char type = XmWORK_AREA;
  XtVaGetValues(widget, XmNrowColumnType, &type, nullptr);
  return type == XmMENU_POPUP;
}

Widget ShellOf(Widget widget) {
  while (widget && !XtIsShell(widget)) widget = XtParent(widget);
  return widget;
}

}  // namespace view
