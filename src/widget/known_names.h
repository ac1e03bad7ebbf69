// SPDX-License-Identifier: MIT
// What a search from top_widget would find for each GIL name, and who is whose parent. Only
// widget/search.cc asks for answers; widget/links.cc and whoever renames a widget keep them true.
//
// note [what searches know]
// Menus, groups and actions are found by name. A walk through the tree each time would make large
// projects quadratic, so this caches the answer for each name. Two facts keep that simple:
//   - A search tests the whole top level first, and the widgets below a later window before those
//     below an earlier one. A window linked at the end therefore only overwrites the answers for
//     the names that it brings.
//   - Any other move changes only the answers for the names of the widgets that moved, which are
//     dropped; the next search for one goes through the windows and caches what it found.
// A widget that claims a menu of the top level gets it into its own list, while the menu stays at
// the top level until the clean-up. Until then only its place at the top level matters. Two users
// of one menu make it `shared`, and its parent must be searched. Anything stranger (a list whose
// end is another list's, a widget below itself, a window that leaves the top level) ends the
// caching: from then on every search goes through the tree.
#ifndef PANDREL_WIDGET_KNOWN_NAMES_H
#define PANDREL_WIDGET_KNOWN_NAMES_H

struct Widg;

// The widget has joined the end of the top level with the names that it brings.
void NamesJoined(Widg* window);

// The clean-up of a file is done: the top level ends with the list from `first` on.
void NamesOfFileJoined(Widg* first);

// Drops the answers for the names of a widget that moves within the tree, into it or out of it, and
// of all widgets below it.
void NamesMoved(Widg* widg);

// The widget has left the top level, as all menus do once their file is converted.
void NamesDropped(Widg* menu);

// The widget's GIL name was `former`.
void NamesRenamed(const Widg* widg, const char* former);

// The children of some widget changed.
void ChildrenChanged();

// Ends the caching for this conversion.
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
