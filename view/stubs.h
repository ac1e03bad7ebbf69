// SPDX-License-Identifier: MIT
// Stands in for the application's procedures, which this program does not have: each prints its
// call.
#ifndef PANDREL_VIEW_STUBS_H
#define PANDREL_VIEW_STUBS_H

#include <Xm/Xm.h>

#include <cstddef>
#include <string>

namespace view {

// How many different procedures there can be.
inline constexpr std::size_t kMaxStubs = 1024;

// A procedure that prints "widget: XmNreasonCallback -> name" on standard output when it is called;
// null when kMaxStubs are in use. The same name gives the same procedure.
XtCallbackProc StubFor(const std::string& name);

// The callback resource of a reason, "XmNactivateCallback" for XmCR_ACTIVATE; "reason NUMBER" for
// an unknown one.
std::string ReasonName(int reason);

}  // namespace view

#endif
