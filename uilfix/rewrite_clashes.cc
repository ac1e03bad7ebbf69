// SPDX-License-Identifier: MIT
// The compiler knows one thing by each name, whether widget or procedure.
#include <unordered_set>

#include "uilfix/renamer.h"
#include "uilfix/rewrites.h"

namespace uilfix {

void FixClashes(Module& module, Report& report) {
  std::unordered_set<std::string> procedures;
  for (const Item& item : module.items) {
    if (const auto* declaration = std::get_if<Declaration>(&item)) {
      procedures.insert(declaration->name);
    }
  }
  Renamer renamer(module);
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment() || !procedures.contains(object.name)) return;
    const std::string old = object.name;
    renamer.Rename(object, "_widget", true);
    report.Add(object.line,
               "widget " + old + " is now " + object.name + ": a procedure has that name");
  });
}

}  // namespace uilfix
