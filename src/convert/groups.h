// SPDX-License-Identifier: MIT
// Groups. A group names other objects; in Motif they become the children of one bulletin board.
#ifndef PANDREL_CONVERT_GROUPS_H
#define PANDREL_CONVERT_GROUPS_H

struct Obj;
struct Widg;

// Moves the widgets of the group's members, with all that was made around them, into the group and
// attaches the group where the first of them was. Looks for members among the widgets that are
// converted and linked by now, and reports each missing one on standard output. A group that
// already has children ends the run.
//
// Returns the group. Returns null, with nothing moved, when no member is found or the first one
// found has no parent: the group must then be attached nowhere. When groups are ignored, it returns
// the group and moves nothing.
Widg* SpecProcGroup(Obj* obj, Widg* group);

#endif
