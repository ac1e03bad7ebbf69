// SPDX-License-Identifier: MIT
#include "convert/objects.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "flags/flags.h"
#include "unit/support/check_widg_tree.h"
#include "unit/support/fatal_end.h"
#include "unit/support/gil_objects.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/tree.h"

namespace {

using Objects = SessionFixture;

struct ClassOfType {
  int32_t type;
  const char* class_name;
};

TEST_F(Objects, EveryTypeHasItsClass) {
  for (const ClassOfType& row :
       {ClassOfType{BASE_WINDOW, "TopLevelShell"}, ClassOfType{BUTTON, "XmPushButton"},
        ClassOfType{CANVAS_PANE, "XmDrawingArea"}, ClassOfType{CONTROL_AREA, "XmBulletinBoard"},
        ClassOfType{MENU, "XmUnknownMenu"}, ClassOfType{MESSAGE, "XmLabel"},
        ClassOfType{POPUP_WINDOW, "XmDialogShell"}, ClassOfType{SETTING, "XmRowColumn"},
        ClassOfType{SLIDER, "XmScale"}, ClassOfType{GAUGE, "XmScale"},
        ClassOfType{TEXT_FIELD, "XmTextField"}, ClassOfType{TEXT_PANE, "XmScrolledText"},
        ClassOfType{SCROLLING_LIST, "XmList"}, ClassOfType{GROUP, "XmBulletinBoard"},
        ClassOfType{TERM_PANE, ""}, ClassOfType{DROP_TARGET, ""}, ClassOfType{STACK, ""},
        ClassOfType{X, ""}}) {
    EXPECT_STREQ(GilObjToMotifClassName(Object(row.type, "a")), row.class_name) << row.type;
  }
}

TEST_F(Objects, ButtonWithAMenuIsACascadeButton) {
  Obj* obj = Object(BUTTON, "button", {Id(MENU, "menu")});
  EXPECT_STREQ(GilObjToMotifClassName(obj), "XmCascadeButton");
  Value* menu = nullptr;
  EXPECT_EQ(GetAttrValue(obj, MENU, &menu, 0), 1);
}

TEST_F(Objects, ButtonWhoseMenuIsNoTextIsAPushButton) {
  EXPECT_STREQ(GilObjToMotifClassName(Object(BUTTON, "button", {Tok(MENU, NIL)})), "XmPushButton");
}

TEST_F(Objects, IgnoredGroupHasNoClass) {
  ignore_groups = 1;
  EXPECT_STREQ(GilObjToMotifClassName(Object(GROUP, "group")), "");
}

TEST_F(Objects, ObjectWithoutANameIsFatal) {
  ExpectError(Run([] { Convert(Nameless(BUTTON)); }), "Obj does not have a name");
}

TEST_F(Objects, NameIsConsumedAndChangedInPlace) {
  Obj* obj = Object(BUTTON, "Button");
  const Widg* widg = Convert(obj);
  EXPECT_STREQ(widg->name, "button");
  EXPECT_STREQ(widg->gil_name, "Button");
  EXPECT_STREQ(obj->name, "button");
  Value* name = nullptr;
  EXPECT_EQ(GetAttrValue(obj, NAME, &name, 0), 0);
}

TEST_F(Objects, NumberMayBeAName) {
  EXPECT_STREQ(Convert(Nameless(BUTTON, {Int(NAME, 12)}))->gil_name, "12");
}

TEST_F(Objects, WidgetCarriesTheActions) {
  Obj* obj = Acting(Object(BUTTON, "button"), {Call("button", "Notify", "quit")});
  EXPECT_EQ(Convert(obj)->actions, obj->actions);
}

TEST_F(Objects, AttributesAreConvertedInListOrder) {
  EXPECT_EQ(Resources(Convert(Object(BUTTON, "button", {Int(Y, 2), Str(LABEL, "OK"), Int(X, 1)}))),
            "XmNy=2 XmNlabelString=\"OK\" XmNx=1");
}

TEST_F(Objects, AttributesBehindAConsumedOneAreStillConverted) {
  EXPECT_EQ(Resources(Convert(Object(MESSAGE, "message",
                                     {Str(LABEL, "Hello"), Tok(LABEL_TYPE, STRING), Int(X, 1)}))),
            "XmNlabelString=\"Hello\" XmNx=1");
}

TEST_F(Objects, ChildrenStayInOrder) {
  reposition = 0;
  const Widg* area =
      Convert(Owning(Object(CONTROL_AREA, "area"),
                     {Object(BUTTON, "a"), Object(MESSAGE, "b"), Object(SLIDER, "c")}));
  EXPECT_EQ(NameTree(area), "area(a b c)");
  EXPECT_EQ(CheckWidgTree(area), "");
}

TEST_F(Objects, LabelsStandBehindTheirControls) {
  const Widg* area =
      Convert(Owning(Object(CONTROL_AREA, "area"), {Object(SLIDER, "a", {Str(LABEL, "A:")}),
                                                    Object(SLIDER, "b", {Str(LABEL, "B:")})}));
  EXPECT_EQ(NameTree(area), "area(a a_label b b_label)");
}

TEST_F(Objects, ControlAreaIsATightBoard) {
  EXPECT_EQ(Resources(Convert(Object(CONTROL_AREA, "area"))),
            "XmNmarginWidth=0 XmNmarginHeight=0 XmNresizePolicy=XmRESIZE_GROW");
}

TEST_F(Objects, UnknownTypeKeepsItsChildren) {
  const Widg* widg = Convert(Owning(Object(TERM_PANE, "term"), {Object(BUTTON, "a")}));
  EXPECT_STREQ(widg->class_name, "");
  EXPECT_EQ(NameTree(widg), "term(a)");
}

TEST_F(Objects, ContainersAreFixedUpBeforeTheirSpecialProcessing) {
  const Widg* area = Convert(
      Owning(Object(CONTROL_AREA, "area"),
             {Object(BUTTON, "a", {Int(X, 10), Int(Y, 20), Int(WIDTH, 30), Int(HEIGHT, 40)})}));
  EXPECT_EQ(Resources(area),
            "XmNwidth=50 XmNheight=60 XmNmarginWidth=0 XmNmarginHeight=0 "
            "XmNresizePolicy=XmRESIZE_GROW");
}

TEST_F(Objects, NothingMovesWithoutRepositioning) {
  reposition = 0;
  const Widg* area = Convert(
      Owning(Object(CONTROL_AREA, "area"), {Object(TEXT_FIELD, "a", {Int(X, 10), Int(Y, 20)})}));
  EXPECT_EQ(Resources(area), "XmNmarginWidth=0 XmNmarginHeight=0 XmNresizePolicy=XmRESIZE_GROW");
  EXPECT_EQ(Resources(area->child), "XmNx=10 XmNy=20");
}

TEST_F(Objects, DeepOwnersDoNotExhaustTheStack) {
  Obj* obj = Object(BUTTON, "deepest");
  for (int level = 0; level < 5000; ++level) obj = Owning(Object(CONTROL_AREA, "area"), {obj});
  Convert(obj);
  EXPECT_STREQ(Find("deepest")->class_name, "XmPushButton");
}

}  // namespace
