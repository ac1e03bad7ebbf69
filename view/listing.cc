// SPDX-License-Identifier: MIT
#include "listing.h"

#include <X11/IntrinsicP.h>
#include <Xm/CascadeBG.h>
#include <Xm/Label.h>
#include <Xm/LabelG.h>
#include <Xm/List.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>

#include "geometry_text.h"
#include "label_text.h"
#include "widget_tree.h"

namespace view {
namespace {

// Bytes that end a line or a quotation are escaped, so that a widget takes one line.
std::string Quoted(const char* text) {
  std::string quoted = "\"";
  for (; text && *text; ++text) {
    if (*text == '\n') {
      quoted += "\\n";
      continue;
    }
    if (*text == '"' || *text == '\\') quoted += '\\';
    quoted += *text;
  }
  return quoted + '"';
}

std::string LabelText(Widget widget) {
  unsigned char type = XmSTRING;
  XtVaGetValues(widget, XmNlabelType, &type, nullptr);
  return type == XmSTRING ? " label=" + Quoted(LabelString(widget).c_str()) : " pixmap";
}

std::string Contents(Widget widget) {
  if (XmIsLabel(widget) || XmIsLabelGadget(widget)) {
    const bool set = XmIsToggleButton(widget) && XmToggleButtonGetState(widget);
    return LabelText(widget) + (set ? " set" : "");
  }
  if (XmIsText(widget)) return " value=" + Quoted(ToolkitText(XmTextGetString(widget)).get());
  if (XmIsTextField(widget))
    return " value=" + Quoted(ToolkitText(XmTextFieldGetString(widget)).get());
  if (XmIsList(widget)) {
    int count = 0;
    XtVaGetValues(widget, XmNitemCount, &count, nullptr);
    return " items=" + std::to_string(count);
  }
  return "";
}

std::string State(Widget widget) {
  std::string state;
  if (!XtIsManaged(widget)) state += " unmanaged";
  Boolean mapped = True;
  if (XtIsWidget(widget)) XtVaGetValues(widget, XmNmappedWhenManaged, &mapped, nullptr);
  if (!mapped) state += " unmapped";
  if (!XtIsSensitive(widget)) state += " insensitive";
  return state;
}

std::string Geometry(Widget widget, int x, int y) {
  Dimension width = 0;
  Dimension height = 0;
  XtVaGetValues(widget, XmNwidth, &width, XmNheight, &height, nullptr);
  return SizeText(width, height) + PlaceText(x, y);
}

// `x` and `y` are the place of the parent's corner in the window.
void ListBelow(Widget widget, int depth, int x, int y, std::ostream& out) {
  Position own_x = 0;
  Position own_y = 0;
  XtVaGetValues(widget, XmNx, &own_x, XmNy, &own_y, nullptr);
  const bool shell = XtIsShell(widget);
  // A widget that fills a shell may report the shell's place on the screen as its own.
  const bool corner = shell || XtIsShell(XtParent(widget));
  x = corner ? 0 : x + own_x;
  y = corner ? 0 : y + own_y;
  // Motif makes the shell of a menu; it belongs to no object of the module.
  const bool menu_shell = shell && depth > 0;
  if (!menu_shell) {
    out << std::string(static_cast<std::size_t>(depth) * 2, ' ') << XtName(widget) << ": "
        << XtClass(widget)->core_class.class_name << " " << Geometry(widget, x, y);
    if (shell) {
      char* title = nullptr;
      XtVaGetValues(widget, XmNtitle, &title, nullptr);
      out << " title=" << Quoted(title);
    } else {
      out << Contents(widget) << State(widget);
    }
    out << "\n";
  }
  for (Widget child : ChildrenOf(widget)) {
    // A dialog is a window of its own.
    const bool dialog = XtIsShell(child) && !XtIsSubclass(child, overrideShellWidgetClass);
    if (!dialog) ListBelow(child, menu_shell ? depth : depth + 1, x, y, out);
  }
}

}  // namespace

void ListWindow(const Window& window, std::ostream& out) { ListBelow(window.shell, 0, 0, 0, out); }

void ListShownWidgets(const Windows& windows, std::ostream& out) {
  for (const Window& window : windows.windows) {
    if (IsShown(window)) ListWindow(window, out);
  }
}

}  // namespace view
