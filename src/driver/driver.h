// SPDX-License-Identifier: MIT
// The order of the whole conversion.
#ifndef PANDREL_DRIVER_DRIVER_H
#define PANDREL_DRIVER_DRIVER_H

#include <cstdio>

struct Obj;
struct Widg;

// Opens the file that the options name, else gives standard output. A GIL file, which would be
// emptied, and a file that cannot be opened end the run. Called before any input is read, so that a bad name fails early.
std::FILE* OpenOutput();

// Converts the GIL file on standard input and stores the first of its top-level widgets in
// *listLink: the address of `top_widget`, or of the `next` of the last top-level widget. Returns
// that widget.
Widg* ProcessGILFile(Widg** listLink);

// While the last file read was a project, reopens standard input on each of its interface files and
// appends what they hold to the top level.
void ProcessProject();

// Turns the actions of all widgets into callbacks.
void ProcessActions();

// Flushes the output and ends the run when not all of it could be written.
void CloseOutput(std::FILE* output);

// Parses the file on standard input and resolves its owners; returns the top-level objects. A
// syntax error ends the run.
Obj* ParseGILFile();

// Moves the menus of a top-level list to its front; both halves keep their order. Returns the new
// head.
Obj* PutMenusFirst(Obj* objects);

// Converts each object of a top-level list and links the widgets at *listLink; returns that. What
// stands for a group is not linked: a group attaches itself.
Widg* ConvertObjHierToWidgHier(Obj* objects, Widg** listLink);

#endif
