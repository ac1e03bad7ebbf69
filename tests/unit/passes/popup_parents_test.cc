// SPDX-License-Identifier: MIT
#include "passes/popup_parents.h"

#include <gtest/gtest.h>

#include "unit/support/check_widg_tree.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/links.h"
#include "widget/tree.h"

namespace {

using PopupParents = SessionFixture;

TEST_F(PopupParents, FirstPopupMenuAmongTheChildrenIsFound) {
  Widg* menu = Popup("menu");
  EXPECT_EQ(PopupMenuChild(NewWidg("XmForm", "form", {NewWidg("XmLabel", "a"), menu, Popup("b")})),
            menu);
  EXPECT_EQ(PopupMenuChild(NewWidg("XmForm", "form", {NewWidg("XmPulldownMenu", "a")})), nullptr);
  EXPECT_EQ(PopupMenuChild(NewWidg("XmForm", "form")), nullptr);
}

TEST_F(PopupParents, ThreeClassesMayHoldPopupMenus) {
  static const char* const kValid[] = {"XmBulletinBoard", "XmRowColumn", "XmForm"};
  for (const char* valid : kValid) {
    EXPECT_EQ(ValidPopupMenuParent(NewWidg(valid, "a")), 1) << valid;
  }
  static const char* const kInvalid[] = {"XmPushButton", "XmDrawingArea", "TopLevelShell",
                                         "XmFrame", ""};
  for (const char* invalid : kInvalid) {
    EXPECT_EQ(ValidPopupMenuParent(NewWidg(invalid, "a")), 0) << invalid;
  }
}

TEST_F(PopupParents, NearestParentCountsTheWidgetItself) {
  Widg* form = NewWidg("XmForm", "form");
  EXPECT_EQ(PopupMenuParent(TopLevel({NewWidg("XmBulletinBoard", "board", {form})}), form), form);
}

TEST_F(PopupParents, WidgetWithoutAValidAncestorIsItsOwnAnswer) {
  Widg* button = NewWidg("XmPushButton", "button");
  EXPECT_EQ(PopupMenuParent(TopLevel({NewWidg("TopLevelShell", "shell", {button})}), button),
            button);
}

TEST_F(PopupParents, ClimbOfAWidgetBelowItselfEnds) {
  Widg* inner = NewWidg("XmPushButton", "inner");
  Widg* outer = NewWidg("XmFrame", "outer", {inner});
  AddChildWidg(inner, outer);
  EXPECT_EQ(PopupMenuParent(outer, inner), inner);
}

TEST_F(PopupParents, MenuMovesToTheNearestValidAncestor) {
  Widg* tree = TopLevel({NewWidg("XmBulletinBoard", "board",
                                 {NewWidg("XmForm", "form",
                                          {NewWidg("XmPushButton", "button", {Popup("menu")}),
                                           NewWidg("XmLabel", "label")})})});
  MakePopupMenusValidForZO25(tree);
  EXPECT_EQ(NameTree(tree), "board(form(button label menu))");
  EXPECT_EQ(CheckWidgTree(tree), "");
}

TEST_F(PopupParents, MenuWithoutAValidAncestorStays) {
  Widg* tree =
      TopLevel({NewWidg("TopLevelShell", "shell", {NewWidg("XmPushButton", "b", {Popup("m")})})});
  MakePopupMenusValidForZO25(tree);
  EXPECT_EQ(NameTree(tree), "shell(b(m))");
}

TEST_F(PopupParents, MenuOfAValidParentStays) {
  Widg* tree =
      TopLevel({NewWidg("XmBulletinBoard", "board",
                        {NewWidg("XmRowColumn", "row", {Popup("m"), NewWidg("XmLabel", "a")})})});
  MakePopupMenusValidForZO25(tree);
  EXPECT_EQ(NameTree(tree), "board(row(m a))");
}

TEST_F(PopupParents, OnlyTheFirstMenuOfAWidgetMoves) {
  Widg* tree = TopLevel(
      {NewWidg("XmForm", "form", {NewWidg("XmPushButton", "b", {Popup("m"), Popup("n")})})});
  MakePopupMenusValidForZO25(tree);
  EXPECT_EQ(NameTree(tree), "form(b(n) m)");
}

TEST_F(PopupParents, LaterWidgetsGoFirst) {
  Widg* tree = TopLevel({NewWidg(
      "XmForm", "form",
      {NewWidg("XmPushButton", "a", {Popup("m")}), NewWidg("XmPushButton", "b", {Popup("n")})})});
  MakePopupMenusValidForZO25(tree);
  EXPECT_EQ(NameTree(tree), "form(a b n m)");
}

TEST_F(PopupParents, WidgetOnTwoPathsLosesAMenuOnEach) {
  Widg* button = NewWidg("XmPushButton", "button", {Popup("m"), Popup("n")});
  Widg* first = NewWidg("XmForm", "first", {button});
  Widg* second = NewWidg("XmForm", "second");
  SetChildren(second, button);
  MakePopupMenusValidForZO25(TopLevel({first, second}));
  EXPECT_EQ(NameTree(first->child), "button m n");
}

TEST_F(PopupParents, EmptyTreeIsLeftAlone) {
  MakePopupMenusValidForZO25(nullptr);
  EXPECT_EQ(top_widget, nullptr);
}

TEST_F(PopupParents, WalkOfATreeThatLiesBelowItselfEnds) {
  Widg* inner = NewWidg("XmPushButton", "inner", {Popup("m")});
  Widg* outer = NewWidg("XmFrame", "outer", {inner});
  TopLevel({outer});
  AddChildWidg(inner, outer);
  MakePopupMenusValidForZO25(top_widget);
  EXPECT_EQ(Names(inner->child), "m outer");
}

}  // namespace
