// SPDX-License-Identifier: MIT
// The widgets by GIL name: what a search asks instead of going through the tree. Knows names only;
// whether a widget is in the tree, and which comes first, is for widget/search.cc to say.
//
// Nothing is done for a conversion that never searches: widgets enter the index when somebody asks.
#ifndef PANDREL_WIDGET_NAME_INDEX_H
#define PANDREL_WIDGET_NAME_INDEX_H

struct Widg;

// Takes note of a new widget.
void NameIndexMade(Widg* widg);

// Before and after its GIL name changes.
void NameIndexForget(Widg* widg);
void NameIndexRemember(Widg* widg);

// Takes note that the widget has come to the top level.
void NameIndexTopLevel(Widg* widg);

// Widgets made from now on belong to another file.
void NameIndexNewFile();

// The widget of that name that was made last; then the one made before it. Null when there is none.
Widg* NewestOfName(const char* name);
Widg* OlderOfName(const Widg* widg);

// The first top-level widget of that name (with a child, where that is asked for), or null.
Widg* FirstTopLevelOfName(const char* name, bool with_child);

// Rises with every change of a name.
unsigned NameChanges();

void ResetNameIndex();

#endif
