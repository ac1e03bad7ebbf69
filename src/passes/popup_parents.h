// SPDX-License-Identifier: MIT
// Moves popup menus to parents that may hold them: the builder's version 2.5 takes a popup menu
// only in a bulletin board, a row-column or a form.
#ifndef PANDREL_PASSES_POPUP_PARENTS_H
#define PANDREL_PASSES_POPUP_PARENTS_H

struct Widg;

// For every widget of the tree, from the last and lowest up: moves its first popup menu (no other)
// to the nearest valid parent above. A menu without such a parent stays.
void MakePopupMenusValidForZO25(Widg* tree);

// The first child that is a popup menu, or null.
Widg* PopupMenuChild(const Widg* widg);

// 1 when the widget's class may hold a popup menu.
int ValidPopupMenuParent(const Widg* widg);

// The nearest widget from `widg` up that may hold a popup menu; `widg` itself when there is none.
Widg* PopupMenuParent(Widg* tree, Widg* widg);

#endif
