// SPDX-License-Identifier: MIT
#include "uilfix/values.h"

#include "uilfix/references.h"

namespace uilfix {
namespace {

bool MayHoldLiteral(const std::string& text) { return text.find('"') != std::string::npos; }

}  // namespace

std::string ValuePlace::What() const {
  return (call ? "argument of " + entry + " in " : entry + " of ") + object.name;
}

void ForEachValue(Module& module, const std::function<void(const ValuePlace&)>& visit) {
  ForEachObject(module, [&](Object& object) {
    const bool comment = object.IsComment();
    ForEachEntry<Argument>(object, [&](Argument& argument) {
      if (!MayHoldLiteral(argument.value) || IsWidgetReference(argument.resource)) return;
      visit({argument.value, argument.line, comment, object, argument.resource, false});
    });
    ForEachEntry<Callback>(object, [&](Callback& callback) {
      for (Call& call : callback.calls) {
        if (!MayHoldLiteral(call.argument) || CallTarget(call)) continue;
        visit({call.argument, call.line, comment, object, call.procedure, true});
      }
    });
  });
}

}  // namespace uilfix
