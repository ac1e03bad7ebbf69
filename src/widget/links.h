// SPDX-License-Identifier: MIT
// Links widgets into lists and out of them. All changes to links of widgets that are in a list go
// through here, so that the cache of searches stays right (widget/known_names.h).
//
// note [shared tails]
// A child is appended with whatever `next` chain it has. A menu that a canvas claims while the
// top-level list still holds it brings the rest along, until the clean-up cuts the list:
//   top:  menu1 -> menu2 -> shell        canvas: menu1 -> menu2 -> shell
// Lists may so share their ends, but never run in a circle: an append that would close one does
// nothing.
#ifndef PANDREL_WIDGET_LINKS_H
#define PANDREL_WIDGET_LINKS_H

struct Widg;

// Gives a parent its list of children in the place of the former one. A list that starts with a
// widget of another list is shared with that list from there on.
void SetChildren(Widg* parent, Widg* first);

// Appends the child, and the chain behind it, to the parent's children. Does nothing when that list
// ends with the chain's own end.
void AddChildWidg(Widg* parent, Widg* child);

// The same for a caller that knows a widget of the parent's list (null: none), so that a list which
// is built child by child is not walked for each. Returns the child or, when nothing was appended,
// `known`.
Widg* AddChildBehind(Widg* parent, Widg* known, Widg* child);

// The same as AddChildWidg unless the child is in the list already.
void AddChildLast(Widg* parent, Widg* child);

// Links a widget, and the chain behind it, at the end of the top-level list: `link` is the address
// of `top_widget` or of the last widget's `next`. Replaces what is there already.
void LinkTopLevel(Widg** link, Widg* widg);

// Takes a menu out of the top-level list by clearing its own `next`; the caller relinks the widgets
// around it. Widgets that claimed it keep it.
void DropTopLevel(Widg* menu);

// Tells the cache that all menus of a file have left the top level. A claimed widget that is still
// there stays in two lists for good.
void MenusAreDropped();

// Stores the first widget of a file's cleaned list where the file was linked. If the widget that
// holds the link has come into that very list (it was claimed as a menu, and moved), takes it out,
// since the list must not run in a circle.
void RelinkTopLevel(Widg** link, Widg* first);

// Unlinks the widget from a sibling list and clears its `next`; returns the new head. An absent
// widget changes nothing.
Widg* RemoveSibling(Widg* head, Widg* widg);

#endif
