// SPDX-License-Identifier: MIT
// Scrolling lists: the list goes into a scrolled window and, when it has a title, that into a frame
// or a form beside the title.
#ifndef PANDREL_CONVERT_LISTS_H
#define PANDREL_CONVERT_LISTS_H

struct Obj;
struct Value;
struct Widg;

// Returns the scrolled window, or the container around it and the title.
Widg* SpecProcScrollingList(Obj* obj, Widg* list);

// Builds the UIL text of a string table in *tableOut (OsiMalloc memory, the caller's) from the strings in the order in which the
// list is held, and returns how many there are. An empty list, and a first buffer that cannot be
// had, are reported on standard error and return 0; a buffer that cannot grow ends the run with
// status 0.
int MakeStringTable(const Value* values, char** tableOut);

// Forgets how far the working buffer of MakeStringTable grew.
void ResetStringTable();

#endif
