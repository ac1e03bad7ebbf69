// SPDX-License-Identifier: MIT
// Linking widgets into lists and out of them, and the moves that put a new widget between a parent
// and its children. Whoever changes a link of a widget that is in a list comes here, so that
// searches can rely on what is written down in the widgets' places.
//
// note [shared tails]
// A child is appended with whatever `next` chain it has. A menu that a canvas claims while the
// top-level list still holds it brings the rest of that list along, until the clean-up cuts the
// list:
//   top:  menu1 -> menu2 -> shell        canvas: menu1 -> menu2 -> shell
// Lists may so share their ends, but never run in a circle: an append that would close one does
// nothing.
#ifndef PANDREL_WIDGET_LINKS_H
#define PANDREL_WIDGET_LINKS_H

#include "osi/fixed_text.h"

struct Widg;

// What `place.parent` points at for a top-level widget; no widget of the tree.
extern Widg* const kTopLevel;

// Gives a parent its list of children, which is in no other list; the former one is let go.
void SetChildren(Widg* parent, Widg* first);

// Makes a widget that may be in another list, with what stands behind it there, the parent's list.
void ClaimChild(Widg* parent, Widg* child);

// Appends the child, and the chain behind it, to the parent's children. Does nothing when that list
// ends with the chain's own end.
void AddChildWidg(Widg* parent, Widg* child);

// The same unless the child is in the list already.
void AddChildLast(Widg* parent, Widg* child);

// Links a widget, and the chain behind it, at a link of the top-level list (the address of
// `top_widget` or of a widget's `next`), in the place of whatever stood there.
void LinkTopLevel(Widg** link, Widg* widg);

// Takes the widget out of the top-level list as far as its own `next` and place go; the caller
// relinks the widgets around it. Those who claimed it keep it.
void DropTopLevel(Widg* widg);

// Stores the first widget of a file's cleaned list where the file was linked. The widget that the
// link is of may have come into that very list (it was claimed as a menu, and moved); it keeps its
// place in front of it then, since the list must not run in a circle.
void RelinkTopLevel(Widg** link, Widg* first);

// Says that all menus of a file are dropped from the top level. What is still claimed there is no
// menu of the file, and stays in two lists for good.
void TopLevelIsCleaned();

// Unlinks the widget from a sibling list and clears its `next`; returns the new head. An absent
// widget changes nothing.
Widg* RemoveSibling(Widg* head, Widg* widg);

// Unlinks a direct child; does nothing for any other widget.
void RemoveChild(Widg* parent, Widg* widg);

// Unlinks the widget from its parent, or from the top-level list `tree` when it has none; returns
// the new tree.
Widg* RemoveWidg(Widg* tree, Widg* widg);

// RemoveChild from the one parent, AddChildLast to the other.
void MoveWidgetInHierarchy(Widg* widg, Widg* old_parent, Widg* new_parent);

// Takes the child out of the parent's list and makes it the only child of `new_parent`, which takes
// over its position; the caller links `new_parent`. A line on standard error and no change when the
// child is none of the parent's.
void MakeSubHier(Widg* parent, Widg* child, Widg* new_parent);

// Makes a new widget the only child of `widg`; it adopts the former children and gets copies of the
// size. A bulletin board also gets zero margins and grows with its children.
void InsertWidgBelow(Widg* widg, FixedText class_name, char* name);

// The last widget of the list that `widg` is in or begins; null for null.
Widg* LastSibling(Widg* widg);

// Rises with every change of a link.
unsigned LinkChanges();

// Whether the links have become such that the places no longer tell the whole truth.
bool LinksAreTangled();

// Whether the top-level list, or an end of it, is also a list of children.
bool TopLevelIsClaimed();

// Whether widgets of an earlier unit, or file, may stand below a top-level widget of a later one;
// see note [units] in widget/name_index.h.
bool UnitsAreMixed();
bool FilesAreMixed();

// Starts with no links at all.
void ResetLinks();

#endif
