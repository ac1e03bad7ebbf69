// SPDX-License-Identifier: MIT
#include "convert/object_label.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>

#include "unit/support/check_widg_tree.h"
#include "unit/support/gil_objects.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/tree.h"

namespace {

using ObjectLabel = SessionFixture;

// A control at (10, 20) with its label beside it; the control comes first.
Widg* Beside(int32_t type, std::initializer_list<Attr*> attrs, const char* name = "control") {
  Widg* widg = With(NewWidg("XmScale", name), {{"XmNx", "10"}, {"XmNy", "20"}});
  return SpecProcObjLabel(Object(type, name, attrs), widg, 0);
}

// The same in a row-column.
Widg* InRow(std::initializer_list<Attr*> attrs, Widg* widg) {
  return SpecProcObjLabel(Object(TEXT_FIELD, "field", attrs), widg, 1);
}

Widg* Field() {
  return FromGil(At(NewWidg("XmTextField", "field"), 10, 20, 30, 40), 10, 20, 30, 40);
}

TEST_F(ObjectLabel, ObjectWithoutALabelStaysAlone) {
  EXPECT_EQ(ClassTree(Beside(SLIDER, {})), "XmScale");
  EXPECT_EQ(ClassTree(Beside(SLIDER, {Str(LABEL, "")})), "XmScale");
}

TEST_F(ObjectLabel, NameOfAnUnusedLabelStaysTaken) {
  Beside(SLIDER, {});
  EXPECT_STREQ(NewWidg("XmLabel", "control_label")->name, "control_label1");
}

TEST_F(ObjectLabel, LabelIsTheNextSibling) {
  Widg* control = Beside(
      SLIDER, {Int(X, 10), Int(Y, 20), Int(VALUE_X, 80), Int(VALUE_Y, 25), Str(LABEL, "Volume:")});
  EXPECT_EQ(InstanceTree(control), "control control_label");
  EXPECT_EQ(Resources(control), "XmNx=80 XmNy=25");
  EXPECT_EQ(Resources(control->next), "XmNlabelString=\"Volume:\" XmNx=10 XmNy=20");
}

TEST_F(ObjectLabel, LabelKeepsTheSiblingsBehindTheControl) {
  Widg* widg = NewWidg("XmScale", "a");
  Siblings({widg, NewWidg("XmLabel", "b")});
  SpecProcObjLabel(Object(SLIDER, "a", {Str(LABEL, "A:")}), widg, 0);
  EXPECT_EQ(Names(widg), "a a_label b");
}

TEST_F(ObjectLabel, ValuePositionOfAnUnplacedControlIsSetDownwardFirst) {
  Widg* control = NewWidg("XmScale", "control");
  SpecProcObjLabel(
      Object(SLIDER, "control", {Int(VALUE_X, 80), Int(VALUE_Y, 25), Str(LABEL, "Volume:")}),
      control, 0);
  EXPECT_EQ(Resources(control), "XmNy=25 XmNx=80");
  EXPECT_EQ(Resources(control->next), "XmNlabelString=\"Volume:\"");
}

TEST_F(ObjectLabel, LabelHasNoGilGeometryOfItsOwn) {
  Widg* field = Field();
  const Widg* label = InRow({Str(LABEL, "Name:")}, field)->child;
  EXPECT_EQ(label->x, 0);
  EXPECT_EQ(label->y, 0);
  EXPECT_EQ(label->width, 0);
  EXPECT_EQ(label->height, 0);
}

TEST_F(ObjectLabel, PositionsThatAreNotGivenAreNotSet) {
  Widg* control = Beside(SLIDER, {Str(LABEL, "Volume:")});
  EXPECT_EQ(Resources(control), "XmNx=10 XmNy=20");
  EXPECT_EQ(Resources(control->next), "XmNlabelString=\"Volume:\"");
}

TEST_F(ObjectLabel, CompanionsAreNamedAfterTheInstance) {
  NewWidg("XmScale", "control");
  EXPECT_EQ(InstanceTree(Beside(SLIDER, {Str(LABEL, "A:")})), "control1 control1_label");
}

TEST_F(ObjectLabel, RowColumnHoldsLabelAndControl) {
  Widg* field = Field();
  field->extra_height = 22;
  Widg* row = InRow({Str(LABEL, "Name:")}, field);
  EXPECT_EQ(ClassTree(row), "XmRowColumn(XmLabel XmTextField)");
  EXPECT_EQ(InstanceTree(row), "field_rc(field_label field)");
  EXPECT_EQ(Resources(row), "XmNorientation=XmHORIZONTAL XmNx=10 XmNy=20");
  EXPECT_EQ(Resources(row->child), "XmNlabelString=\"Name:\"");
  EXPECT_EQ(Resources(field), "XmNwidth=30 XmNheight=40");
  EXPECT_EQ(field->wrapped, 1);
  EXPECT_EQ(row->height, 40);
  EXPECT_EQ(row->extra_height, 22);
  EXPECT_EQ(row->width, 0);
  EXPECT_EQ(CheckWidgTree(row), "");
}

TEST_F(ObjectLabel, VerticalRowColumnNeedsMoreRoom) {
  Widg* field = Field();
  field->extra_height = 22;
  Widg* row = InRow({Str(LABEL, "Name:"), Tok(LAYOUT_TYPE, VERTICAL)}, field);
  EXPECT_EQ(row->extra_height, 25);
  EXPECT_STREQ(GetResourceValue(row, "XmNorientation"), "XmVERTICAL");
}

TEST_F(ObjectLabel, RowColumnTakesTheControlsPlace) {
  Widg* field = Field();
  Siblings({field, NewWidg("XmLabel", "b")});
  Widg* row = InRow({Str(LABEL, "Name:")}, field);
  EXPECT_EQ(Names(row), "field_rc b");
  EXPECT_EQ(field->next, nullptr);
}

TEST_F(ObjectLabel, ValuePositionDoesNotMoveWhatIsInARowColumn) {
  Widg* row = InRow({Str(LABEL, "Name:"), Int(X, 10), Int(VALUE_X, 80), Int(VALUE_Y, 25)}, Field());
  EXPECT_EQ(Resources(row->child->next), "XmNwidth=30 XmNheight=40");
}

TEST_F(ObjectLabel, WidthIsWhatTheLabelLeaves) {
  EXPECT_STREQ(
      GetResourceValue(Beside(SLIDER, {Str(LABEL, "A:"), Int(WIDTH, 200), Int(VALUE_X, 80)}),
                       "XmNwidth"),
      "120");
  Widg* row = InRow({Str(LABEL, "A:"), Int(WIDTH, 200), Int(VALUE_X, 80)}, Field());
  EXPECT_STREQ(GetResourceValue(row->child->next, "XmNwidth"), "120");
}

TEST_F(ObjectLabel, WidthOfAListIsItsOwn) {
  EXPECT_STREQ(GetResourceValue(
                   Beside(SCROLLING_LIST, {Str(LABEL, "A:"), Int(WIDTH, 200), Int(VALUE_X, 80)}),
                   "XmNwidth"),
               "200");
}

TEST_F(ObjectLabel, WidthWrapsTo32Bits) {
  EXPECT_STREQ(GetResourceValue(
                   Beside(SLIDER, {Str(LABEL, "A:"), Int(WIDTH, -2147483647 - 1), Int(VALUE_X, 1)}),
                   "XmNwidth"),
               "2147483647");
}

TEST_F(ObjectLabel, HorizontalSliderIsAsWideAsItsSlider) {
  for (const int32_t type : {SLIDER, GAUGE}) {
    Widg* scale = Beside(type, {Str(LABEL, "A:"), Int(WIDTH, 200), Int(SLIDER_WIDTH, 150),
                                Tok(ORIENTATION, HORIZONTAL)});
    EXPECT_EQ(Resources(scale), "XmNx=10 XmNy=20 XmNwidth=150");
  }
}

TEST_F(ObjectLabel, VerticalSliderIsAsHighAsItsSlider) {
  Widg* scale = Beside(SLIDER, {Str(LABEL, "A:"), Int(WIDTH, 200), Int(SLIDER_WIDTH, 15),
                                Tok(ORIENTATION, VERTICAL)});
  EXPECT_EQ(Resources(scale), "XmNx=10 XmNy=20 XmNheight=15 XmNwidth=20");
}

TEST_F(ObjectLabel, SliderWidthNeedsAnOrientationAndAWidth) {
  EXPECT_EQ(Resources(Beside(SLIDER, {Str(LABEL, "A:"), Int(WIDTH, 200), Int(SLIDER_WIDTH, 15)})),
            "XmNx=10 XmNy=20 XmNwidth=200");
  EXPECT_EQ(Resources(Beside(
                SLIDER, {Str(LABEL, "A:"), Int(SLIDER_WIDTH, 15), Tok(ORIENTATION, HORIZONTAL)})),
            "XmNx=10 XmNy=20");
}

TEST_F(ObjectLabel, SliderWidthOfAnotherTypeDoesNotCount) {
  EXPECT_EQ(Resources(Beside(TEXT_FIELD, {Str(LABEL, "A:"), Int(WIDTH, 200), Int(SLIDER_WIDTH, 15),
                                          Tok(ORIENTATION, HORIZONTAL)})),
            "XmNx=10 XmNy=20 XmNwidth=200");
}

// The resources of the label of an insensitive, invisible control.
std::string OfDimLabel(int32_t type) {
  Widg* widg = With(NewWidg("XmScale", "control"),
                    {{"XmNmappedWhenManaged", "false"}, {"XmNsensitive", "false"}});
  SpecProcObjLabel(Object(type, "control", {Str(LABEL, "A:")}), widg, 0);
  return Resources(widg->next);
}

TEST_F(ObjectLabel, LabelIsAsDimAsItsControl) {
  EXPECT_EQ(OfDimLabel(SLIDER),
            "XmNlabelString=\"A:\" XmNsensitive=false XmNmappedWhenManaged=false");
}

TEST_F(ObjectLabel, LabelOfAGaugeIsNotInsensitive) {
  EXPECT_EQ(OfDimLabel(GAUGE), "XmNlabelString=\"A:\" XmNmappedWhenManaged=false");
}

}  // namespace
