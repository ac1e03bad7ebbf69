// SPDX-License-Identifier: MIT
// The module's windows on the screen: one shell per shell comment, its contents fetched from the
// compiled module.
#ifndef PANDREL_VIEW_VIEW_WINDOWS_H
#define PANDREL_VIEW_VIEW_WINDOWS_H

#include <Mrm/MrmPublic.h>
#include <Xm/Xm.h>

#include <string>
#include <vector>

#include "shells.h"
#include "toolkit.h"

namespace view {

struct Window {
  Shell plan;
  Widget shell = nullptr;
  std::vector<Widget> work;  // its work area, in the order of the plan
};

struct Windows {
  Toolkit toolkit;
  std::vector<Window> windows;  // base windows first, then dialogs
};

// Makes the windows of `plans` and fetches their contents. Nothing is shown yet. `windows` has its
// toolkit set, and must stay where it is as long as events are handled. Returns whether every
// widget could be fetched; those that could not are reported on standard error.
bool MakeWindows(Windows& windows, MrmHierarchy hierarchy, std::vector<Shell> plans);

// Shows and hides a window or dialog. A dialog is shown by managing its work area.
void ShowWindow(const Window& window);
void HideWindow(const Window& window);
bool IsShown(const Window& window);

// Whether the module shows the window at start: it is neither hidden nor unmanaged there.
bool IsShownAtStart(const Window& window);

// Ends the toolkit's loop when no window is shown any more. `windows` must stay where it is.
void EndWithLastWindow(Windows& windows);

}  // namespace view

#endif
