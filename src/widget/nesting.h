// SPDX-License-Identifier: MIT
// Moves widgets from one parent to another, and puts new ones between a parent and its children.
#ifndef PANDREL_WIDGET_NESTING_H
#define PANDREL_WIDGET_NESTING_H

struct Widg;

// Unlinks a direct child; does nothing for any other widget.
void RemoveChild(Widg* parent, Widg* widg);

// Unlinks the widget from its parent, or from the top-level list `tree` when it has none; returns
// the new tree.
Widg* RemoveWidg(Widg* tree, Widg* widg);

// RemoveChild from the one parent, AddChildLast to the other.
void MoveWidgetInHierarchy(Widg* widg, Widg* old_parent, Widg* new_parent);

// Takes the child out of the parent's list and makes it the only child of `new_parent`, which takes
// over its position; the caller links `new_parent`. Writes a line on standard error and changes
// nothing when the child is not in the parent's list.
void MakeSubHier(Widg* parent, Widg* child, Widg* new_parent);

// Makes a new widget the only child of `widg`; it adopts the former children and gets copies of the
// size. A bulletin board also gets zero margins and grows with its children.
void InsertWidgBelow(Widg* widg, const char* class_name, char* name);

// The parent itself when `widg` is its first child, the sibling before it otherwise; null when it
// is no child.
Widg* PrevSibling(Widg* parent, const Widg* widg);

#endif
