// SPDX-License-Identifier: MIT
#include "widget/nesting.h"

#include <gtest/gtest.h>

#include "unit/support/check_widg_tree.h"
#include "unit/support/fatal_end.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/tree.h"

namespace {

using WidgNesting = SessionFixture;

TEST_F(WidgNesting, SubHierarchyTakesTheFirstChildOut) {
  Widg* child = With(Leaf("a"), {{"XmNwidth", "9"}, {"XmNx", "1"}, {"XmNy", "2"}});
  Widg* parent = NewWidg("XmForm", "p", {child, Leaf("b")});
  Widg* wrapper = NewWidg("XmFrame", "w");
  MakeSubHier(parent, child, wrapper);
  EXPECT_EQ(NameTree(parent), "p(b)");
  EXPECT_EQ(NameTree(wrapper), "w(a)");
  EXPECT_EQ(Resources(wrapper), "XmNx=1 XmNy=2");
  EXPECT_EQ(Resources(child), "XmNwidth=9");
}

TEST_F(WidgNesting, SubHierarchyTakesALaterChildOut) {
  Widg* child = With(Leaf("b"), {{"XmNx", "1"}});
  Widg* parent = NewWidg("XmForm", "p", {Leaf("a"), child, Leaf("c")});
  Widg* wrapper = NewWidg("XmFrame", "w");
  MakeSubHier(parent, child, wrapper);
  EXPECT_EQ(NameTree(parent), "p(a c)");
  EXPECT_EQ(NameTree(wrapper), "w(b)");
  EXPECT_EQ(Resources(wrapper), "XmNx=1");
}

TEST_F(WidgNesting, SubHierarchyReplacesTheChildrenOfTheNewParent) {
  Widg* child = Leaf("b");
  Widg* parent = NewWidg("XmForm", "p", {Leaf("a"), child});
  Widg* wrapper = NewWidg("XmFrame", "w", {Leaf("former")});
  MakeSubHier(parent, child, wrapper);
  EXPECT_EQ(NameTree(wrapper), "w(b)");
}

TEST_F(WidgNesting, SubHierarchyOfAStrangerIsReported) {
  Widg* stranger = With(Leaf("a"), {{"XmNx", "1"}});
  Widg* parent = NewWidg("XmForm", "p", {Leaf("b")});
  Widg* wrapper = NewWidg("XmFrame", "w", {Leaf("c")});
  const Outcome outcome = Run([&] { MakeSubHier(parent, stranger, wrapper); });
  EXPECT_EQ(outcome.status, std::nullopt);
  EXPECT_EQ(outcome.err, "ERROR: MakeSubHier: parent and child are not\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(NameTree(parent), "p(b)");
  EXPECT_EQ(NameTree(wrapper), "w(c)");
  EXPECT_EQ(Resources(stranger), "XmNx=1");
  EXPECT_EQ(Resources(wrapper), "");
}

TEST_F(WidgNesting, InsertedBoardAdoptsTheChildrenAndTheSize) {
  Widg* shell = With(NewWidg("TopLevelShell", "shell", {Leaf("a"), Leaf("b")}),
                     {{"XmNheight", "20"}, {"XmNwidth", "10"}, {"XmNx", "1"}});
  InsertWidgBelow(shell, "XmBulletinBoard", Writable("bboard"));
  EXPECT_EQ(NameTree(shell), "shell(bboard(a b))");
  EXPECT_EQ(Resources(shell->child),
            "XmNwidth=10 XmNheight=20 XmNmarginWidth=0 XmNmarginHeight=0 "
            "XmNresizePolicy=XmRESIZE_GROW");
  EXPECT_EQ(Resources(shell), "XmNheight=20 XmNwidth=10 XmNx=1");
  EXPECT_EQ(CheckWidgTree(shell), "");
}

TEST_F(WidgNesting, InsertedBoardOfASizelessChildlessWidgetHasNeither) {
  Widg* shell = NewWidg("TopLevelShell", "shell");
  InsertWidgBelow(shell, "XmBulletinBoard", Writable("bboard"));
  EXPECT_EQ(NameTree(shell), "shell(bboard)");
  EXPECT_EQ(Resources(shell->child),
            "XmNmarginWidth=0 XmNmarginHeight=0 XmNresizePolicy=XmRESIZE_GROW");
}

TEST_F(WidgNesting, InsertedWidgetOfAnotherClassGetsNoMargins) {
  Widg* shell = With(NewWidg("TopLevelShell", "shell", {Leaf("a")}), {{"XmNwidth", "10"}});
  InsertWidgBelow(shell, "XmForm", Writable("form"));
  EXPECT_EQ(NameTree(shell), "shell(form(a))");
  EXPECT_EQ(Resources(shell->child), "XmNwidth=10");
}

TEST_F(WidgNesting, PredecessorOfTheFirstChildIsTheParent) {
  Widg* a = Leaf("a");
  Widg* b = Leaf("b");
  Widg* c = Leaf("c");
  Widg* parent = NewWidg("XmForm", "p", {a, b, c});
  EXPECT_EQ(PrevSibling(parent, a), parent);
  EXPECT_EQ(PrevSibling(parent, b), a);
  EXPECT_EQ(PrevSibling(parent, c), b);
  EXPECT_EQ(PrevSibling(parent, Leaf("d")), nullptr);
  EXPECT_EQ(PrevSibling(a, b), nullptr);
}

}  // namespace
