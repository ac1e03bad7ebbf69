// SPDX-License-Identifier: MIT
// Scrolling lists: the list goes into a scrolled window. When it has a title, both go into a frame
// or a form.
#ifndef PANDREL_CONVERT_LISTS_H
#define PANDREL_CONVERT_LISTS_H

struct Obj;
struct Value;
struct Widg;

// Returns the scrolled window, or the container around it and the title. The label, if the object
// has one, becomes its next sibling.
Widg* SpecProcScrollingList(Obj* obj, Widg* list);

// Stores the UIL text of a string table in *tableOut (OsiMalloc memory, the caller's), its strings
// in the order in which the list is held, and returns how many there are. Reports an empty list,
// and exhausted memory at the start, on standard error and returns 0; a buffer that cannot grow
// ends the run with status 0.
int MakeStringTable(const Value* values, char** tableOut);

// Sets the size of MakeStringTable's working buffer back to what it is at the start of a run.
void ResetStringTable();

#endif
