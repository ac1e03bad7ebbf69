// SPDX-License-Identifier: MIT
// Builder 2.5 names may end in a letter where the GIL name ends in a digit, and the name so made
// may be another widget's. Which of the two an argument means cannot be told from the module; the
// first keeps the name and the references by name.
#include <set>

#include "uilfix/name_pool.h"
#include "uilfix/references.h"
#include "uilfix/rewrites.h"

namespace uilfix {

void FixDuplicates(Module& module, Report& report) {
  std::set<std::string> seen;
  NamePool pool(module);
  References references(module);
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment() || seen.insert(object.name).second) return;
    const std::string old = object.name;
    references.Rename(object, pool.Make(old, "", false));
    report.Add(object.line,
               "widget " + old + " is now " + object.name + ": an earlier one has that name");
  });
}

}  // namespace uilfix
