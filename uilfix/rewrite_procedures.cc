// SPDX-License-Identifier: MIT
// Without the builder's run-time library a procedure named like a widget is declared with a capital
// letter, but only one of the texts that call it changes; and two procedures may come to one name.
#include <algorithm>
#include <cctype>
#include <set>

#include "uilfix/rewrites.h"

namespace uilfix {
namespace {

// The declared names, each declared once from here on.
std::set<std::string> TakeDeclarations(Module& module, Report& report) {
  std::set<std::string> declared;
  std::erase_if(module.items, [&](const Item& item) {
    const auto* declaration = std::get_if<Declaration>(&item);
    if (!declaration || declared.insert(declaration->name).second) return false;
    report.Add(declaration->line,
               "procedure " + declaration->name + ": second declaration left out");
    return true;
  });
  return declared;
}

}  // namespace

void FixProcedures(Module& module, Report& report) {
  const std::set<std::string> declared = TakeDeclarations(module, report);
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment()) return;
    ForEachEntry<Callback>(object, [&](Callback& callback) {
      for (Call& call : callback.calls) {
        if (call.procedure.empty() || declared.contains(call.procedure)) continue;
        std::string capital = call.procedure;
        capital[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(capital[0])));
        if (!declared.contains(capital)) continue;
        report.Add(call.line, "call of " + call.procedure + " in " + object.name + " is now " +
                                  capital + ", as declared");
        call.procedure = capital;
      }
    });
  });
}

}  // namespace uilfix
