// SPDX-License-Identifier: MIT
#include "widget/resources.h"

#include <gtest/gtest.h>

#include "unit/support/fatal_end.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/tree.h"

namespace {

using WidgResources = SessionFixture;

TEST_F(WidgResources, PositionMovesXFirst) {
  Widg* from = With(NewWidg("XmLabel", "from"), {{"XmNy", "2"}, {"XmNx", "1"}, {"XmNz", "3"}});
  Widg* to = NewWidg("XmLabel", "to");
  MovePositionResources(from, to);
  EXPECT_EQ(Resources(from), "XmNz=3");
  EXPECT_EQ(Resources(to), "XmNx=1 XmNy=2");
}

TEST_F(WidgResources, PositionThatIsNotSetDoesNotMove) {
  Widg* from = With(NewWidg("XmLabel", "from"), {{"XmNy", "2"}});
  Widg* to = With(NewWidg("XmLabel", "to"), {{"XmNx", "9"}});
  MovePositionResources(from, to);
  EXPECT_EQ(Resources(to), "XmNx=9 XmNy=2");
}

TEST_F(WidgResources, CopiedSizeStaysWithTheSource) {
  Widg* from = With(NewWidg("XmLabel", "from"), {{"XmNheight", "2"}, {"XmNwidth", "1"}});
  Widg* to = NewWidg("XmLabel", "to");
  CopySizeResources(from, to);
  EXPECT_EQ(Resources(from), "XmNheight=2 XmNwidth=1");
  EXPECT_EQ(Resources(to), "XmNwidth=1 XmNheight=2");
}

TEST_F(WidgResources, SizeThatIsNotSetIsNotCopied) {
  Widg* from = With(NewWidg("XmLabel", "from"), {{"XmNwidth", ""}});
  Widg* to = With(NewWidg("XmLabel", "to"), {{"XmNwidth", "9"}});
  CopySizeResources(from, to);
  EXPECT_EQ(Resources(to), "XmNwidth=9");
}

TEST_F(WidgResources, VisibilityMoves) {
  Widg* from = With(NewWidg("XmLabel", "from"), {{"XmNx", "1"}, {"XmNmappedWhenManaged", "false"}});
  Widg* to = NewWidg("XmLabel", "to");
  MoveVisibilityResources(from, to);
  EXPECT_EQ(Resources(from), "XmNx=1");
  EXPECT_EQ(Resources(to), "XmNmappedWhenManaged=false");
}

TEST_F(WidgResources, PositionBecomesRelativeToTheNewParent) {
  const Widg* parent = With(NewWidg("XmForm", "p"), {{"XmNx", "10"}, {"XmNy", "15"}});
  Widg* widg = With(NewWidg("XmLabel", "a"), {{"XmNx", "30"}, {"XmNy", "40"}});
  ReparentGeometry(parent, widg);
  EXPECT_EQ(Resources(widg), "XmNx=20 XmNy=25");
  EXPECT_EQ(Resources(parent), "XmNx=10 XmNy=15");
}

TEST_F(WidgResources, UnsetPositionsCountAsZero) {
  Widg* widg = NewWidg("XmLabel", "a");
  ReparentGeometry(With(NewWidg("XmForm", "p"), {{"XmNy", "15"}}), widg);
  EXPECT_EQ(Resources(widg), "XmNx=0 XmNy=-15");
}

TEST_F(WidgResources, RelativePositionsWrapTo32Bits) {
  Widg* widg = With(NewWidg("XmLabel", "a"), {{"XmNx", "-2147483648"}, {"XmNy", "2147483647"}});
  ReparentGeometry(With(NewWidg("XmForm", "p"), {{"XmNx", "1"}, {"XmNy", "-1"}}), widg);
  EXPECT_EQ(Resources(widg), "XmNx=2147483647 XmNy=-2147483648");
}

TEST_F(WidgResources, TightBoardHasNoMarginsAndOnlyGrows) {
  Widg* board = NewWidg("XmBulletinBoard", "board");
  SetTightBoard(board);
  EXPECT_EQ(Resources(board), "XmNmarginWidth=0 XmNmarginHeight=0 XmNresizePolicy=XmRESIZE_GROW");
}

TEST_F(WidgResources, WidgetListIsQuoted) {
  EXPECT_STREQ(MakeWidgList("okBtn"), "\"(WL)[okBtn]\"");
  EXPECT_STREQ(MakeWidgList(""), "\"(WL)[]\"");
  EXPECT_STREQ(MakeWidgList(nullptr), "\"(WL)[]\"");
}

TEST_F(WidgResources, ExhaustedMemoryForAWidgetListIsFatal) {
  ExpectError(RunOutOfMemory(0, [] { MakeWidgList("okBtn"); }), "Out of memory in MakeWidgList");
}

}  // namespace
