// SPDX-License-Identifier: MIT
// The hub of the conversion: one GIL object, with all that it owns, to a widget subtree.
#ifndef PANDREL_CONVERT_OBJECTS_H
#define PANDREL_CONVERT_OBJECTS_H

struct Obj;
struct Widg;

// Converts the object and its descendants; children are complete before their parent's special
// processing runs. Returns the widget that stands for the object, maybe a wrapper around its own,
// or null for a dropped group, which must be attached nowhere. An object without a name ends the
// run.
Widg* ProcessObj(Obj* obj);

// The Motif class for the object; the empty string when it has no widget of its own. Never null.
const char* GilObjToMotifClassName(Obj* obj);

#endif
