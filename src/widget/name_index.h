// SPDX-License-Identifier: MIT
// The widgets by GIL name: what a search asks instead of going through the tree. Knows names only;
// whether a widget is in the tree, and which comes first, is for widget/search.cc to say.
//
// Nothing is done for a conversion that never searches: widgets enter the index when somebody asks.
#ifndef PANDREL_WIDGET_NAME_INDEX_H
#define PANDREL_WIDGET_NAME_INDEX_H

#include <cstdint>

struct Widg;

// Takes note of a new widget.
void NameIndexMade(Widg* widg);

// Before and after its GIL name changes.
void NameIndexForget(Widg* widg);
void NameIndexRemember(Widg* widg);

// Takes note that the widget has come to the top level.
void NameIndexTopLevel(Widg* widg);

// note [units]
// Widgets are numbered as they are made, and those made for one object of the top level are a unit.
// Later units come to stand further to the right, where a search goes first; so do all units of a
// later file. What was made before a unit, or before its file, began lies further to the left,
// unless it has been moved (widget/links.h tells).

// Widgets made from now on are of another unit, or of another file and its first unit.
void NameIndexNewUnit();
void NameIndexNewFile();

// The number of the last widget made before the widget's unit, or its file, began.
uint32_t UnitStartOf(const Widg* widg);
uint32_t FileStartOf(const Widg* widg);

// The widget of that name that was made last; then the one made before it. Null when there is none.
Widg* NewestOfName(const char* name);
Widg* OlderOfName(const Widg* widg);

// The first top-level widget of that name (with a child, where that is asked for), or null.
Widg* FirstTopLevelOfName(const char* name, bool with_child);

// Rises with every change of a name.
unsigned NameChanges();

void ResetNameIndex();

#endif
