// SPDX-License-Identifier: MIT
// Groups: a group names other objects, which in Motif become the children of one bulletin board.
#ifndef PANDREL_CONVERT_GROUPS_H
#define PANDREL_CONVERT_GROUPS_H

struct Obj;
struct Widg;

// Moves the widgets of the group's members, with all that was made around them, into the group and
// attaches it where the first of them was. Members are looked for in what is converted and linked
// already; one that is missing is reported on standard output.
//
// Returns the group, or null when it is dropped: when no member is found, or the first one found
// has no parent, nothing is moved and the group must be attached nowhere. With groups ignored
// nothing is moved either, but the group is returned.
Widg* SpecProcGroup(Obj* obj, Widg* group);

#endif
