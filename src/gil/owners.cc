// SPDX-License-Identifier: MIT
// Owner resolution: from the parser's flat list to a forest.
#include <cstdio>

#include "gil/object.h"
#include "gil/tokens.h"
#include "osi/arena.h"
#include "osi/by_text.h"
#include "osi/strings.h"

Obj* resolveChildren(Obj* objects) {
  // By name, the first object of the flat list that has it. The name of an object without one
  // counts as empty.
  ByText<Obj*, ArenaMemory> by_name;
  for (Obj* obj = objects; obj; obj = obj->next) {
    obj->allNext = obj->next;
    obj->name = AttrText(obj->attrs, NAME);
    by_name.try_emplace(OsiView(obj->name), obj);
  }

  // The list is in reverse file order and every insertion is at the front, so all lists end up in
  // file order.
  Obj* top = nullptr;
  for (Obj* obj = objects; obj; obj = obj->allNext) {
    Obj** siblings = &top;
    if (const char* name = AttrText(obj->attrs, OWNER)) {
      const auto owner = by_name.find(name);
      if (owner != by_name.end()) {
        siblings = &owner->second->children;
      } else {
        std::fprintf(stderr, "Cannot find owner %s, ignoring...\n", name);
      }
    }
    obj->next = *siblings;
    *siblings = obj;
  }
  return top;
}
