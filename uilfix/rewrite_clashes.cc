// SPDX-License-Identifier: MIT
// Widgets and procedures share one name space. The widget gives way, because the program that uses
// the module registers its procedures by name.
#include <set>

#include "uilfix/name_pool.h"
#include "uilfix/references.h"
#include "uilfix/rewrites.h"

namespace uilfix {

void FixClashes(Module& module, Report& report) {
  std::set<std::string> procedures;
  for (const Item& item : module.items) {
    if (const auto* declaration = std::get_if<Declaration>(&item)) {
      procedures.insert(declaration->name);
    }
  }
  NamePool pool(module);
  References references(module);
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment() || !procedures.contains(object.name)) return;
    const std::string old = object.name;
    references.Rename(object, pool.Make(old, "_widget", true));
    report.Add(object.line,
               "widget " + old + " is now " + object.name + ": a procedure has that name");
  });
}

}  // namespace uilfix
