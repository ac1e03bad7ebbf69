// SPDX-License-Identifier: MIT
#include "layout/overlap.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <vector>

#include "layout/geometry.h"
#include "unit/support/fatal_end.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/links.h"
#include "widget/tree.h"

namespace {

using LayoutOverlap = SessionFixture;

// A widget from `top` to `bottom`.
Widg* Rows(int32_t top, int32_t bottom) {
  return At(NewWidg("XmLabel", "rows"), 0, top, 0, bottom - top);
}

// A widget from `left` to `right`: without a height the right edge comes from the GIL width.
Widg* Columns(int32_t left, int32_t right) {
  return FromGil(At(NewWidg("XmLabel", "columns"), left, 0, right - left, 0), 0, 0, right - left,
                 0);
}

TEST_F(LayoutOverlap, CloseIsLessThanTenPixels) {
  EXPECT_TRUE(IsClose(0, 9));
  EXPECT_FALSE(IsClose(0, 10));
  EXPECT_TRUE(IsClose(9, 0));
  EXPECT_FALSE(IsClose(10, 0));
  EXPECT_FALSE(IsClose(-2147483647 - 1, 0));
}

TEST_F(LayoutOverlap, ContainedIncludesTheEnds) {
  EXPECT_TRUE(ContainedWithin(1, 1, 3));
  EXPECT_TRUE(ContainedWithin(3, 1, 3));
  EXPECT_FALSE(ContainedWithin(0, 1, 3));
  EXPECT_FALSE(ContainedWithin(4, 1, 3));
}

TEST_F(LayoutOverlap, RowsOverlapWhereAnEdgeLiesInside) {
  EXPECT_TRUE(VerticalOverlap(Rows(0, 20), Rows(10, 30)));
  EXPECT_TRUE(VerticalOverlap(Rows(10, 30), Rows(0, 20)));
  EXPECT_TRUE(VerticalOverlap(Rows(10, 20), Rows(0, 30)));
  EXPECT_TRUE(VerticalOverlap(Rows(0, 30), Rows(10, 20)));
}

TEST_F(LayoutOverlap, RowsThatTouchOrAreTheSameDoNotOverlap) {
  EXPECT_FALSE(VerticalOverlap(Rows(0, 20), Rows(20, 30)));
  EXPECT_FALSE(VerticalOverlap(Rows(20, 30), Rows(0, 20)));
  EXPECT_FALSE(VerticalOverlap(Rows(0, 20), Rows(0, 20)));
  EXPECT_FALSE(VerticalOverlap(Rows(0, 20), Rows(30, 40)));
}

TEST_F(LayoutOverlap, ColumnsOfOneAnotherAreAligned) {
  EXPECT_TRUE(AlignedVertically(Columns(20, 80), Columns(0, 100)));
  EXPECT_TRUE(AlignedVertically(Columns(0, 100), Columns(20, 80)));
}

TEST_F(LayoutOverlap, ColumnsThatBeginInsideTheFirstAreAligned) {
  EXPECT_TRUE(AlignedVertically(Columns(0, 100), Columns(50, 200)));
  EXPECT_FALSE(AlignedVertically(Columns(50, 200), Columns(0, 100)));
}

TEST_F(LayoutOverlap, ColumnsWithCloseEdgesAreAligned) {
  EXPECT_TRUE(AlignedVertically(Columns(9, 50), Columns(0, 5)));
  EXPECT_FALSE(AlignedVertically(Columns(10, 50), Columns(0, 5)));
  EXPECT_TRUE(AlignedVertically(Columns(100, 109), Columns(0, 100)));
}

TEST_F(LayoutOverlap, ColumnsFarApartAreNotAligned) {
  EXPECT_FALSE(AlignedVertically(Columns(0, 50), Columns(100, 200)));
}

TEST_F(LayoutOverlap, MostlyIsMoreThanSevenTenthsOfTheWidth) {
  EXPECT_TRUE(MostlyHorizontalOverlap(Columns(71, 200), Columns(0, 100)));
  EXPECT_FALSE(MostlyHorizontalOverlap(Columns(69, 200), Columns(0, 100)));
}

TEST_F(LayoutOverlap, MostlyNeedsALeftEdgeInside) {
  EXPECT_FALSE(MostlyHorizontalOverlap(Columns(100, 200), Columns(0, 100)));
  EXPECT_FALSE(MostlyHorizontalOverlap(Columns(0, 200), Columns(0, 100)));
  EXPECT_FALSE(MostlyHorizontalOverlap(Columns(-80, 200), Columns(0, 100)));
}

TEST_F(LayoutOverlap, RectangleHasTheGuessedEdges) {
  Rectangle* rect = Rect(At(NewWidg("XmLabel", "a"), 1, 2, 30, 40));
  EXPECT_EQ(rect->left, 1);
  EXPECT_EQ(rect->top, 2);
  EXPECT_EQ(rect->right, 41);
  EXPECT_EQ(rect->bottom, 42);
  std::free(rect);
}

TEST_F(LayoutOverlap, ExhaustedMemoryForARectangleIsFatal) {
  const Widg* widg = NewWidg("XmLabel", "a");
  ExpectError(RunOutOfMemory(0, [&] { Rect(widg); }), "Out of memory in RectangleCorners");
}

TEST_F(LayoutOverlap, PointsOnTheBorderAreOutside) {
  const Rectangle rect = {0, 0, 10, 20};
  EXPECT_TRUE(PointInRect(1, 1, &rect));
  EXPECT_TRUE(PointInRect(9, 19, &rect));
  EXPECT_FALSE(PointInRect(0, 5, &rect));
  EXPECT_FALSE(PointInRect(10, 5, &rect));
  EXPECT_FALSE(PointInRect(5, 0, &rect));
  EXPECT_FALSE(PointInRect(5, 20, &rect));
}

TEST_F(LayoutOverlap, LowerWidgetMovesBelowTheUpper) {
  Widg* lower = Rows(10, 30);
  MoveToAvoidVerticalOverlap(lower, Rows(0, 20));
  EXPECT_EQ(TopPos(lower), 20);
}

TEST_F(LayoutOverlap, OverlappingChildrenAreStacked) {
  Widg* a = FromGil(Rows(0, 20), 0, 0, 0, 0);
  Widg* b = FromGil(Rows(10, 30), 0, 10, 0, 0);
  Widg* c = FromGil(Rows(25, 45), 0, 25, 0, 0);
  Widg* board = NewWidg("XmBulletinBoard", "board", {a, b, c});
  AvoidVerticalOverlap(board);
  EXPECT_EQ(TopPos(a), 0);
  EXPECT_EQ(TopPos(b), 20);
  EXPECT_EQ(TopPos(c), 40);
  EXPECT_EQ(Resources(board), "");
}

TEST_F(LayoutOverlap, ChildrenFarApartSidewaysStay) {
  Widg* a = FromGil(At(NewWidg("XmLabel", "a"), 0, 0, 20, 20), 0, 0, 0, 0);
  Widg* b = FromGil(At(NewWidg("XmLabel", "b"), 100, 10, 20, 20), 0, 10, 0, 0);
  AvoidVerticalOverlap(NewWidg("XmBulletinBoard", "board", {a, b}));
  EXPECT_EQ(TopPos(b), 10);
}

TEST_F(LayoutOverlap, EmptyContainerIsLeftAlone) {
  Widg* board = NewWidg("XmBulletinBoard", "board");
  AvoidVerticalOverlap(board);
  EXPECT_EQ(Resources(board), "");
}

TEST_F(LayoutOverlap, ChildrenBeyondThe128thAreLeftOut) {
  Widg* board = NewWidg("XmBulletinBoard", "board");
  std::vector<Widg*> children;
  for (int32_t i = 0; i < 129; ++i) {
    // The last two begin inside the one before them, once that has moved: 12600, 12605, 12612.
    const int32_t top = i < 127 ? 100 * i : (i == 127 ? 12605 : 12612);
    children.push_back(FromGil(Rows(top, top + 10), 0, top, 0, 0));
    AddChildWidg(board, children.back());
  }
  AvoidVerticalOverlap(board);
  EXPECT_EQ(TopPos(children[127]), 12610);
  EXPECT_EQ(TopPos(children[128]), 12612);
}

}  // namespace
