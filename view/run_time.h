// SPDX-License-Identifier: MIT
// The procedures that a module calls without its application having them: the builder's run-time
// library, which shows, hides, enables and disables widgets, checks numbers and shows help.
#ifndef PANDREL_VIEW_RUN_TIME_H
#define PANDREL_VIEW_RUN_TIME_H

#include <string>

#include "view_windows.h"

namespace view {

// The windows in which the procedures look for widgets. They must outlive every event.
void SetRunTimeWindows(const Windows& windows);

// The procedure of this name, for MrmRegisterNames; null when it is none of the library's.
XtCallbackProc RunTimeProcedure(const std::string& name);

}  // namespace view

#endif
