// SPDX-License-Identifier: MIT
// Finding widgets, by GIL name and by identity.
//
// note [search order]
// A search tests a widget, then everything to its right with what hangs below it, and only then its
// own children. A later top-level widget therefore wins over a child of the first:
//   shell1(item) item      -> FindWidg("item") is the top-level one
// A widget that can be reached on two ways is tested on the first. A widget that is linked into its
// own subtree does not make a search run for ever.
#ifndef PANDREL_WIDGET_SEARCH_H
#define PANDREL_WIDGET_SEARCH_H

struct Widg;

// The first widget of the tree (a sibling list with all below it) whose gil_name is `name`, or
// null.
Widg* FindWidg(Widg* tree, const char* name);

// The same among widgets that have a child.
Widg* FindWidgWithChild(Widg* tree, const char* name);

// The first widget whose own child list holds `widg`, or null for a widget that is top-level or in
// no list. The widget is in the tree or in no list at all.
Widg* FindParentOfWidg(Widg* tree, Widg* widg);

#endif
