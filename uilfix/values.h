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
  bool comment;  // in a commented shell block
  const Object& object;
  const std::string& entry;  // the argument's resource or the call's procedure
  bool call;

  // "XmNlabelString of button1", "argument of ZoHelpCB in button1"
  std::string What() const;
};

// Calls `visit` for the value of every argument and the argument of every call that may hold a
// literal. Those that name a widget are left out: a name that the GIL file quoted looks like a
// literal and is none.
void ForEachValue(Module& module, const std::function<void(const ValuePlace&)>& visit);

}  // namespace uilfix

#endif
