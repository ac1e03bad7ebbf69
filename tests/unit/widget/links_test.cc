// SPDX-License-Identifier: MIT
#include "widget/links.h"
#include "widget/nesting.h"

#include <gtest/gtest.h>

#include <string>

#include "unit/support/check_widg_tree.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/tree.h"

namespace {

using WidgLinks = SessionFixture;

TEST_F(WidgLinks, FirstChildOfAParentWithoutOne) {
  Widg* parent = NewWidg("XmForm", "p");
  AddChildWidg(parent, Leaf("a"));
  EXPECT_EQ(NameTree(parent), "p(a)");
}

TEST_F(WidgLinks, ChildIsAppended) {
  Widg* parent = NewWidg("XmForm", "p", {Leaf("a"), Leaf("b")});
  AddChildWidg(parent, Leaf("c"));
  EXPECT_EQ(NameTree(parent), "p(a b c)");
  EXPECT_EQ(CheckWidgTree(parent), "");
}

TEST_F(WidgLinks, ChildBringsItsChainAlong) {
  Widg* parent = NewWidg("XmForm", "p", {Leaf("a")});
  AddChildWidg(parent, Siblings({Leaf("menu1"), Leaf("menu2"), Leaf("shell")}));
  EXPECT_EQ(NameTree(parent), "p(a menu1 menu2 shell)");
}

TEST_F(WidgLinks, ChildThatEndsTheListAlreadyIsNotAppended) {
  Widg* last = Leaf("b");
  Widg* parent = NewWidg("XmForm", "p", {Leaf("a"), last});
  AddChildWidg(parent, last);
  EXPECT_EQ(NameTree(parent), "p(a b)");
}

TEST_F(WidgLinks, ChildWhoseChainEndsTheListDoesNotCloseACircle) {
  Widg* first = Leaf("a");
  Widg* parent = NewWidg("XmForm", "p", {first, Leaf("b")});
  AddChildWidg(parent, first);
  EXPECT_EQ(NameTree(parent), "p(a b)");
}

TEST_F(WidgLinks, ChildThatIsThereAlreadyIsNotAppendedLast) {
  Widg* first = Leaf("a");
  Widg* parent = NewWidg("XmForm", "p", {first, Leaf("b")});
  AddChildLast(parent, first);
  EXPECT_EQ(NameTree(parent), "p(a b)");
}

TEST_F(WidgLinks, NewChildIsAppendedLast) {
  Widg* parent = NewWidg("XmForm", "p", {Leaf("a")});
  AddChildLast(parent, Leaf("b"));
  EXPECT_EQ(NameTree(parent), "p(a b)");
}

TEST_F(WidgLinks, RemovingTheHeadReturnsTheNext) {
  Widg* a = Leaf("a");
  Widg* head = Siblings({a, Leaf("b")});
  EXPECT_EQ(Names(RemoveSibling(head, a)), "b");
  EXPECT_EQ(a->next, nullptr);
}

TEST_F(WidgLinks, RemovingALaterSiblingKeepsTheHead) {
  Widg* b = Leaf("b");
  Widg* head = Siblings({Leaf("a"), b, Leaf("c")});
  EXPECT_EQ(RemoveSibling(head, b), head);
  EXPECT_EQ(Names(head), "a c");
  EXPECT_EQ(b->next, nullptr);
}

TEST_F(WidgLinks, RemovingAnAbsentSiblingChangesNothing) {
  Widg* head = Siblings({Leaf("a"), Leaf("b")});
  Widg* stranger = Siblings({Leaf("x"), Leaf("y")});
  EXPECT_EQ(RemoveSibling(head, stranger), head);
  EXPECT_EQ(Names(head), "a b");
  EXPECT_EQ(Names(stranger), "x y");
  EXPECT_EQ(RemoveSibling(nullptr, stranger), nullptr);
}

TEST_F(WidgLinks, RemovingTheOnlyChildLeavesNone) {
  Widg* a = Leaf("a");
  Widg* parent = NewWidg("XmForm", "p", {a});
  RemoveChild(parent, a);
  EXPECT_EQ(parent->child, nullptr);
}

TEST_F(WidgLinks, RemovingWhatIsNoDirectChildChangesNothing) {
  Widg* deep = Leaf("deep");
  Widg* parent = NewWidg("XmForm", "p", {NewWidg("XmForm", "a", {deep, Leaf("b")})});
  RemoveChild(parent, deep);
  EXPECT_EQ(NameTree(parent), "p(a(deep b))");
}

TEST_F(WidgLinks, RemovingTheFirstTopLevelWidgetMakesTheSecondTheTree) {
  Widg* a = Leaf("a");
  Widg* b = Leaf("b");
  EXPECT_EQ(RemoveWidg(Siblings({a, b}), a), b);
  EXPECT_EQ(a->next, nullptr);
}

TEST_F(WidgLinks, RemovingTheOnlyTopLevelWidgetLeavesNothing) {
  Widg* a = Leaf("a");
  EXPECT_EQ(RemoveWidg(a, a), nullptr);
}

TEST_F(WidgLinks, RemovingAWidgetFromItsParentKeepsTheTree) {
  Widg* deep = Leaf("deep");
  Widg* tree = Siblings({NewWidg("XmForm", "a", {Leaf("x"), deep, Leaf("y")}), Leaf("b")});
  EXPECT_EQ(RemoveWidg(tree, deep), tree);
  EXPECT_EQ(NameTree(tree), "a(x y) b");
  EXPECT_EQ(deep->next, nullptr);
}

TEST_F(WidgLinks, RemovingAnAbsentWidgetKeepsTheTree) {
  Widg* tree = Siblings({NewWidg("XmForm", "a", {Leaf("x")}), Leaf("b")});
  EXPECT_EQ(RemoveWidg(tree, Leaf("stranger")), tree);
  EXPECT_EQ(NameTree(tree), "a(x) b");
}

TEST_F(WidgLinks, MovedWidgetLeavesItsChainBehind) {
  Widg* menu = Leaf("menu");
  Widg* from = NewWidg("XmForm", "from", {menu, Leaf("a")});
  Widg* to = NewWidg("XmForm", "to", {Leaf("b")});
  MoveWidgetInHierarchy(menu, from, to);
  EXPECT_EQ(NameTree(from), "from(a)");
  EXPECT_EQ(NameTree(to), "to(b menu)");
}

TEST_F(WidgLinks, MovingWithinOneParentMakesTheWidgetTheLast) {
  Widg* menu = Leaf("menu");
  Widg* parent = NewWidg("XmForm", "p", {menu, Leaf("a")});
  MoveWidgetInHierarchy(menu, parent, parent);
  EXPECT_EQ(NameTree(parent), "p(a menu)");
}

TEST_F(WidgLinks, NewListOfChildrenReplacesTheFormer) {
  Widg* former = Leaf("a");
  Widg* parent = NewWidg("XmForm", "p", {former});
  SetChildren(parent, Siblings({Leaf("b"), Leaf("c")}));
  EXPECT_EQ(NameTree(parent), "p(b c)");
  SetChildren(parent, nullptr);
  EXPECT_EQ(parent->child, nullptr);
}

TEST_F(WidgLinks, ClaimedChildBringsWhatStandsBehindIt) {
  Widg* menu = Leaf("menu");
  TopLevel({menu, Leaf("shell")});
  Widg* button = NewWidg("XmCascadeButton", "button");
  SetChildren(button, menu);
  EXPECT_EQ(NameTree(button), "button(menu shell)");
  EXPECT_EQ(Names(top_widget), "menu shell");
}

TEST_F(WidgLinks, LastSiblingEndsTheList) {
  Widg* last = Leaf("c");
  EXPECT_EQ(LastSibling(Siblings({Leaf("a"), Leaf("b"), last})), last);
  EXPECT_EQ(LastSibling(last), last);
  EXPECT_EQ(LastSibling(nullptr), nullptr);
}

}  // namespace
