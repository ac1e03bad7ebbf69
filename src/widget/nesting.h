// SPDX-License-Identifier: MIT
// Putting a new widget between a parent and its children.
#ifndef PANDREL_WIDGET_NESTING_H
#define PANDREL_WIDGET_NESTING_H

struct Widg;

// Takes the child out of the parent's list and makes it the only child of `new_parent`, which takes
// over its position; the caller links `new_parent`. A line on standard error and no change when the
// child is none of the parent's.
void MakeSubHier(Widg* parent, Widg* child, Widg* new_parent);

// Makes a new widget the only child of `widg`; it adopts the former children and gets copies of the
// size. A bulletin board also gets zero margins and grows with its children.
void InsertWidgBelow(Widg* widg, const char* class_name, char* name);

// The parent itself when `widg` is its first child, the sibling before it otherwise; null when it
// is no child.
Widg* PrevSibling(Widg* parent, const Widg* widg);

#endif
