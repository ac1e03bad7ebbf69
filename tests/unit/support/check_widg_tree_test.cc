// SPDX-License-Identifier: MIT
#include "unit/support/check_widg_tree.h"

#include <gtest/gtest.h>

#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/links.h"

namespace {

using CheckedTree = SessionFixture;

Widg* Leaf(const char* name) { return NewWidg("XmLabel", name); }

TEST_F(CheckedTree, NothingAndAnOrdinaryTreeAreInOrder) {
  EXPECT_EQ(CheckWidgTree(nullptr), "");
  EXPECT_EQ(CheckWidgTree(Siblings({NewWidg("XmForm", "a", {Leaf("b"), Leaf("c")}), Leaf("d")})),
            "");
}

TEST_F(CheckedTree, WidgetInTwoListsIsReported) {
  Widg* shared = Leaf("menu");
  Widg* a = NewWidg("XmForm", "a", {shared});
  Widg* b = NewWidg("XmForm", "b");
  SetChildren(b, shared);
  EXPECT_EQ(CheckWidgTree(Siblings({a, b})),
            "menu is in the children of b and in the children of a\n");
}

TEST_F(CheckedTree, ChildThatIsTopLevelTooIsReported) {
  Widg* menu = Leaf("menu");
  Widg* button = NewWidg("XmCascadeButton", "button");
  TopLevel({button, menu});
  SetChildren(button, menu);
  EXPECT_EQ(CheckWidgTree(button), "menu is in the top level and in the children of button\n");
}

TEST_F(CheckedTree, ListInACircleIsReported) {
  Widg* a = Leaf("a");
  Widg* b = Leaf("b");
  Siblings({a, b, a});
  EXPECT_EQ(CheckWidgTree(a), "the top level: the list runs back to a\n");
}

TEST_F(CheckedTree, WidgetBelowItselfIsReported) {
  Widg* inner = Leaf("inner");
  Widg* outer = NewWidg("XmForm", "outer", {inner});
  AddChildWidg(inner, outer);
  EXPECT_EQ(CheckWidgTree(outer), "outer is in the top level and in the children of inner\n");
}

}  // namespace
