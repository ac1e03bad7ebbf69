// SPDX-License-Identifier: MIT
// Two widgets of one name: the compiler refuses the second.
#include <string>
#include <string_view>
#include <unordered_set>

#include "uilfix/renamer.h"
#include "uilfix/rewrites.h"

namespace uilfix {

void FixDuplicates(Module& module, Report& report) {
  std::unordered_set<std::string_view> seen;  // the first of a name keeps it
  seen.reserve(module.items.size());
  Renamer renamer(module);
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment() || seen.insert(object.name).second) return;
    const std::string old = object.name;
    renamer.Rename(object, "", false);
    report.Add(object.line,
               "widget " + old + " is now " + object.name + ": an earlier one has that name");
  });
}

}  // namespace uilfix
