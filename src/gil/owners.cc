// SPDX-License-Identifier: MIT
// Owner resolution: from the parser's flat list to a forest.
#include <cstddef>
#include <cstdio>
#include <vector>

#include "gil/object.h"
#include "osi/huge_pages.h"
#include "osi/strings.h"
#include "osi/text_map.h"

// So many objects ahead of the one in hand, the next are asked for: the objects of a large file are
// all over the memory, and lists do not tell in time where.
static constexpr std::size_t kAhead = 8;

using ObjList = std::vector<Obj*, HugePageAllocator<Obj*>>;

// Calls Handle(obj) for each object, in order.
template <typename Handler>
static void ForEach(const ObjList& objects, Handler Handle) {
  for (std::size_t i = 0; i < objects.size(); ++i) {
    if (i + 2 * kAhead < objects.size()) __builtin_prefetch(objects[i + 2 * kAhead]);
    if (i + kAhead < objects.size()) {
      __builtin_prefetch(objects[i + kAhead]->name);
      __builtin_prefetch(objects[i + kAhead]->owner);
    }
    Handle(objects[i]);
  }
}

Obj* resolveChildren(Obj* first) {
  ObjList objects;
  for (Obj* obj = first; obj; obj = obj->next) {
    obj->allNext = obj->next;
    objects.push_back(obj);
  }

  // By name, the first object of the flat list that has it. Objects without a name count as named
  // by the empty text.
  TextMap<Obj*> by_name;
  by_name.reserve(objects.size());
  ForEach(objects, [&](Obj* obj) { by_name.emplace(obj->name, obj); });

  // The list is in reverse file order and every insertion is at the front, so all lists end up in
  // file order.
  Obj* top = nullptr;
  const char* last_owner = nullptr;
  Obj** last_siblings = nullptr;
  ForEach(objects, [&](Obj* obj) {
    Obj** siblings = &top;
    if (obj->owner && last_siblings && OsiStrcmp(obj->owner, last_owner) == 0) {
      siblings = last_siblings;  // children of one owner stand side by side
    } else if (obj->owner) {
      const auto owner = by_name.find(obj->owner);
      if (owner != by_name.end()) {
        siblings = &owner->second->children;
        last_owner = obj->owner;
        last_siblings = siblings;
      } else {
        std::fprintf(stderr, "Cannot find owner %s, ignoring...\n", obj->owner);
      }
    }
    obj->next = *siblings;
    *siblings = obj;
  });
  return top;
}
