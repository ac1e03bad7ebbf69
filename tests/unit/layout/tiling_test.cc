// SPDX-License-Identifier: MIT
#include "layout/tiling.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <string>

#include "layout/geometry.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/links.h"
#include "widget/tree.h"

namespace {

using LayoutTiling = SessionFixture;

Widg* Board(const char* name) { return NewWidg("XmBulletinBoard", name); }

// A board whose GIL geometry and current geometry are given.
Widg* Placed(const char* name, int32_t gil_x, int32_t gil_y, int32_t x, int32_t y) {
  return FromGil(At(Board(name), x, y, 10, 10), gil_x, gil_y, 10, 10);
}

// An array of widgets filled by insertion, as text.
std::string Inserted(std::initializer_list<Widg*> widgets, int32_t code) {
  Widg* array[kMaxPositions];
  int32_t count = 0;
  for (Widg* widg : widgets) InsertByPosition(array, &count, widg, code);
  std::string text;
  for (int32_t i = 0; i < count; ++i) text += array[i]->gil_name;
  return text;
}

TEST_F(LayoutTiling, CodesNameTheEdges) {
  EXPECT_STREQ(PrintPos(kPositionLeft), "PositionLeft");
  EXPECT_STREQ(PrintPos(kPositionRight), "PositionRight");
  EXPECT_STREQ(PrintPos(kPositionTop), "PositionTop");
  EXPECT_STREQ(PrintPos(kPositionBottom), "PositionBottom");
  EXPECT_EQ(kPositionLeft, 0);
  EXPECT_EQ(kPositionRight, 1);
  EXPECT_EQ(kPositionTop, 2);
  EXPECT_EQ(kPositionBottom, 3);
}

TEST_F(LayoutTiling, OtherCodesNameNothing) {
  Widg* widg = Placed("a", 1, 2, 3, 4);
  for (const int32_t code : {-1, 4}) {
    EXPECT_STREQ(PrintPos(code), "");
    EXPECT_EQ(OrigPos(widg, code), 0);
    EXPECT_EQ(GetPosition(widg, code), 0);
    SetPosition(widg, code, 99);
  }
  EXPECT_EQ(Resources(widg), "XmNx=3 XmNy=4 XmNwidth=10 XmNheight=10");
}

TEST_F(LayoutTiling, OriginalEdgesComeFromTheGilGeometry) {
  const Widg* widg = FromGil(At(Board("a"), 1, 2, 3, 4), 10, 20, 30, 40);
  EXPECT_EQ(OrigPos(widg, kPositionLeft), 10);
  EXPECT_EQ(OrigPos(widg, kPositionRight), 40);
  EXPECT_EQ(OrigPos(widg, kPositionTop), 20);
  EXPECT_EQ(OrigPos(widg, kPositionBottom), 60);
}

TEST_F(LayoutTiling, CurrentEdgesComeFromTheResources) {
  const Widg* widg = FromGil(At(Board("a"), 1, 2, 3, 4), 10, 20, 30, 40);
  EXPECT_EQ(GetPosition(widg, kPositionLeft), 1);
  EXPECT_EQ(GetPosition(widg, kPositionRight), 4);
  EXPECT_EQ(GetPosition(widg, kPositionTop), 2);
  EXPECT_EQ(GetPosition(widg, kPositionBottom), 6);
}

TEST_F(LayoutTiling, EdgesWrapTo32Bits) {
  const Widg* widg = FromGil(At(Board("a"), 2147483647, 0, 1, 0), 2147483647, 0, 1, 0);
  EXPECT_EQ(OrigPos(widg, kPositionRight), -2147483647 - 1);
  EXPECT_EQ(GetPosition(widg, kPositionRight), -2147483647 - 1);
}

TEST_F(LayoutTiling, LeftAndTopMoveAndRightAndBottomStretch) {
  Widg* widg = At(Board("a"), 1, 2, 3, 4);
  SetPosition(widg, kPositionLeft, 10);
  SetPosition(widg, kPositionTop, 20);
  SetPosition(widg, kPositionRight, 100);
  SetPosition(widg, kPositionBottom, 200);
  EXPECT_EQ(Resources(widg), "XmNx=10 XmNy=20 XmNwidth=90 XmNheight=180");
}

TEST_F(LayoutTiling, EmptyExtentIsNotWritten) {
  Widg* widg = At(Board("a"), 1, 2, 3, 4);
  SetPosition(widg, kPositionRight, 1);
  SetPosition(widg, kPositionBottom, 2);
  EXPECT_EQ(Resources(widg), "XmNx=1 XmNy=2 XmNwidth=3 XmNheight=4");
}

TEST_F(LayoutTiling, WidgetsInOrderAreAllKept) {
  EXPECT_EQ(Inserted({Placed("a", 1, 0, 0, 0), Placed("b", 2, 0, 0, 0), Placed("c", 3, 0, 0, 0)},
                     kPositionLeft),
            "abc");
}

TEST_F(LayoutTiling, EqualPositionsStayInOrder) {
  EXPECT_EQ(Inserted({Placed("a", 1, 0, 0, 0), Placed("b", 1, 0, 0, 0), Placed("c", 1, 0, 0, 0)},
                     kPositionLeft),
            "abc");
}

TEST_F(LayoutTiling, DescendingWidgetsLoseTheFirst) {
  EXPECT_EQ(Inserted({Placed("a", 30, 0, 0, 0), Placed("b", 20, 0, 0, 0), Placed("c", 10, 0, 0, 0)},
                     kPositionLeft),
            "cbb");
}

TEST_F(LayoutTiling, InsertionFillsTheSlotsBehindWithTheFirst) {
  Widg* a = Board("a");
  Widg* b = Board("b");
  Widg* slots[] = {a, b, b, nullptr};
  Widg* inserted = Board("c");
  InsertBefore(slots, inserted, 3);
  EXPECT_EQ(slots[0], inserted);
  EXPECT_EQ(slots[1], a);
  EXPECT_EQ(slots[2], a);
  EXPECT_EQ(slots[3], a);
}

TEST_F(LayoutTiling, InsertingWritesNothingBehindTheLastWidget) {
  Widg* behind = Placed("z", 0, 0, 0, 0);
  Widg* array[16];
  std::fill(std::begin(array), std::end(array), behind);
  int32_t count = 0;
  for (const int32_t x : {10, 20, 30, 40, 25}) {
    InsertByPosition(array, &count, Placed("a", x, 0, 0, 0), kPositionLeft);
  }
  EXPECT_EQ(count, 5);
  EXPECT_EQ(array[2]->x, 25);
  EXPECT_EQ(std::count(std::begin(array), std::end(array), behind), 11);
}

TEST_F(LayoutTiling, The129thWidgetIsDropped) {
  Widg* array[kMaxPositions];
  int32_t count = 0;
  for (int32_t i = 0; i < 129; ++i) {
    InsertByPosition(array, &count, Placed("a", i, 0, 0, 0), kPositionLeft);
  }
  EXPECT_EQ(kMaxPositions, 128);
  EXPECT_EQ(count, 128);
  EXPECT_EQ(array[127]->x, 127);
}

TEST_F(LayoutTiling, RunComesToItsLargestPosition) {
  Widg* widgs[] = {Placed("a", 0, 0, 10, 0), Placed("b", 0, 0, 14, 0), Placed("c", 0, 0, 12, 0)};
  AlignWidgets(widgs, 3, kPositionLeft);
  for (const Widg* widg : widgs) EXPECT_EQ(LeftSidePos(widg), 14);
}

TEST_F(LayoutTiling, NegativePositionsComeToMinusOne) {
  Widg* widgs[] = {Placed("a", 0, 0, -10, 0), Placed("b", 0, 0, -14, 0)};
  AlignWidgets(widgs, 2, kPositionLeft);
  for (const Widg* widg : widgs) EXPECT_EQ(LeftSidePos(widg), -1);
}

TEST_F(LayoutTiling, WidgetBehindARunDoesNotBeginOne) {
  Widg* widgs[] = {Placed("a", 0, 5, 0, 10), Placed("b", 0, 5, 0, 11), Placed("c", 0, 5, 0, 12),
                   Placed("d", 0, 9, 0, 20), Placed("e", 0, 9, 0, 21)};
  AlignBBChildren(widgs, 5, kPositionTop);
  EXPECT_EQ(TopPos(widgs[0]), 12);
  EXPECT_EQ(TopPos(widgs[1]), 12);
  EXPECT_EQ(TopPos(widgs[2]), 12);
  EXPECT_EQ(TopPos(widgs[3]), 20);
  EXPECT_EQ(TopPos(widgs[4]), 21);
}

TEST_F(LayoutTiling, RunFurtherOnIsAligned) {
  Widg* widgs[] = {Placed("a", 0, 1, 0, 10), Placed("b", 0, 5, 0, 11), Placed("c", 0, 5, 0, 12)};
  AlignBBChildren(widgs, 3, kPositionTop);
  EXPECT_EQ(TopPos(widgs[0]), 10);
  EXPECT_EQ(TopPos(widgs[1]), 12);
}

TEST_F(LayoutTiling, NothingAndOneWidgetAreNoRun) {
  Widg* widgs[] = {Placed("a", 0, 1, 0, 10)};
  AlignBBChildren(widgs, 0, kPositionTop);
  AlignBBChildren(widgs, 1, kPositionTop);
  EXPECT_EQ(TopPos(widgs[0]), 10);
}

TEST_F(LayoutTiling, CommonLeftEdgeIsRestored) {
  Widg* a = FromGil(With(Board("a"), {{"XmNx", "10"}}), 5, 0, 1, 1);
  Widg* b = FromGil(With(Board("b"), {{"XmNx", "14"}}), 5, 50, 2, 2);
  TileBBoardChildren(NewWidg("XmBulletinBoard", "board", {a, b}));
  EXPECT_EQ(LeftSidePos(a), 14);
  EXPECT_EQ(LeftSidePos(b), 14);
}

TEST_F(LayoutTiling, CommonRightEdgeIsRestoredByWidening) {
  Widg* a = FromGil(At(Board("a"), 20, 0, 180, 5), 20, 0, 180, 5);
  Widg* b = FromGil(At(Board("b"), 50, 90, 160, 9), 50, 90, 150, 9);
  TileBBoardChildren(NewWidg("XmBulletinBoard", "board", {a, b}));
  EXPECT_EQ(Resources(a), "XmNx=20 XmNy=0 XmNwidth=190 XmNheight=5");
  EXPECT_EQ(Resources(b), "XmNx=50 XmNy=90 XmNwidth=160 XmNheight=9");
}

TEST_F(LayoutTiling, CommonTopAndBottomEdgesAreRestored) {
  Widg* a = FromGil(At(Board("a"), 0, 10, 5, 40), 0, 10, 5, 30);
  Widg* b = FromGil(At(Board("b"), 50, 12, 9, 30), 50, 10, 9, 30);
  TileBBoardChildren(NewWidg("XmBulletinBoard", "board", {a, b}));
  // Tops go to 12 first; a then ends at 52 and so does b.
  EXPECT_EQ(Resources(a), "XmNx=0 XmNy=12 XmNwidth=5 XmNheight=40");
  EXPECT_EQ(Resources(b), "XmNx=50 XmNy=12 XmNwidth=9 XmNheight=40");
}

TEST_F(LayoutTiling, RightEdgesAreSortedBeforeTops) {
  // Sorted by right edges (80, 90, 100) the array loses `a`, whose top so stays apart from that of
  // `b`.
  Widg* a = FromGil(At(Board("a"), 0, 12, 100, 5), 0, 10, 100, 5);
  Widg* b = FromGil(At(Board("b"), 10, 14, 80, 6), 10, 10, 80, 6);
  Widg* c = FromGil(At(Board("c"), 20, 50, 60, 7), 20, 50, 60, 7);
  TileBBoardChildren(NewWidg("XmBulletinBoard", "board", {a, b, c}));
  EXPECT_EQ(TopPos(a), 12);
  EXPECT_EQ(TopPos(b), 14);
}

TEST_F(LayoutTiling, TopsAreSortedBeforeBottoms) {
  // Sorted by tops (30, 40, 50) the array loses `a`, whose bottom so stays apart from that of `b`.
  Widg* a = FromGil(At(Board("a"), 0, 50, 100, 50), 0, 50, 100, 50);
  Widg* b = FromGil(At(Board("b"), 10, 40, 100, 90), 10, 40, 100, 60);
  Widg* c = FromGil(At(Board("c"), 20, 30, 100, 170), 20, 30, 100, 170);
  TileBBoardChildren(NewWidg("XmBulletinBoard", "board", {a, b, c}));
  EXPECT_EQ(BottomPos(a), 100);
  EXPECT_EQ(BottomPos(b), 130);
}

TEST_F(LayoutTiling, LeftEdgesAreSortedBeforeRightEdges) {
  // Sorted by left edges (10, 20, 30) the array loses `a`, whose right edge so stays apart from
  // that of `b`.
  Widg* a = FromGil(At(Board("a"), 30, 0, 70, 5), 30, 0, 70, 5);
  Widg* b = FromGil(At(Board("b"), 20, 10, 90, 6), 20, 10, 80, 6);
  Widg* c = FromGil(At(Board("c"), 10, 20, 200, 7), 10, 20, 200, 7);
  TileBBoardChildren(NewWidg("XmBulletinBoard", "board", {a, b, c}));
  EXPECT_EQ(RightSidePos(a), 100);
  EXPECT_EQ(RightSidePos(b), 110);
}

TEST_F(LayoutTiling, BoardWithAnotherKindOfChildIsLeftAlone) {
  Widg* a = FromGil(With(Board("a"), {{"XmNx", "10"}}), 5, 0, 1, 1);
  Widg* b = FromGil(With(Board("b"), {{"XmNx", "14"}}), 5, 50, 2, 2);
  TileBBoardChildren(NewWidg("XmBulletinBoard", "board", {a, b, NewWidg("XmLabel", "l")}));
  EXPECT_EQ(Resources(a), "XmNx=10");
}

TEST_F(LayoutTiling, DialogsAndPopupMenusArePassedOver) {
  Widg* a = FromGil(With(Board("a"), {{"XmNx", "10"}}), 5, 0, 1, 1);
  Widg* b = FromGil(With(Board("b"), {{"XmNx", "14"}}), 5, 50, 2, 2);
  TileBBoardChildren(NewWidg("XmBulletinBoard", "board",
                             {NewWidg("XmPopupMenu", "m"), a, NewWidg("XmDialogShell", "d"), b}));
  EXPECT_EQ(LeftSidePos(a), 14);
}

// Two boards whose left edges coincided, below one.
Widg* SplitBoard() {
  return NewWidg("XmBulletinBoard", "board",
                 {FromGil(With(Board("a"), {{"XmNx", "10"}}), 5, 0, 1, 1),
                  FromGil(With(Board("b"), {{"XmNx", "14"}}), 5, 50, 2, 2)});
}

TEST_F(LayoutTiling, BoardsOfTheWholeTreeAreTiled) {
  Widg* deep = SplitBoard();
  Widg* beside = SplitBoard();
  FinalRepositionInterface(
      Siblings({NewWidg("TopLevelShell", "shell", {NewWidg("XmForm", "f", {deep})}), beside}));
  EXPECT_EQ(LeftSidePos(deep->child), 14);
  EXPECT_EQ(LeftSidePos(beside->child), 14);
}

TEST_F(LayoutTiling, OnlyBoardsAreTiled) {
  Widg* board = SplitBoard();
  Widg* boards = board->child;
  Widg* form = NewWidg("XmForm", "form");
  SetChildren(form, boards);
  FinalRepositionInterface(form);
  EXPECT_EQ(LeftSidePos(boards), 10);
  EXPECT_EQ(LeftSidePos(boards->next), 14);
}

TEST_F(LayoutTiling, SiblingsBehindAChildlessWidgetAreNotVisited) {
  Widg* board = SplitBoard();
  FinalRepositionInterface(Siblings({NewWidg("TopLevelShell", "empty"), board}));
  EXPECT_EQ(LeftSidePos(board->child), 10);
}

TEST_F(LayoutTiling, InnerBoardsAreTiledBeforeOuterOnes) {
  // The inner board moves the outer board's second child nowhere; both levels are aligned.
  Widg* inner = SplitBoard();
  FromGil(With(inner, {{"XmNx", "3"}}), 1, 0, 0, 0);
  Widg* other = FromGil(With(Board("other"), {{"XmNx", "9"}}), 1, 70, 5, 5);
  FinalRepositionInterface(NewWidg("XmBulletinBoard", "outer", {inner, other}));
  EXPECT_EQ(LeftSidePos(inner), 9);
  EXPECT_EQ(LeftSidePos(inner->child), 14);
}

TEST_F(LayoutTiling, EmptyTreeIsLeftAlone) {
  FinalRepositionInterface(nullptr);
  EXPECT_EQ(top_widget, nullptr);
}

TEST_F(LayoutTiling, TreeThatLiesBelowItselfIsWalkedToAnEnd) {
  Widg* board = SplitBoard();
  AddChildWidg(board->child, board);
  FinalRepositionInterface(board);
  EXPECT_EQ(LeftSidePos(board->child), 14);
}

TEST_F(LayoutTiling, SizeMovesWidthFirst) {
  Widg* from = At(Board("from"), 1, 2, 3, 4);
  Widg* to = Board("to");
  MoveSizeResources(from, to);
  EXPECT_EQ(Resources(from), "XmNx=1 XmNy=2");
  EXPECT_EQ(Resources(to), "XmNwidth=3 XmNheight=4");
}

TEST_F(LayoutTiling, GeometryMovesPositionFirst) {
  Widg* from = With(Board("from"), {{"XmNheight", "4"}, {"XmNy", "2"}, {"XmNwidth", ""}});
  Widg* to = Board("to");
  MoveGeometryResources(from, to);
  EXPECT_EQ(Resources(from), "XmNwidth=");
  EXPECT_EQ(Resources(to), "XmNy=2 XmNheight=4");
}

}  // namespace
