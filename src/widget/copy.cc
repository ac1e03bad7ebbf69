// SPDX-License-Identifier: MIT
#include "widget/copy.h"

#include "widget/links.h"
#include "widget/name_index.h"
#include "widget/search.h"
#include "widget/tree.h"

Widg* CopyWidg(Widg* widg) {
  NameIndexForget(widg);  // MakeWidg may change the text
  Widg* copy = MakeWidg(widg->class_name, widg->gil_name);
  NameIndexRemember(widg);
  copy->callbacks = widg->callbacks;
  copy->resources = widg->resources;
  copy->shares_lists = widg->shares_lists = true;
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

// Copies what is below `widg` under its copy, level by level. A widget that lies below itself ends
// the descent where it comes up again: its copy would have no end.
static void CopyDescendants(Widg* widg, Widg* copy) {
  const unsigned visit = NewVisit();
  while (widg->child && widg->visit != visit) {
    widg->visit = visit;
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
