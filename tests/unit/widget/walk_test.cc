// SPDX-License-Identifier: MIT
#include "widget/walk.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/links.h"
#include "widget/walk_testing.h"

namespace {

using WidgWalk = SessionFixture;

constexpr WalkOrder kSelfFirst = {WalkStep::kSelf, WalkStep::kNext, WalkStep::kChild};
constexpr WalkOrder kSelfLast = {WalkStep::kNext, WalkStep::kChild, WalkStep::kSelf};
constexpr WalkOrder kChildrenFirst = {WalkStep::kChild, WalkStep::kSelf, WalkStep::kNext};

bool Always(const Widg*) { return true; }

// The GIL names of the widgets in the order in which they are handled.
std::string Handled(Widg* first, const WalkOrder& order, bool (*MayEnter)(const Widg*) = Always) {
  std::string names;
  WalkWidgets(first, order, MayEnter, [&](const Widg* widg) { names += widg->gil_name; });
  return names;
}

Widg* SmallTree() {
  return Siblings({NewWidg("XmForm", "a", {Leaf("b"), NewWidg("XmForm", "c", {Leaf("d")})}),
                   NewWidg("XmForm", "e", {Leaf("f")})});
}

TEST_F(WidgWalk, OrdersAreThoseOfARecursion) {
  EXPECT_EQ(Handled(SmallTree(), kSelfFirst), "aefbcd");
  EXPECT_EQ(Handled(SmallTree(), kSelfLast), "fedcba");
  EXPECT_EQ(Handled(SmallTree(), kChildrenFirst), "bdcafe");
}

TEST_F(WidgWalk, EmptyTreeHasNothingToHandle) { EXPECT_EQ(Handled(nullptr, kSelfFirst), ""); }

TEST_F(WidgWalk, WhatMayNotBeEnteredHidesItsSiblings) {
  Widg* tree = Siblings(
      {NewWidg("XmForm", "a", {Leaf("b")}), Leaf("c"), NewWidg("XmForm", "d", {Leaf("e")})});
  EXPECT_EQ(Handled(tree, kSelfFirst, [](const Widg* widg) { return widg->child != nullptr; }),
            "a");
}

TEST_F(WidgWalk, WidgetOnTwoPathsIsHandledTwice) {
  Widg* shared = Leaf("m");
  Widg* a = NewWidg("XmForm", "a", {shared});
  Widg* b = NewWidg("XmForm", "b");
  SetChildren(b, shared);
  EXPECT_EQ(Handled(Siblings({a, b}), kChildrenFirst), "mamb");
}

TEST_F(WidgWalk, WidgetBelowItselfIsPassedOverThere) {
  Widg* inner = Leaf("b");
  Widg* outer = NewWidg("XmForm", "a", {inner});
  AddChildWidg(inner, outer);
  EXPECT_EQ(Handled(outer, kSelfFirst), "ab");
}

TEST_F(WidgWalk, WidgetAddedBelowTheHandledOneIsHandledToo) {
  std::string names;
  WalkWidgets(Leaf("a"), kSelfFirst, Always, [&](Widg* widg) {
    names += widg->gil_name;
    if (names == "a") AddChildWidg(widg, Leaf("b"));
  });
  EXPECT_EQ(names, "ab");
}

// So many levels of two siblings that share the level below.
Widg* ManyPaths(int levels) {
  Widg* below = Leaf("m");
  for (int level = 0; level < levels; ++level) {
    Widg* left = Leaf("l");
    Widg* right = Leaf("r");
    SetChildren(left, below);
    SetChildren(right, below);
    below = Siblings({left, right});
  }
  return below;
}

TEST_F(WidgWalk, MorePathsThanAnybodyCanWalkEnd) {
  std::size_t handled = 0;
  WalkWidgets(ManyPaths(60), kSelfFirst, Always, [&](const Widg*) { ++handled; });
  EXPECT_GT(handled, kMaxRepeats);
  EXPECT_LT(handled, 2 * kMaxRepeats);
}

TEST_F(WidgWalk, LongMenuOfManyButtonsIsWalkedForEach) {
  Widg* items = nullptr;
  for (int i = 0; i < 200; ++i) {
    Widg* item = Leaf("i");
    item->next = items;
    items = item;
  }
  Widg* buttons = nullptr;
  for (int i = 0; i < 1000; ++i) {
    Widg* button = Leaf("b");
    button->next = buttons;
    buttons = button;
    SetChildren(button, items);
  }
  std::size_t handled = 0;
  WalkWidgets(buttons, kChildrenFirst, Always, [&](const Widg*) { ++handled; });
  EXPECT_EQ(handled, 1000U * 201U);
}

TEST_F(WidgWalk, FuzzersMayHaveFewerRepeats) {
  LimitRepeats(10);
  std::size_t handled = 0;
  WalkWidgets(ManyPaths(10), kSelfFirst, Always, [&](const Widg*) { ++handled; });
  LimitRepeats(kMaxRepeats);
  // Each of the widgets once, and the repeats.
  EXPECT_EQ(handled, 21U + 10U);
}

TEST_F(WidgWalk, DeepTreeDoesNotExhaustTheStack) {
  Widg* tree = Leaf("a");
  for (int level = 1; level < 20000; ++level) tree = NewWidg("XmForm", "level", {tree});
  std::size_t handled = 0;
  WalkWidgets(tree, kSelfLast, Always, [&](const Widg*) { ++handled; });
  EXPECT_EQ(handled, 20000u);
}

}  // namespace
