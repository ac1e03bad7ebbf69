// SPDX-License-Identifier: MIT
// Finds widgets, by GIL name and by identity.
//
// note [search order]
// A search tests a widget, then its later siblings with all below them, and only then its own
// children. A later top-level widget therefore wins over a child of the first:
//   shell1(item) item      -> FindWidg("item") is the top-level one
// A widget on two paths is tested on the first. A search also ends when a widget is linked into its
// own subtree.
#ifndef PANDREL_WIDGET_SEARCH_H
#define PANDREL_WIDGET_SEARCH_H

struct Widg;

// The first widget of the tree (a sibling list with all below it) whose gil_name is `name`, or
// null.
Widg* FindWidg(Widg* tree, const char* name);

// The same among widgets that have a child.
Widg* FindWidgWithChild(Widg* tree, const char* name);

// The first widget whose own child list holds `widg`, or null for a widget that is top-level or in
// no list. Call it for a widget that is in the tree or in no list.
Widg* FindParentOfWidg(Widg* tree, Widg* widg);

#endif
