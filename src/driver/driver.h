// SPDX-License-Identifier: MIT
// The stages of the conversion, as the main programs call them.
#ifndef PANDREL_DRIVER_DRIVER_H
#define PANDREL_DRIVER_DRIVER_H

#include <cstdio>

struct Obj;
struct Widg;

// Opens the file that the options name for writing; without one, returns standard output. Ends the
// run when the file is a GIL file, which it would empty, and when it cannot be opened.
std::FILE* OpenOutput();

// Converts the GIL file on standard input and stores the first of its top-level widgets in
// *listLink: the address of `top_widget`, or of the `next` of the last top-level widget. Returns
// that widget.
Widg* ProcessGILFile(Widg** listLink);

// If the last file read was a project: converts each of its interface files, through standard
// input, and appends their widgets to the top level; then does so for projects among them.
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

// Converts each object of a top-level list and links the widgets at *listLink; returns *listLink.
// Does not link groups, which attach themselves.
Widg* ConvertObjHierToWidgHier(Obj* objects, Widg** listLink);

#endif
