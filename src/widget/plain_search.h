// SPDX-License-Identifier: MIT
// Searching by going through the tree. What is known of names (widget/known_names.h) must give the
// same answers; where nothing is known, these give them.
#ifndef PANDREL_WIDGET_PLAIN_SEARCH_H
#define PANDREL_WIDGET_PLAIN_SEARCH_H

#include <cstdint>
#include <vector>

#include "widget/tree.h"

// A number that no widget's `visit` field holds: the mark of a new search. Never 0.
uint32_t NewVisit();

// The first widget in search order that `Matches` holds for, or null. The search stays out of lists
// from a widget on for which `MayEnter` does not hold.
//
// Each widget is visited once. That finds what a search with a guard against its own path alone
// would find: whatever stands behind a widget that was visited on another way was tested then, or
// waits on the path and will be.
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
