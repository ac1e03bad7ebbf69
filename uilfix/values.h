// SPDX-License-Identifier: MIT
// Walking over every text of a module that may hold string literals.
#ifndef PANDREL_UILFIX_VALUES_H
#define PANDREL_UILFIX_VALUES_H

#include <functional>
#include <string>
#include <string_view>

#include "uilfix/module.h"

namespace uilfix {

// A value with where it stands.
struct ValuePlace {
  std::string& value;
  int line;
  std::string what;  // "XmNlabelString of button1", "argument of ZoHelpCB in button1"
  bool comment;      // in a commented shell block
};

// Calls `visit` for the value of every argument and the argument of every call. Those that name a
// widget are left out: a name that the GIL file quoted looks like a literal and is none.
void ForEachValue(Module& module, const std::function<void(const ValuePlace&)>& visit);

}  // namespace uilfix

#endif
