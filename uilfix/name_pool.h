// SPDX-License-Identifier: MIT
// New names for widgets and procedures: names that the compiler accepts and that nothing else has.
#ifndef PANDREL_UILFIX_NAME_POOL_H
#define PANDREL_UILFIX_NAME_POOL_H

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "uilfix/module.h"

namespace uilfix {

class NamePool {
 public:
  // Knows every name that the module defines, declares or calls, commented shells included.
  explicit NamePool(const Module& module);

  bool Has(const std::string& name) const { return used_.contains(name); }

  // A name made from `base`, entered in the pool: `base` with what cannot stand in a name turned to
  // "_", `suffix` when that is a reserved word or `suffix_always`, cut to the compiler's length,
  // and numbered when taken.
  std::string Make(std::string_view base, std::string_view suffix, bool suffix_always);

 private:
  std::unordered_set<std::string> used_;
  std::unordered_map<std::string, int> last_number_;  // by the name without a number
};

}  // namespace uilfix

#endif
