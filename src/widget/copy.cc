// SPDX-License-Identifier: MIT
#include "widget/copy.h"

#include <unordered_set>

#include "widget/known_names.h"
#include "widget/links.h"
#include "widget/tree.h"

Widg* CopyWidg(Widg* widg) {
  Widg* copy = MakeWidg(widg->class_name, widg->gil_name);
  NamesRenamed(widg, copy->gil_name);  // MakeWidg may have changed the original's in place
  copy->callbacks = widg->callbacks;
  copy->resources = widg->resources;
  copy->actions = widg->actions;
  copy->managed = widg->managed;
  copy->wrapped = widg->wrapped;
  copy->generated = widg->generated;
  copy->extra_width = widg->extra_width;
  copy->extra_height = widg->extra_height;
  return copy;
}

// Bare copies of a list.
static Widg* CopySiblings(Widg* first) {
  Widg* copies = nullptr;
  Widg** end = &copies;
  for (Widg* widg = first; widg; widg = widg->next) {
    *end = CopyWidg(widg);
    end = &(*end)->next;
  }
  return copies;
}

// Copies what is below `widg` under its copy, level by level. Stops at a widget that lies below
// itself when it comes to that widget again: the copy would have no end.
static void CopyDescendants(Widg* widg, Widg* copy) {
  std::unordered_set<const Widg*> copied;
  while (widg->child && copied.insert(widg).second) {
    SetChildren(copy, CopySiblings(widg->child));
    widg = widg->child;
    copy = copy->child;
  }
}

Widg* CopyWidgTree(Widg* widg) {
  Widg* copy = CopyWidg(widg);
  CopyDescendants(widg, copy);
  return copy;
}

Widg* CopyWidgTreeWithSibs(Widg* widg) {
  Widg* copy = CopyWidg(widg);
  copy->next = CopySiblings(widg->next);
  CopyDescendants(widg, copy);
  return copy;
}
