// SPDX-License-Identifier: MIT
// Owner resolution: from the parser's flat list to a forest.
#include <cstdio>
#include <string_view>
#include <unordered_map>

#include "gil/object.h"
#include "gil/tokens.h"
#include "osi/strings.h"

// The text of the first attribute of that name, without consuming it; null when there is none or
// when it is no string.
static char* AttrText(const Obj* obj, int32_t name) {
  for (const Attr* attr = obj->attrs; attr; attr = attr->next) {
    if (attr->name == name) return attr->value ? attr->value->sval : nullptr;
  }
  return nullptr;
}

Obj* resolveChildren(Obj* objects) {
  // By name, the first object of the flat list that has it. Objects without a name count as named
  // by the empty text.
  std::unordered_map<std::string_view, Obj*> by_name;
  for (Obj* obj = objects; obj; obj = obj->next) {
    obj->allNext = obj->next;
    obj->name = AttrText(obj, NAME);
    by_name.emplace(obj->name ? obj->name : "", obj);
  }

  // The list is in reverse file order and every insertion is at the front, so all lists end up in
  // file order.
  Obj* top = nullptr;
  for (Obj* obj = objects; obj; obj = obj->allNext) {
    Obj** siblings = &top;
    if (const char* owner_name = AttrText(obj, OWNER)) {
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
