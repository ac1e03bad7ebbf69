// SPDX-License-Identifier: MIT
#include "widget/copy.h"
#include "widget/callbacks.h"

#include <gtest/gtest.h>

#include <string>

#include "unit/support/check_widg_tree.h"
#include "unit/support/gil_objects.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/links.h"
#include "widget/tree.h"

namespace {

using WidgCopy = SessionFixture;

TEST_F(WidgCopy, CopyGetsAFreshName) {
  Widg* widg = Leaf("button");
  EXPECT_STREQ(CopyWidg(widg)->name, "button1");
  EXPECT_STREQ(CopyWidg(widg)->name, "button2");
  EXPECT_STREQ(widg->name, "button");
}

TEST_F(WidgCopy, CopyTakesOverWhatIsNotLinksOrGeometry) {
  Widg* widg = FromGil(Leaf("button"), 1, 2, 3, 4);
  widg->actions = Call("button", "Notify", "quit");
  widg->managed = 0;
  widg->wrapped = 1;
  widg->generated = 1;
  widg->extra_width = 5;
  widg->extra_height = 10;
  const Widg* copy = CopyWidg(widg);
  EXPECT_STREQ(copy->class_name, "XmLabel");
  EXPECT_EQ(copy->actions, widg->actions);
  EXPECT_EQ(copy->managed, 0);
  EXPECT_EQ(copy->wrapped, 1);
  EXPECT_EQ(copy->generated, 1);
  EXPECT_EQ(copy->extra_width, 5);
  EXPECT_EQ(copy->extra_height, 10);
  EXPECT_EQ(copy->x, 0);
  EXPECT_EQ(copy->y, 0);
  EXPECT_EQ(copy->width, 0);
  EXPECT_EQ(copy->height, 0);
}

TEST_F(WidgCopy, CopyHasNeitherChildrenNorSiblings) {
  Widg* widg = NewWidg("XmForm", "form", {Leaf("a")});
  Siblings({widg, Leaf("b")});
  const Widg* copy = CopyWidg(widg);
  EXPECT_EQ(copy->child, nullptr);
  EXPECT_EQ(copy->next, nullptr);
}

TEST_F(WidgCopy, ValueChangedOnEitherShowsOnBoth) {
  Widg* widg = With(Leaf("button"), {{"XmNx", "1"}});
  Widg* copy = CopyWidg(widg);
  AddResource(copy, "XmNx", "2");
  EXPECT_EQ(Resources(widg), "XmNx=2");
  AddResource(widg, "XmNx", "3");
  EXPECT_EQ(Resources(copy), "XmNx=3");
}

TEST_F(WidgCopy, NewResourceOnTheCopyShowsOnTheOriginal) {
  Widg* widg = With(Leaf("button"), {{"XmNx", "1"}});
  Widg* copy = CopyWidg(widg);
  AddResource(copy, "XmNy", "2");
  EXPECT_EQ(Resources(widg), "XmNx=1 XmNy=2");
}

TEST_F(WidgCopy, NewResourceOnTheOriginalShowsOnTheCopy) {
  Widg* widg = With(Leaf("button"), {{"XmNx", "1"}});
  Widg* copy = CopyWidg(widg);
  AddResource(widg, "XmNy", "2");
  EXPECT_EQ(Resources(copy), "XmNx=1 XmNy=2");
}

TEST_F(WidgCopy, FirstResourceOfTheOneDoesNotShowOnTheOther) {
  Widg* widg = Leaf("button");
  Widg* copy = CopyWidg(widg);
  AddResource(copy, "XmNx", "1");
  EXPECT_EQ(Resources(widg), "");
}

TEST_F(WidgCopy, CallbacksAreSharedLikeResources) {
  Widg* widg = Leaf("button");
  AddCallback(widg, "XmNactivateCallback", Writable("first"), "");
  Widg* copy = CopyWidg(widg);
  AddCallback(copy, "XmNactivateCallback", Writable("second"), "");
  EXPECT_EQ(Callbacks(widg), "XmNactivateCallback first(); XmNactivateCallback second()");
}

TEST_F(WidgCopy, OriginalLosesItsCapitalLetterToTheCopy) {
  Widg* widg = Leaf("Button");
  const Widg* copy = CopyWidg(widg);
  EXPECT_STREQ(widg->gil_name, "button");
  EXPECT_STREQ(copy->gil_name, "Button");
  EXPECT_STREQ(copy->name, "button1");
}

TEST_F(WidgCopy, OriginalsLongNameIsCutAndTheCopyKeepsItWhole) {
  const std::string long_name(40, 'x');
  Widg* widg = NewWidg("XmPushButton", long_name);
  const Widg* copy = CopyWidg(widg);
  EXPECT_EQ(widg->gil_name, std::string(30, 'x'));
  EXPECT_EQ(copy->gil_name, long_name);
}

Widg* MenuOfTwoSubMenus() {
  return NewWidg(
      "XmPulldownMenu", "menu",
      {NewWidg("XmCascadeButton", "item1", {NewWidg("XmPulldownMenu", "sub1")}),
       NewWidg("XmCascadeButton", "item2", {NewWidg("XmPulldownMenu", "sub2")}), Leaf("item3")});
}

TEST_F(WidgCopy, OnlyTheFirstItemsSubMenuIsCopied) {
  EXPECT_EQ(NameTree(CopyWidgTree(MenuOfTwoSubMenus())), "menu(item1(sub1) item2 item3)");
}

TEST_F(WidgCopy, OriginalTreeStaysWhole) {
  Widg* menu = MenuOfTwoSubMenus();
  Widg* copy = CopyWidgTree(menu);
  EXPECT_EQ(NameTree(menu), "menu(item1(sub1) item2(sub2) item3)");
  EXPECT_EQ(CheckWidgTree(Siblings({menu, copy})), "");
}

TEST_F(WidgCopy, CopiedTreeHasNoSiblings) {
  Widg* menu = MenuOfTwoSubMenus();
  Siblings({menu, Leaf("other")});
  EXPECT_EQ(CopyWidgTree(menu)->next, nullptr);
}

TEST_F(WidgCopy, SiblingsAreCopiedBare) {
  Widg* first = NewWidg("XmForm", "a", {NewWidg("XmForm", "b", {Leaf("c")}), Leaf("d")});
  Siblings({first, NewWidg("XmForm", "e", {Leaf("f")}), Leaf("g")});
  EXPECT_EQ(NameTree(CopyWidgTreeWithSibs(first)), "a(b(c) d) e g");
}

TEST_F(WidgCopy, NamesAreGivenToSiblingsBeforeChildren) {
  Widg* first = NewWidg("XmForm", "x", {Leaf("x")});
  Siblings({first, Leaf("x")});
  EXPECT_EQ(InstanceTree(first), "x1(x) x2");
  EXPECT_EQ(InstanceTree(CopyWidgTreeWithSibs(first)), "x3(x5) x4");
}

TEST_F(WidgCopy, CopyOfATreeThatLiesBelowItselfEnds) {
  Widg* item = Leaf("item");
  Widg* menu = NewWidg("XmPulldownMenu", "menu", {item});
  AddChildWidg(item, menu);
  const Widg* copy = CopyWidgTree(menu);
  EXPECT_STREQ(copy->gil_name, "menu");
  EXPECT_NE(copy->child, item);
  EXPECT_EQ(NameTree(copy).find("..."), std::string::npos);
}

TEST_F(WidgCopy, CopyOfADeepTreeDoesNotExhaustTheStack) {
  Widg* tree = Leaf("deepest");
  for (int level = 0; level < 20000; ++level) tree = NewWidg("XmForm", "", {tree});
  const Widg* copy = CopyWidgTree(tree);
  int depth = 0;
  for (const Widg* widg = copy; widg; widg = widg->child) ++depth;
  EXPECT_EQ(depth, 20001);
}

}  // namespace
