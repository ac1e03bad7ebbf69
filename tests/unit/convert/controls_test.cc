// SPDX-License-Identifier: MIT
#include "convert/controls.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "flags/flags.h"
#include "unit/support/gil_objects.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/tree.h"

namespace {

using Controls = SessionFixture;

Widg* Slider(std::initializer_list<Attr*> attrs) { return Convert(Object(SLIDER, "s", attrs)); }
Widg* Gauge(std::initializer_list<Attr*> attrs) { return Convert(Object(GAUGE, "g", attrs)); }
Widg* Field(std::initializer_list<Attr*> attrs) { return Convert(Object(TEXT_FIELD, "f", attrs)); }

TEST_F(Controls, ForegroundOfASliderIsItsBackground) {
  EXPECT_EQ(Resources(Slider({Str(BACKGROUND_COLOR, "blue"), Str(FOREGROUND_COLOR, "red")})),
            "XmNbackground=color(\"red\")");
}

TEST_F(Controls, EmptyForegroundOfASliderIsNone) {
  EXPECT_EQ(Resources(Slider({Str(FOREGROUND_COLOR, "")})), "");
}

TEST_F(Controls, SliderHasItsLabelBesideIt) {
  EXPECT_EQ(ClassTree(Slider({Str(LABEL, "Volume:")})), "XmScale XmLabel");
}

TEST_F(Controls, SliderIsNarrowedByItsValuePosition) {
  EXPECT_EQ(Resources(Slider({Int(WIDTH, 200), Int(VALUE_X, 80), Str(LABEL, "Volume:")})),
            "XmNwidth=120 XmNx=80");
}

TEST_F(Controls, VerticalSlider) {
  EXPECT_EQ(Resources(Slider({Int(WIDTH, 200), Int(SLIDER_WIDTH, 15), Tok(ORIENTATION, VERTICAL),
                              Str(LABEL, "Volume:")})),
            "XmNwidth=20 XmNorientation=XmVERTICAL XmNheight=15");
}

TEST_F(Controls, GaugeCannotBeMoved) {
  EXPECT_EQ(Resources(Gauge({Str(FOREGROUND_COLOR, "red")})),
            "XmNforeground=color(\"red\") XmNsensitive=false");
}

TEST_F(Controls, LabelOfAGaugeIsSensitive) {
  const Widg* gauge = Gauge({Str(LABEL, "Load:")});
  EXPECT_EQ(ClassTree(gauge), "XmScale XmLabel");
  EXPECT_EQ(Resources(gauge->next), "XmNlabelString=\"Load:\"");
}

TEST_F(Controls, FieldWithoutATextTypeKeepsItsHeight) {
  const Widg* field = Field({Int(HEIGHT, 20)});
  EXPECT_EQ(ClassTree(field), "XmTextField");
  EXPECT_EQ(Resources(field), "XmNheight=20");
  EXPECT_EQ(field->extra_width, 5);
  EXPECT_EQ(field->extra_height, 22);
}

TEST_F(Controls, AlphanumericFieldIsAsHighAsItsFont) {
  const Widg* field = Field({Int(HEIGHT, 20), Tok(TEXT_TYPE, ALPHANUMERIC)});
  EXPECT_EQ(Resources(field), "");
  EXPECT_EQ(Callbacks(field), "");
}

TEST_F(Controls, NumericFieldIsVerifiedByVersion30) {
  zo25 = 0;
  const Widg* field = Field({Int(HEIGHT, 20), Tok(TEXT_TYPE, NUMERIC)});
  EXPECT_EQ(Resources(field), "");
  EXPECT_EQ(Callbacks(field), "XmNmodifyVerifyCallback ZoVerifyNumericCB()");
}

TEST_F(Controls, NumericFieldIsNotVerifiedByOthers) {
  const Widg* of_version_25 = Field({Int(HEIGHT, 20), Tok(TEXT_TYPE, NUMERIC)});
  EXPECT_EQ(Callbacks(of_version_25), "");
  EXPECT_EQ(Resources(of_version_25), "");
}

TEST_F(Controls, NumericFieldIsNotVerifiedWithoutTheBuilder) {
  usezo = zo25 = 0;
  EXPECT_EQ(Callbacks(Field({Tok(TEXT_TYPE, NUMERIC)})), "");
}

TEST_F(Controls, MultilineFieldIsAText) {
  const Widg* text = Field({Int(HEIGHT, 20), Tok(TEXT_TYPE, MULTILINE)});
  EXPECT_EQ(ClassTree(text), "XmText");
  EXPECT_EQ(Resources(text), "XmNheight=20 XmNeditMode=XmMULTI_LINE_EDIT XmNwordWrap=true");
  EXPECT_EQ(text->extra_width, 5);
  EXPECT_EQ(text->extra_height, 10);
}

TEST_F(Controls, LengthOfTheValueIsInColumns) {
  EXPECT_EQ(Resources(Field({Int(VALUE_LENGTH, 12)})), "XmNcolumns=12");
}

TEST_F(Controls, FieldHasAtLeastOneColumn) {
  EXPECT_EQ(Resources(Field({Int(VALUE_LENGTH, 0)})), "XmNcolumns=1");
}

TEST_F(Controls, FieldOfNegativeLengthHasOneColumn) {
  EXPECT_EQ(Resources(Field({Int(VALUE_LENGTH, -3)})), "XmNcolumns=1");
}

TEST_F(Controls, FieldSharesARowColumnWithItsLabel) {
  const Widg* row = Field({Int(X, 1), Int(Y, 2), Str(LABEL, "Name:")});
  EXPECT_EQ(InstanceTree(row), "f_rc(f_label f)");
  EXPECT_EQ(Resources(row), "XmNorientation=XmHORIZONTAL XmNx=1 XmNy=2");
}

TEST_F(Controls, FieldStandsBesideItsLabelWithoutGroupLabels) {
  group_labels = 0;
  const Widg* field =
      Field({Int(X, 1), Int(Y, 2), Int(VALUE_X, 50), Int(VALUE_Y, 4), Str(LABEL, "Name:")});
  EXPECT_EQ(ClassTree(field), "XmTextField XmLabel");
  EXPECT_EQ(Resources(field), "XmNx=50 XmNy=4");
  EXPECT_EQ(Resources(field->next), "XmNlabelString=\"Name:\" XmNx=1 XmNy=2");
}

}  // namespace
