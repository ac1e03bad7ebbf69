// SPDX-License-Identifier: MIT
// Finding widgets, by GIL name and by identity.
//
// note [search order]
// A search tests a widget, then everything to its right with what hangs below it, and only then its
// own children. A later top-level widget therefore wins over a child of the first:
//   shell1(item) item      -> FindWidg("item") is the top-level one
// A widget that can be reached on two ways is tested on the first, and a widget linked into its own
// subtree does not make a search run for ever.
#ifndef PANDREL_WIDGET_SEARCH_H
#define PANDREL_WIDGET_SEARCH_H

struct Widg;

// The first widget of the tree (a sibling list with all below it) whose gil_name is `name`, or
// null.
Widg* FindWidg(Widg* tree, const char* name);

// The same among widgets that have a child.
Widg* FindWidgWithChild(Widg* tree, const char* name);

// The first widget whose own child list holds `widg`, or null when that is top-level or absent.
Widg* FindParentOfWidg(Widg* tree, Widg* widg);

// 1 when `widg` is in the parent's child list; 0 also when either is null.
int IsChild(const Widg* parent, const Widg* widg);

// The parent itself when `widg` is its first child, the sibling before it otherwise; null when it
// is no child.
Widg* PrevSibling(Widg* parent, const Widg* widg);

// The three searches by going through the tree: what the others must agree with, and slow.
Widg* FindWidgInTree(Widg* tree, const char* name);
Widg* FindWidgWithChildInTree(Widg* tree, const char* name);
Widg* FindParentOfWidgInTree(Widg* tree, const Widg* widg);

// For tests and fuzzers: searches also go through the tree (in a conversion of very many, the first
// thousands and then some), and the process aborts where the two disagree.
void CheckSearches(bool check);

// A number that no widget's `visit` field holds: the mark of a new walk.
unsigned NewVisit();

// Forgets what searches remember.
void ResetSearch();

#endif
