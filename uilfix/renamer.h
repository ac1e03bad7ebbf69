// SPDX-License-Identifier: MIT
// Gives widgets new names, everywhere in a module. Most modules need none, so the first new name is
// what gathers all names.
#ifndef PANDREL_UILFIX_RENAMER_H
#define PANDREL_UILFIX_RENAMER_H

#include <optional>
#include <string>
#include <string_view>

#include "uilfix/name_pool.h"
#include "uilfix/references.h"

namespace uilfix {

class Renamer {
 public:
  // The module must outlive this, keep its objects and entries where they are, and get its new
  // names from nobody else.
  explicit Renamer(Module& module) : module_(module) {}

  // Names the object after its old name; see NamePool::Make.
  void Rename(Object& object, std::string_view suffix, bool suffix_always) {
    if (!references_) references_.emplace(module_);
    references_->Rename(object, NewName(object.name, suffix, suffix_always));
  }

  // A name that nothing has, for something else than a widget or for a new one.
  std::string NewName(std::string_view base, std::string_view suffix, bool suffix_always) {
    if (!pool_) pool_.emplace(module_);
    return pool_->Make(base, suffix, suffix_always);
  }

 private:
  Module& module_;
  std::optional<NamePool> pool_;
  std::optional<References> references_;
};

}  // namespace uilfix

#endif
