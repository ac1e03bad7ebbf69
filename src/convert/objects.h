// SPDX-License-Identifier: MIT
// The hub of the conversion: one GIL object, with all that it owns, to a widget subtree.
#ifndef PANDREL_CONVERT_OBJECTS_H
#define PANDREL_CONVERT_OBJECTS_H

struct Obj;
struct Widg;

// Converts the object and its descendants. Returns the widget that stands for the object, maybe a
// wrapper around its own; null for a dropped group, which is to be attached nowhere. An object
// without a name ends the run.
//
// Children are complete, with their own special processing, before that of their parent runs.
Widg* ProcessObj(Obj* obj);

// The Motif class for the object; the empty string when it has no widget of its own. Never null.
const char* GilObjToMotifClassName(Obj* obj);

// Expands the widget of the object into what Motif needs for it; returns the widget that now stands
// for the object, null for a dropped group.
Widg* SpecialProcessing(Obj* obj, Widg* widg);

#endif
