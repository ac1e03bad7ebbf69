// SPDX-License-Identifier: MIT
// Makes room for Motif: moves the children of a converted container by fixed amounts for each
// control that Motif draws larger, and grows the container so that all of them fit. Works on the
// resources "XmNx", "XmNy", "XmNwidth" and "XmNheight"; an absent one counts as 0. All numbers are
// pixels and wrap to 32 bits.
#ifndef PANDREL_LAYOUT_GEOMETRY_H
#define PANDREL_LAYOUT_GEOMETRY_H

#include <cstdint>

struct Widg;

// Does so for one container whose children are attached. Not idempotent: a second call moves the
// children again. Leaves a container without children alone.
void FixUpGeometry(Widg* widg);

// Shifts every widget of the sibling list by dx to the right, also the one that needs the room, and
// those whose top lies below `bottom` by dy down.
void MoveWidgsToFit(Widg* first, int32_t bottom, int32_t dx, int32_t dy);

int32_t LeftSidePos(const Widg* widg);
int32_t TopPos(const Widg* widg);
int32_t RightSidePos(const Widg* widg);
int32_t BottomPos(const Widg* widg);
int32_t Width(const Widg* widg);
int32_t Height(const Widg* widg);

// Estimates of the right side and the bottom: x or y plus the height resource, or without one plus
// the GIL size and the widget's extra size.
//
// note [the right side adds the height]
// ApproxRightSidePos adds the *height* where one is set, not the width. The sizes of containers
// depend on it, and users' modules would change with it.
int32_t ApproxRightSidePos(const Widg* widg);
int32_t ApproxBottomPos(const Widg* widg);

#endif
