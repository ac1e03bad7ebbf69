// SPDX-License-Identifier: MIT
// Searches by walking the tree. The cache of names (widget/known_names.h) must give the same
// answers; these give them for names that it does not have.
#ifndef PANDREL_WIDGET_PLAIN_SEARCH_H
#define PANDREL_WIDGET_PLAIN_SEARCH_H

#include <cstdint>
#include <vector>

#include "widget/tree.h"

// A number that no widget's `visit` field holds: the mark of a new search. Never 0.
uint32_t NewVisit();

// The first widget in search order for which `Matches` holds, or null. The search leaves a list at
// a widget for which `MayEnter` does not hold.
//
// It visits each widget once. That finds the same as a guard against only the current path: the
// widgets behind one that was visited on another way were tested then, or wait on the path and will
// be.
template <typename Enter, typename Predicate>
Widg* FindFirst(Widg* tree, uint32_t visit, Enter MayEnter, Predicate Matches) {
  std::vector<Widg*> children = {tree};  // child lists that wait; the last one comes first
  while (!children.empty()) {
    Widg* widg = children.back();
    children.pop_back();
    for (; widg && widg->visit != visit && MayEnter(widg); widg = widg->next) {
      widg->visit = visit;
      if (Matches(widg)) return widg;
      if (widg->child) children.push_back(widg->child);
    }
  }
  return nullptr;
}

template <typename Predicate>
Widg* FindFirst(Widg* tree, Predicate Matches) {
  return FindFirst(
      tree, NewVisit(), [](const Widg*) { return true; }, Matches);
}

// The three searches of widget/search.h, for any tree and any widget.
Widg* FindWidgPlainly(Widg* tree, const char* name);
Widg* FindWidgWithChildPlainly(Widg* tree, const char* name);
Widg* FindParentOfWidgPlainly(Widg* tree, const Widg* widg);

#endif
