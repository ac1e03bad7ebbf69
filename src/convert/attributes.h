// SPDX-License-Identifier: MIT
// The attributes that belong to a type of object. Each handler turns the few that it knows into
// resources of the object's own widget and ignores the rest. The type's special processing reads
// many of those later.
#ifndef PANDREL_CONVERT_ATTRIBUTES_H
#define PANDREL_CONVERT_ATTRIBUTES_H

struct Attr;
struct Obj;
struct Widg;

// Sends the attribute to the handler of the object's type, if that has one.
void ProcessNonStdAttribute(Obj* obj, Widg* widg, const Attr* attr);

#endif
