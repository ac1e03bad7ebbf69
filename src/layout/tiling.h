// SPDX-License-Identifier: MIT
// Restores common edges. Boards in one bulletin board that shared an edge in GIL lose it when each
// grows by its own amount; this moves the edge of all of them to the largest current value. All
// positions are pixels.
#ifndef PANDREL_LAYOUT_TILING_H
#define PANDREL_LAYOUT_TILING_H

#include <cstdint>

struct Widg;

// One edge of a widget.
enum PositionCode : int32_t {
  kPositionLeft = 0,
  kPositionRight = 1,
  kPositionTop = 2,
  kPositionBottom = 3,
};

// How many widgets an array of positions holds; InsertByPosition drops those beyond.
constexpr int32_t kMaxPositions = 128;

// Calls TileBBoardChildren for every bulletin board that the walk reaches.
//
// note [a childless widget ends the walk]
// The walk goes to the first child, then to the next sibling, and then handles the widget. It
// returns at once from a widget without children, so it never reaches the siblings behind:
//   label board2     -> board2 is not tiled
void FinalRepositionInterface(Widg* widg);

// Aligns the edges of the board's children, if all of them are bulletin boards (dialog shells and
// popup menus are passed over); leaves a board with any other child as it is.
void TileBBoardChildren(const Widg* board);

// Inserts the widget by the GIL position of its edge, behind those of equal position. Does nothing
// when the array is full.
//
// note [inserting loses widgets]
// InsertBefore makes room by copying slots upward from the first on, so every slot behind the new
// widget gets the same one. Only widgets inserted in order lose nothing:
//   10 20 30         -> 10 20 30
//   30 20 10         -> 10 20 20
void InsertByPosition(Widg** array, int32_t* count, Widg* widg, int32_t code);

// Shifts the first `m` of the slots up by one, from the first on, and puts the widget in slot 0.
void InsertBefore(Widg** slots, Widg* widg, int32_t m);

// Aligns each run of equal GIL positions in the sorted array of `n` widgets. The search for the
// next run skips the widget behind a run, so a second run of two that follows at once is not
// aligned.
void AlignBBChildren(Widg** array, int32_t n, int32_t code);

// Moves the edge of all `m` widgets to the largest current value among them.
void AlignWidgets(Widg** slots, int32_t m, int32_t code);

// The edge in the GIL file, and as the resources have it now. 0 for any other code.
int32_t OrigPos(const Widg* widg, int32_t code);
int32_t GetPosition(const Widg* widg, int32_t code);

// Moves the edge: the left and the top move the widget, the right and the bottom resize it (unless
// that would make the size 0).
void SetPosition(Widg* widg, int32_t code, int32_t value);

// The name of the code, for use in a debugger; empty for any other number.
const char* PrintPos(int32_t code);

// Moves the size resources, and all four geometry resources, from one widget to another.
void MoveSizeResources(Widg* from, Widg* to);
void MoveGeometryResources(Widg* from, Widg* to);

#endif
