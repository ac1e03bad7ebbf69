// SPDX-License-Identifier: MIT
#include "uilfix/values.h"

#include "uilfix/references.h"

namespace uilfix {

void ForEachValue(Module& module, const std::function<void(const ValuePlace&)>& visit) {
  ForEachObject(module, [&](Object& object) {
    ForEachEntry<Argument>(object, [&](Argument& argument) {
      if (IsWidgetReference(argument.resource)) return;
      visit({argument.value, argument.line, argument.resource + " of " + object.name,
             object.IsComment()});
    });
    ForEachEntry<Callback>(object, [&](Callback& callback) {
      for (Call& call : callback.calls) {
        if (CallTarget(call)) continue;
        visit({call.argument, call.line, "argument of " + call.procedure + " in " + object.name,
               object.IsComment()});
      }
    });
  });
}

}  // namespace uilfix
