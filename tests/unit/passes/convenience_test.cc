// SPDX-License-Identifier: MIT
#include "passes/convenience.h"
#include "widget/callbacks.h"

#include <gtest/gtest.h>

#include "unit/support/check_widg_tree.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/links.h"
#include "widget/tree.h"

namespace {

using ConvenienceWidgets = SessionFixture;

TEST_F(ConvenienceWidgets, ScrolledListBecomesAWindowAroundAList) {
  Widg* list = With(NewWidg("XmScrolledList", "list1"), {{"XmNx", "1"}});
  ReplaceIfConvenienceWidget(list);
  EXPECT_EQ(ClassTree(list), "XmScrolledWindow(XmList)");
  EXPECT_EQ(InstanceTree(list), "list1(list2)");
  EXPECT_EQ(Resources(list), "XmNx=1");
  EXPECT_EQ(list->child->resources, list->resources);
}

TEST_F(ConvenienceWidgets, ScrolledTextBecomesAWindowAroundAText) {
  Widg* text = NewWidg("XmScrolledText", "text");
  AddCallback(text, "XmNhelpCallback", Writable("help"), "");
  ReplaceIfConvenienceWidget(text);
  EXPECT_EQ(ClassTree(text), "XmScrolledWindow(XmText)");
  EXPECT_EQ(InstanceTree(text), "text(text1)");
  EXPECT_EQ(text->child->callbacks, text->callbacks);
}

TEST_F(ConvenienceWidgets, WorkWidgetBecomesTheLastChild) {
  Widg* text = NewWidg("XmScrolledText", "text", {NewWidg("XmPopupMenu", "menu")});
  ReplaceIfConvenienceWidget(text);
  EXPECT_EQ(ClassTree(text), "XmScrolledWindow(XmPopupMenu XmText)");
}

TEST_F(ConvenienceWidgets, OtherClassesStay) {
  Widg* list = NewWidg("XmList", "list");
  ReplaceIfConvenienceWidget(list);
  EXPECT_EQ(ClassTree(list), "XmList");
}

TEST_F(ConvenienceWidgets, WholeTreeIsReplaced) {
  Widg* tree = TopLevel({NewWidg("TopLevelShell", "a",
                                 {NewWidg("XmForm", "b", {NewWidg("XmScrolledList", "c")}),
                                  NewWidg("XmScrolledText", "d")}),
                         NewWidg("XmScrolledList", "e")});
  ReplaceConvenienceWidgets(tree);
  EXPECT_EQ(ClassTree(tree),
            "TopLevelShell(XmForm(XmScrolledWindow(XmList)) XmScrolledWindow(XmText)) "
            "XmScrolledWindow(XmList)");
  EXPECT_EQ(CheckWidgTree(tree), "");
}

TEST_F(ConvenienceWidgets, WidgetsToTheRightAreNumberedBeforeThoseBelow) {
  Widg* tree = TopLevel({NewWidg("XmForm", "a", {NewWidg("XmScrolledList", "scroll")}),
                         NewWidg("XmScrolledList", "scroll")});
  ReplaceConvenienceWidgets(tree);
  EXPECT_EQ(InstanceTree(tree), "a(scroll(scroll3)) scroll1(scroll2)");
}

TEST_F(ConvenienceWidgets, EmptyTreeIsLeftAlone) {
  ReplaceConvenienceWidgets(nullptr);
  EXPECT_EQ(top_widget, nullptr);
}

TEST_F(ConvenienceWidgets, TreeThatLiesBelowItselfIsWalkedToAnEnd) {
  Widg* inner = NewWidg("XmScrolledList", "list");
  Widg* outer = NewWidg("XmForm", "form", {inner});
  AddChildWidg(inner, outer);
  ReplaceConvenienceWidgets(outer);
  EXPECT_STREQ(inner->class_name, "XmScrolledWindow");
}

}  // namespace
