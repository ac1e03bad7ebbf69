// SPDX-License-Identifier: MIT
// Owner resolution: from the parser's flat list to a forest.
#include <cstddef>
#include <cstdio>

#include "gil/object.h"
#include "osi/text_map.h"

Obj* resolveChildren(Obj* objects) {
  // By name, the first object of the flat list that has it. Objects without a name count as named
  // by the empty text.
  TextMap<Obj*> by_name;
  std::size_t count = 0;
  for (const Obj* obj = objects; obj; obj = obj->next) ++count;
  by_name.reserve(count);
  for (Obj* obj = objects; obj; obj = obj->next) {
    obj->allNext = obj->next;
    by_name.emplace(obj->name, obj);
  }

  // The list is in reverse file order and every insertion is at the front, so all lists end up in
  // file order.
  Obj* top = nullptr;
  for (Obj* obj = objects; obj; obj = obj->allNext) {
    Obj** siblings = &top;
    if (const char* owner_name = obj->owner) {
      const auto owner = by_name.find(owner_name);
      if (owner != by_name.end()) {
        siblings = &owner->second->children;
      } else {
        std::fprintf(stderr, "Cannot find owner %s, ignoring...\n", owner_name);
      }
    }
    obj->next = *siblings;
    *siblings = obj;
  }
  return top;
}
