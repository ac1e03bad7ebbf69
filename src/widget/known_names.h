// SPDX-License-Identifier: MIT
// What a search from top_widget would find for each GIL name, and who is whose parent. Only
// widget/search.cc asks; widget/links.cc and whoever renames a widget keep it true.
//
// note [what searches know]
// Menus, groups and actions are found by name. Going through the tree each time would make large
// projects quadratic, so the answer for each name is kept. Two facts keep that simple:
//   - A search tests the whole top level first, and what hangs below a later window before what
//     hangs below an earlier one. A window linked at the end therefore only overwrites the answers
//     for the names that it brings.
//   - Any other move changes the answers for no names but those of the widgets that moved. These
//   are
//     forgotten: the next search for one goes through the windows and remembers what it found.
// Whoever claims a menu of the top level has it in a list of its own, while the menu stays at the
// top level until the clean-up. Up to then the top level comes first and nothing else matters. Two
// users of one menu make it `shared`, and who its parent is must be searched. All that is stranger
// (a list whose end is another list's, a widget below itself, a window that leaves the top level)
// ends the bookkeeping: from then on every search goes through the tree.
#ifndef PANDREL_WIDGET_KNOWN_NAMES_H
#define PANDREL_WIDGET_KNOWN_NAMES_H

struct Widg;

// The widget has joined the end of the top level with the names that it brings.
void NamesJoined(Widg* window);

// The clean-up of a file is done: the top level ends with the list from `first` on.
void NamesOfFileJoined(Widg* first);

// Forgets the names of a widget that moves within the tree, into it or out of it, and of all below
// it.
void NamesMoved(Widg* widg);

// The widget has left the top level, as all menus do once their file is converted.
void NamesDropped(Widg* menu);

// The widget's GIL name was `former`.
void NamesRenamed(const Widg* widg, const char* former);

// The children of some widget changed.
void ChildrenChanged();

// Ends the bookkeeping for this conversion.
void EndKnownNames();
bool NamesAreKnown();

// Counts the widgets of the top level that are also in a list of children.
void CountClaims(int change);
bool TopLevelIsClaimed();

// Stores what FindWidg(top_widget, name) or FindWidgWithChild(top_widget, name) finds; false when
// that is not known.
bool KnownWidg(const char* name, Widg** found);
bool KnownWidgWithChild(const char* name, Widg** found);

// Starts with an empty tree.
void ResetKnownNames();

#endif
