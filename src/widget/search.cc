// SPDX-License-Identifier: MIT
#include "widget/search.h"

#include "widget/known_names.h"
#include "widget/plain_search.h"
#include "widget/search_testing.h"
#include "widget/tree.h"

static SearchChecker check_search = nullptr;

void SetSearchChecker(SearchChecker checker) { check_search = checker; }

// The result of a search. `Plainly` finds the same by walking the tree.
template <typename Search>
static Widg* Checked(Widg* found, Search Plainly) {
  if (check_search) check_search(found, Plainly);
  return found;
}

Widg* FindWidg(Widg* tree, const char* name) {
  Widg* found = nullptr;
  if (tree != top_widget || !KnownWidg(name, &found)) return FindWidgPlainly(tree, name);
  return Checked(found, [=] { return FindWidgPlainly(tree, name); });
}

Widg* FindWidgWithChild(Widg* tree, const char* name) {
  Widg* found = nullptr;
  if (tree != top_widget || !KnownWidgWithChild(name, &found)) {
    return FindWidgWithChildPlainly(tree, name);
  }
  return Checked(found, [=] { return FindWidgWithChildPlainly(tree, name); });
}

Widg* FindParentOfWidg(Widg* tree, Widg* widg) {
  const bool is_known = NamesAreKnown() && tree && tree->top_level && widg && !widg->shared &&
                        !(widg->top_level && TopLevelIsClaimed());
  if (!is_known) return FindParentOfWidgPlainly(tree, widg);
  return Checked(widg->parent, [=] { return FindParentOfWidgPlainly(tree, widg); });
}
