// SPDX-License-Identifier: MIT
#include "layout/geometry.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/copy.h"
#include "widget/tree.h"

namespace {

using LayoutGeometry = SessionFixture;

constexpr int32_t kMax = 2147483647;
constexpr int32_t kMin = -kMax - 1;

TEST_F(LayoutGeometry, EdgesComeFromTheResources) {
  const Widg* widg = FromGil(At(NewWidg("XmLabel", "a"), 10, 20, 30, 40), 1, 2, 3, 4);
  EXPECT_EQ(LeftSidePos(widg), 10);
  EXPECT_EQ(TopPos(widg), 20);
  EXPECT_EQ(RightSidePos(widg), 40);
  EXPECT_EQ(BottomPos(widg), 60);
  EXPECT_EQ(Width(widg), 30);
  EXPECT_EQ(Height(widg), 40);
}

TEST_F(LayoutGeometry, AbsentAndNonNumericResourcesCountAsZero) {
  const Widg* widg = With(NewWidg("XmLabel", "a"), {{"XmNx", "wide"}});
  EXPECT_EQ(LeftSidePos(widg), 0);
  EXPECT_EQ(BottomPos(widg), 0);
  EXPECT_EQ(ApproxRightSidePos(widg), 0);
}

TEST_F(LayoutGeometry, RightSideIsGuessedFromTheHeight) {
  const Widg* widg = FromGil(At(NewWidg("XmLabel", "a"), 100, 0, 70, 25), 0, 0, 50, 9);
  EXPECT_EQ(ApproxRightSidePos(widg), 125);
  EXPECT_EQ(ApproxBottomPos(widg), 25);
}

TEST_F(LayoutGeometry, WithoutAHeightTheGilSizeAndTheAllowanceCount) {
  Widg* widg = FromGil(With(NewWidg("XmLabel", "a"), {{"XmNx", "1"}, {"XmNy", "2"}}), 0, 0, 50, 9);
  widg->extra_width = 5;
  widg->extra_height = 10;
  EXPECT_EQ(ApproxRightSidePos(widg), 56);
  EXPECT_EQ(ApproxBottomPos(widg), 21);
}

TEST_F(LayoutGeometry, NegativeHeightIsAHeight) {
  Widg* widg = FromGil(At(NewWidg("XmLabel", "a"), 100, 50, 70, -5), 0, 0, 30, 9);
  widg->extra_width = 3;
  widg->extra_height = 4;
  EXPECT_EQ(ApproxRightSidePos(widg), 95);
  EXPECT_EQ(ApproxBottomPos(widg), 45);
}

TEST_F(LayoutGeometry, SumsWrapTo32Bits) {
  const Widg* widg = At(NewWidg("XmLabel", "a"), kMax, kMax, 1, 1);
  EXPECT_EQ(RightSidePos(widg), kMin);
  EXPECT_EQ(BottomPos(widg), kMin);
  EXPECT_EQ(ApproxRightSidePos(widg), kMin);
}

TEST_F(LayoutGeometry, EveryWidgetMovesRightAndThoseBelowMoveDown) {
  Widg* above = At(NewWidg("XmLabel", "a"), 1, 30, 0, 0);
  Widg* below = At(NewWidg("XmLabel", "b"), 2, 31, 0, 0);
  MoveWidgsToFit(Siblings({above, below}), 30, 5, 22);
  EXPECT_EQ(Resources(above), "XmNx=6 XmNy=30 XmNwidth=0 XmNheight=0");
  EXPECT_EQ(Resources(below), "XmNx=7 XmNy=53 XmNwidth=0 XmNheight=0");
}

TEST_F(LayoutGeometry, WidgetWithoutAPositionGetsOne) {
  Widg* widg = NewWidg("XmLabel", "a");
  MoveWidgsToFit(widg, 10, 0, 5);
  EXPECT_EQ(Resources(widg), "XmNx=0");
}

TEST_F(LayoutGeometry, MovesWrapTo32Bits) {
  Widg* widg = With(NewWidg("XmLabel", "a"), {{"XmNx", "2147483647"}, {"XmNy", "2147483647"}});
  MoveWidgsToFit(widg, 0, 1, 1);
  EXPECT_EQ(Resources(widg), "XmNx=-2147483648 XmNy=-2147483648");
}

TEST_F(LayoutGeometry, TextFieldPushesWhatIsBelowIt) {
  Widg* field = At(NewWidg("XmTextField", "field"), 3, 10, 100, 20);
  Widg* button = At(NewWidg("XmPushButton", "button"), 4, 40, 50, 20);
  FixUpGeometry(NewWidg("XmBulletinBoard", "board", {field, button}));
  EXPECT_EQ(Resources(field), "XmNx=8 XmNy=10 XmNwidth=100 XmNheight=20");
  EXPECT_EQ(Resources(button), "XmNx=9 XmNy=62 XmNwidth=50 XmNheight=20");
}

TEST_F(LayoutGeometry, WidgetExactlyAtTheBottomStays) {
  Widg* field = At(NewWidg("XmTextField", "field"), 0, 10, 100, 20);
  Widg* button = At(NewWidg("XmPushButton", "button"), 0, 30, 50, 20);
  FixUpGeometry(NewWidg("XmBulletinBoard", "board", {field, button}));
  EXPECT_EQ(TopPos(button), 30);
}

TEST_F(LayoutGeometry, TwoTextFieldsMoveEverythingRightTwice) {
  Widg* first = At(NewWidg("XmTextField", "a"), 0, 0, 100, 20);
  Widg* second = At(NewWidg("XmTextField", "b"), 0, 50, 100, 20);
  FixUpGeometry(NewWidg("XmBulletinBoard", "board", {first, second}));
  EXPECT_EQ(LeftSidePos(first), 10);
  EXPECT_EQ(LeftSidePos(second), 10);
  EXPECT_EQ(TopPos(second), 72);
}

TEST_F(LayoutGeometry, LaterCausesStandWhereEarlierOnesMovedThem) {
  // The first field moves the second to 43; its bottom, 63, is then below the label at 62.
  Widg* first = At(NewWidg("XmTextField", "a"), 0, 0, 100, 20);
  Widg* second = At(NewWidg("XmTextField", "b"), 0, 21, 100, 20);
  Widg* label = At(NewWidg("XmLabel", "c"), 0, 40, 100, 20);
  FixUpGeometry(NewWidg("XmBulletinBoard", "board", {first, second, label}));
  EXPECT_EQ(TopPos(second), 43);
  EXPECT_EQ(TopPos(label), 62);
}

struct Allowance {
  const char* class_name;
  int32_t dx, dy;
};

TEST_F(LayoutGeometry, EachClassTakesItsOwnRoom) {
  for (const Allowance& allowance : {Allowance{"XmTextField", 5, 22}, Allowance{"XmText", 5, 10},
                                     Allowance{"XmToggleButton", 30, 0},
                                     Allowance{"XmMenuBar", 0, 5}, Allowance{"XmScale", 0, 0}}) {
    Widg* cause = At(NewWidg(allowance.class_name, "cause"), 0, 0, 10, 10);
    Widg* below = At(NewWidg("XmLabel", "below"), 0, 100, 10, 10);
    FixUpGeometry(NewWidg("XmBulletinBoard", "board", {cause, below}));
    EXPECT_EQ(LeftSidePos(below), allowance.dx) << allowance.class_name;
    EXPECT_EQ(TopPos(below), 100 + allowance.dy) << allowance.class_name;
    EXPECT_EQ(LeftSidePos(cause), allowance.dx) << allowance.class_name;
  }
}

TEST_F(LayoutGeometry, ChildlessContainerKeepsItsResources) {
  Widg* board = With(NewWidg("XmBulletinBoard", "board"), {{"XmNwidth", "7"}});
  FixUpGeometry(board);
  EXPECT_EQ(Resources(board), "XmNwidth=7");
}

TEST_F(LayoutGeometry, ContainerAlwaysGetsASize) {
  Widg* board = NewWidg("XmBulletinBoard", "board", {NewWidg("XmLabel", "a")});
  FixUpGeometry(board);
  EXPECT_EQ(Resources(board), "XmNwidth=0 XmNheight=0");
}

TEST_F(LayoutGeometry, ContainerNeverShrinks) {
  Widg* board = At(NewWidg("XmBulletinBoard", "board", {At(NewWidg("XmLabel", "a"), 1, 1, 5, 5)}),
                   0, 0, 300, 200);
  FixUpGeometry(board);
  EXPECT_EQ(Resources(board), "XmNx=0 XmNy=0 XmNwidth=300 XmNheight=200");
}

TEST_F(LayoutGeometry, ContainerGrowsToItsChildrensGuessedEdges) {
  Widg* tall = At(NewWidg("XmLabel", "a"), 100, 0, 500, 25);
  Widg* unsized = FromGil(With(NewWidg("XmLabel", "b"), {{"XmNy", "60"}}), 0, 0, 10, 30);
  unsized->extra_height = 3;
  Widg* board = NewWidg("XmBulletinBoard", "board", {tall, unsized});
  FixUpGeometry(board);
  EXPECT_EQ(Resources(board), "XmNwidth=125 XmNheight=93");
}

TEST_F(LayoutGeometry, SecondFixUpMovesTheChildrenAgain) {
  Widg* toggle = At(NewWidg("XmToggleButton", "a"), 1, 0, 10, 10);
  Widg* board = NewWidg("XmBulletinBoard", "board", {toggle});
  FixUpGeometry(board);
  FixUpGeometry(board);
  EXPECT_EQ(LeftSidePos(toggle), 61);
}

TEST_F(LayoutGeometry, ChildrenThatShareTheirResourcesMoveTogether) {
  // Both hold one list of resources: each shift is made on it twice.
  Widg* first = At(NewWidg("XmToggleButton", "a"), 0, 0, 10, 10);
  Widg* second = CopyWidg(first);
  second->class_name = "XmLabel";
  FixUpGeometry(NewWidg("XmBulletinBoard", "board", {first, second}));
  EXPECT_EQ(LeftSidePos(first), 60);
}

}  // namespace
