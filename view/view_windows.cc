// SPDX-License-Identifier: MIT
#include "view_windows.h"

#include <X11/IntrinsicP.h>
#include <X11/ShellP.h>
#include <Xm/AtomMgr.h>
#include <Xm/DialogS.h>
#include <Xm/Protocols.h>

#include <algorithm>
#include <iostream>

#include "program_name.h"
#include "widget_tree.h"
#include "zo.h"

namespace view {
namespace {

// A window without contents and without a size cannot be realised.
constexpr Dimension kEmptyWidth = 200;
constexpr Dimension kEmptyHeight = 100;

// The pointer that the toolkit's functions want where they do not write.
char* Mutable(const std::string& text) { return const_cast<char*>(text.c_str()); }

// How long no window must be on the screen before the program ends: a procedure that hides one
// window and shows another leaves a moment without any.
constexpr unsigned long kNoWindowMs = 100;

void EndWithoutWindows(XtPointer closure, XtIntervalId*) {
  const auto* windows = static_cast<Windows*>(closure);
  if (std::none_of(windows->windows.begin(), windows->windows.end(), IsShown)) {
    XtAppSetExitFlag(windows->toolkit.app);
  }
}

void NoticeHiding(Widget, XtPointer closure, XtPointer) {
  XtAppAddTimeOut(static_cast<Windows*>(closure)->toolkit.app, kNoWindowMs, EndWithoutWindows,
                  closure);
}

// The last base window takes its dialogs along.
void CloseWindow(Widget shell, XtPointer closure, XtPointer) {
  auto* windows = static_cast<Windows*>(closure);
  XtPopdown(shell);
  for (const Window& window : windows->windows) {
    if (!window.plan.dialog && IsShown(window)) return;
  }
  XtAppSetExitFlag(windows->toolkit.app);
}

// Whether the class of the widget has the resource: the module gives a shell all that the GIL
// window had, also a foreground.
bool HasResource(Widget widget, const std::string& name) {
  XtResourceList list = nullptr;
  Cardinal count = 0;
  XtGetResourceList(XtClass(widget), &list, &count);
  const bool has = std::any_of(list, list + count,
                               [&](const XtResource& row) { return row.resource_name == name; });
  XtFree(reinterpret_cast<char*>(list));
  return has;
}

// Whether the display knows the colour. For an unknown one the toolkit would name the class but not
// the window; missing_parts.h does.
bool KnowsColor(Widget shell, const std::string& color) {
  XColor parsed;
  Colormap map = DefaultColormapOfScreen(XtScreen(shell));
  return XParseColor(XtDisplay(shell), map, color.c_str(), &parsed) != 0;
}

void SetResources(const Shell& plan, Widget shell) {
  for (const auto& [name, value] : plan.resources) {
    if (!HasResource(shell, name)) continue;
    if (name == "background" && !KnowsColor(shell, value)) continue;
    XtVaSetValues(shell, XtVaTypedArg, Mutable(name), XtRString, Mutable(value),
                  static_cast<int>(value.size() + 1), nullptr);
  }
  if (!plan.title.empty()) {
    XtVaSetValues(shell, XmNtitle, Mutable(plan.title), XmNiconName, Mutable(plan.title), nullptr);
  }
  if (plan.iconic && !plan.dialog) XtVaSetValues(shell, XmNiconic, True, nullptr);
  if (plan.insensitive) XtSetSensitive(shell, False);
}

Widget MakeBaseShell(const Toolkit& toolkit, const Shell& plan) {
  Widget shell = XtVaAppCreateShell(plan.name.c_str(), "PandrelView", topLevelShellWidgetClass,
                                    toolkit.display, XmNdeleteResponse, XmDO_NOTHING,
                                    XmNmappedWhenManaged, False, nullptr);
  SetResources(plan, shell);
  return shell;
}

// The dialog's shell under its owner, which is where the window manager keeps it.
Widget MakeDialogShell(const Windows& windows, const Shell& plan) {
  Widget owner = nullptr;
  for (const Window& window : windows.windows) {
    if (!window.plan.dialog && (!owner || window.plan.name == plan.owner)) owner = window.shell;
  }
  if (!owner) {
    owner = XtVaAppCreateShell("owner", "PandrelView", topLevelShellWidgetClass,
                               windows.toolkit.display, XmNmappedWhenManaged, False, XmNwidth, 1,
                               XmNheight, 1, nullptr);
    XtRealizeWidget(owner);
  }
  Widget shell = XmCreateDialogShell(owner, Mutable(plan.name), nullptr, 0);
  SetResources(plan, shell);
  return shell;
}

Widget Fetch(MrmHierarchy hierarchy, const std::string& name, Widget parent) {
  Widget widget = nullptr;
  MrmType type = 0;
  const Cardinal status = MrmFetchWidget(hierarchy, Mutable(name), parent, &widget, &type);
  return status == MrmSUCCESS ? widget : nullptr;
}

// Fetches the work area and popup menus of a window. Returns whether all were there.
bool Fill(MrmHierarchy hierarchy, Window& window) {
  bool all = true;
  const auto fetch = [&](const std::string& name, Widget parent) {
    Widget widget = Fetch(hierarchy, name, parent);
    if (!widget) {
      std::cerr << kProgram << ": widget " << name << " of window " << window.plan.name
                << " is not in the module\n";
      all = false;
    }
    return widget;
  };
  for (const ShellChild& child : window.plan.work) {
    if (Widget widget = fetch(child.name, window.shell)) window.work.push_back(widget);
  }
  Widget menu_parent = window.work.empty() ? window.shell : window.work.front();
  for (const ShellChild& menu : window.plan.popups) fetch(menu.name, menu_parent);
  return all;
}

void FinishBaseWindow(Windows& windows, const Window& window) {
  for (std::size_t i = 0; i < window.work.size(); ++i) {
    if (window.plan.work[i].managed) XtManageChild(window.work[i]);
  }
  Dimension width = 0;
  Dimension height = 0;
  XtVaGetValues(window.shell, XmNwidth, &width, XmNheight, &height, nullptr);
  if (window.work.empty() && (width == 0 || height == 0)) {
    XtVaSetValues(window.shell, XmNwidth, kEmptyWidth, XmNheight, kEmptyHeight, nullptr);
  }
  const Atom close = XmInternAtom(windows.toolkit.display, Mutable("WM_DELETE_WINDOW"), False);
  XmAddWMProtocolCallback(window.shell, close, CloseWindow, &windows);
}

// A popup menu that the module has managed would be posted in the corner of the screen.
void UnpostMenus(const Window& window) {
  WalkWidgets(window.shell, [](Widget widget) {
    if (IsPopupMenu(widget) && XtIsManaged(widget)) XtUnmanageChild(widget);
  });
}

}  // namespace

bool MakeWindows(Windows& windows, MrmHierarchy hierarchy, std::vector<Shell> plans) {
  std::stable_partition(plans.begin(), plans.end(), [](const Shell& plan) { return !plan.dialog; });
  bool all = true;
  for (const Shell& plan : plans) {
    Window window;
    window.plan = plan;
    window.shell =
        plan.dialog ? MakeDialogShell(windows, plan) : MakeBaseShell(windows.toolkit, plan);
    all &= Fill(hierarchy, window);
    UnpostMenus(window);
    if (!plan.dialog) FinishBaseWindow(windows, window);
    windows.windows.push_back(std::move(window));
  }
  return all;
}

void ShowWindow(const Window& window) { ZoShow(window.shell); }

void HideWindow(const Window& window) { ZoHide(window.shell); }

bool IsShown(const Window& window) {
  if (window.plan.dialog) return !window.work.empty() && XtIsManaged(window.work.front());
  // A window that is an icon is shown.
  return reinterpret_cast<ShellWidget>(window.shell)->shell.popped_up != False;
}

bool IsShownAtStart(const Window& window) {
  const bool unmanaged =
      window.plan.dialog && !window.plan.work.empty() && !window.plan.work.front().managed;
  return !window.plan.hidden && !unmanaged;
}

void EndWithLastWindow(Windows& windows) {
  for (const Window& window : windows.windows) {
    XtAddCallback(window.shell, XmNpopdownCallback, NoticeHiding, &windows);
    if (window.plan.dialog && !window.work.empty()) {
      XtAddCallback(window.work.front(), XmNunmapCallback, NoticeHiding, &windows);
    }
  }
}

}  // namespace view
