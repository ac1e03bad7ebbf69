// SPDX-License-Identifier: MIT
// Making room for Motif: the children of a converted container are moved by fixed amounts for each
// control that Motif draws larger, and the container grows so that all of them fit. Works on the
// resources "XmNx", "XmNy", "XmNwidth" and "XmNheight"; an absent one counts as 0. All numbers are
// pixels and wrap to 32 bits.
#ifndef PANDREL_LAYOUT_GEOMETRY_H
#define PANDREL_LAYOUT_GEOMETRY_H

#include <cstdint>

struct Widg;

// Moves and grows for one container, once its children are attached. Not idempotent: a second call
// moves the children again. A container without children is left alone.
void FixUpGeometry(Widg* widg);

// Shifts every widget of the sibling list by dx to the right, and those whose top lies below
// `bottom` by dy down. `right` selects nothing: the whole list moves, the widget that needs the
// room included.
void MoveWidgsToFit(Widg* first, int32_t right, int32_t bottom, int32_t dx, int32_t dy);

int32_t LeftSidePos(const Widg* widg);
int32_t TopPos(const Widg* widg);
int32_t RightSidePos(const Widg* widg);
int32_t BottomPos(const Widg* widg);
int32_t Width(const Widg* widg);
int32_t Height(const Widg* widg);

// The right side and the bottom as far as they are known: with a height set, x or y plus the
// height; without, plus the GIL size and the allowance of the class.
//
// note [the right side adds the height]
// ApproxRightSidePos adds the *height* where one is set. The sizes of containers depend on it, and
// modules made before would change if it were the width.
int32_t ApproxRightSidePos(const Widg* widg);
int32_t ApproxBottomPos(const Widg* widg);

#endif
