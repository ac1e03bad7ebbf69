// SPDX-License-Identifier: MIT
#include "convert/attributes.h"

#include <gtest/gtest.h>

#include <string>

#include "flags/flags.h"
#include "unit/support/fatal_end.h"
#include "unit/support/gil_objects.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/tree.h"

namespace {

using TypeAttributes = SessionFixture;

// The resources that an attribute gives an object of that type.
std::string Given(int32_t type, const Attr* attr) {
  Widg* widg = NewWidg("XmLabel", "widget");
  ProcessNonStdAttribute(Object(type, "object"), widg, attr);
  return Resources(widg);
}

TEST_F(TypeAttributes, LabelsOfWindowsAreTitles) {
  EXPECT_EQ(Given(BASE_WINDOW, Str(LABEL, "Main")), "XmNtitle=\"Main\"");
  EXPECT_EQ(Given(POPUP_WINDOW, Str(LABEL, "Find")), "XmNtitle=\"Find\"");
}

TEST_F(TypeAttributes, EmptyTitleOfAPopupWindowIsWritten) {
  EXPECT_EQ(Given(POPUP_WINDOW, Str(LABEL, "")), "XmNtitle=\"\"");
}

TEST_F(TypeAttributes, StateOfAPopupWindowIsNotTakenHere) {
  EXPECT_EQ(Given(POPUP_WINDOW, Tok(INITIAL_STATE, INVISIBLE)), "");
}

TEST_F(TypeAttributes, ButtonShowsItsLabelWhateverTheType) {
  Widg* widg = NewWidg("XmPushButton", "button");
  Obj* obj = Object(BUTTON, "button", {Tok(LABEL_TYPE, GLYPH)});
  ProcessNonStdAttribute(obj, widg, Str(LABEL, "face.icon"));
  EXPECT_EQ(Resources(widg), "XmNlabelString=\"face.icon\"");
}

TEST_F(TypeAttributes, MessageOfATextShowsIt) {
  Widg* widg = NewWidg("XmLabel", "message");
  Obj* obj = Object(MESSAGE, "message", {Tok(LABEL_TYPE, STRING)});
  ProcessNonStdAttribute(obj, widg, Str(LABEL, "Hello"));
  EXPECT_EQ(Resources(widg), "XmNlabelString=\"Hello\"");
  Value* value = nullptr;
  EXPECT_EQ(GetAttrValue(obj, LABEL_TYPE, &value, 0), 0);
}

TEST_F(TypeAttributes, MessageOfAGlyphShowsThePixmap) {
  verbose = 0;
  Widg* widg = NewWidg("XmLabel", "message");
  Obj* obj = Object(MESSAGE, "message", {Tok(LABEL_TYPE, GLYPH)});
  ProcessNonStdAttribute(obj, widg, Str(LABEL, "missing.icon"));
  EXPECT_EQ(Resources(widg),
            "XmNoriginalPixmapName=\"missing.icon\" XmNlabelType=XmPIXMAP "
            "XmNlabelPixmap=xbitmapfile(\"missing.xbm\")");
}

TEST_F(TypeAttributes, MessageWithoutALabelTypeIsFatal) {
  ExpectError(Run([] { Given(MESSAGE, Str(LABEL, "Hello")); }),
              "Message has label but no label-type");
}

TEST_F(TypeAttributes, PinnableMenusTearOffInMotif12) {
  EXPECT_EQ(Given(MENU, Tok(PINNABLE, T)), "");
  motif12 = 1;
  EXPECT_EQ(Given(MENU, Tok(PINNABLE, T)), "XmNtearOffModel=XmTEAR_OFF_ENABLED");
  EXPECT_EQ(Given(MENU, Tok(PINNABLE, NIL)), "");
}

TEST_F(TypeAttributes, DrawingModelsThatMotifLacksAreNoted) {
  for (const int32_t model : {XVIEW, POSTSCRIPT}) {
    const Outcome outcome =
        Run([=] { EXPECT_EQ(Given(CANVAS_PANE, Tok(DRAWING_MODEL, model)), ""); });
    EXPECT_EQ(outcome.out,
              "CanvasPane object: Motif does not support XVIEW or POSTSCRIPT drawing models\n");
    EXPECT_EQ(outcome.err, "");
  }
  ExpectQuiet(Run([] { Given(CANVAS_PANE, Tok(DRAWING_MODEL, XWINDOWS)); }));
  verbose = 0;
  ExpectQuiet(Run([] { Given(CANVAS_PANE, Tok(DRAWING_MODEL, XVIEW)); }));
}

TEST_F(TypeAttributes, DrawingModelNoteShowsTheNameAsItStands) {
  const Outcome outcome =
      Run([] { Convert(Object(CANVAS_PANE, "Canvas", {Tok(DRAWING_MODEL, XVIEW)})); });
  EXPECT_EQ(outcome.out,
            "CanvasPane canvas: Motif does not support XVIEW or POSTSCRIPT drawing models\n");
}

TEST_F(TypeAttributes, SlidersAndGaugesHaveARange) {
  for (const int32_t type : {SLIDER, GAUGE}) {
    EXPECT_EQ(Given(type, Int(MAX_VALUE, 100)), "XmNmaximum=100");
    EXPECT_EQ(Given(type, Int(MIN_VALUE, -5)), "XmNminimum=-5");
    EXPECT_EQ(Given(type, Tok(ORIENTATION, HORIZONTAL)), "XmNorientation=XmHORIZONTAL");
    EXPECT_EQ(Given(type, Tok(ORIENTATION, VERTICAL)), "XmNorientation=XmVERTICAL");
    EXPECT_EQ(Given(type, Tok(SHOW_VALUE, T)), "XmNshowValue=true");
    EXPECT_EQ(Given(type, Tok(SHOW_VALUE, NIL)), "");
  }
}

TEST_F(TypeAttributes, OtherOrientationIsFatal) {
  for (const int32_t type : {SLIDER, GAUGE}) {
    ExpectError(Run([=] { Given(type, Tok(ORIENTATION, EAST)); }), "Bad Value: Slider ORIENTATION");
  }
}

TEST_F(TypeAttributes, ListsSelectOneOrSeveral) {
  EXPECT_EQ(Given(SCROLLING_LIST, Tok(MULTIPLE_SELECTIONS, T)),
            "XmNselectionPolicy=XmMULTIPLE_SELECT");
  EXPECT_EQ(Given(SCROLLING_LIST, Tok(MULTIPLE_SELECTIONS, NIL)),
            "XmNselectionPolicy=XmBROWSE_SELECT");
  EXPECT_EQ(Given(SCROLLING_LIST, Int(ROWS, 7)), "XmNvisibleItemCount=7");
  EXPECT_EQ(Given(SCROLLING_LIST, Strs(ROWS, {})), "XmNvisibleItemCount=0");
}

TEST_F(TypeAttributes, ListsTakeColorAndStateToo) {
  EXPECT_EQ(Given(SCROLLING_LIST, Str(FOREGROUND_COLOR, "red")), "XmNforeground=color(\"red\")");
  EXPECT_EQ(Given(SCROLLING_LIST, Str(FOREGROUND_COLOR, "")), "");
  EXPECT_EQ(Given(SCROLLING_LIST, Tok(INITIAL_STATE, INVISIBLE)), "XmNmappedWhenManaged=false");
  EXPECT_EQ(Given(SCROLLING_LIST, Tok(INITIAL_STATE, INACTIVE)), "XmNsensitive=false");
  EXPECT_EQ(Given(SCROLLING_LIST, Tok(INITIAL_STATE, ICONIC)), "");
  map_all = 1;
  EXPECT_EQ(Given(SCROLLING_LIST, Tok(INITIAL_STATE, INVISIBLE)), "");
}

TEST_F(TypeAttributes, TextFieldsHaveAValue) {
  EXPECT_EQ(Given(TEXT_FIELD, Str(INITIAL_VALUE, "abc")), "XmNvalue=\"abc\"");
  EXPECT_EQ(Given(TEXT_FIELD, Str(INITIAL_VALUE, "")), "XmNvalue=\"\"");
  EXPECT_EQ(Given(TEXT_FIELD, Int(INITIAL_VALUE, 42)), "XmNvalue=\"42\"");
  EXPECT_EQ(Given(TEXT_FIELD, Id(INITIAL_VALUE, "")), "");
  EXPECT_EQ(Given(TEXT_FIELD, Id(INITIAL_VALUE, "a")), "XmNvalue=a");
}

TEST_F(TypeAttributes, TokenForAValueIsReported) {
  const Outcome outcome = Run([] { EXPECT_EQ(Given(TEXT_FIELD, Tok(INITIAL_VALUE, T)), ""); });
  EXPECT_EQ(outcome.err, "TextField: Unknown INITIAL_VALUE type: 0\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, std::nullopt);
}

TEST_F(TypeAttributes, ReadOnlyFieldIsInsensitive) {
  EXPECT_EQ(Given(TEXT_FIELD, Tok(READ_ONLY, T)), "XmNsensitive=false");
  EXPECT_EQ(Given(TEXT_FIELD, Tok(READ_ONLY, NIL)), "");
}

TEST_F(TypeAttributes, FieldThatIsNotUnderlinedHasNoShadow) {
  EXPECT_EQ(Given(TEXT_FIELD, Tok(VALUE_UNDERLINED, NIL)), "XmNshadowThickness=0");
  EXPECT_EQ(Given(TEXT_FIELD, Tok(VALUE_UNDERLINED, T)), "");
}

TEST_F(TypeAttributes, OtherAttributesAreIgnored) {
  for (const int32_t type : {BASE_WINDOW, BUTTON, CANVAS_PANE, MENU, TEXT_FIELD, SCROLLING_LIST,
                             POPUP_WINDOW, SLIDER, GAUGE, MESSAGE}) {
    EXPECT_EQ(Given(type, Tok(RESIZABLE, T)), "") << type;
  }
}

TEST_F(TypeAttributes, OtherTypesHaveNone) {
  for (const int32_t type : {CONTROL_AREA, TEXT_PANE, SETTING, GROUP, TERM_PANE, STACK}) {
    EXPECT_EQ(Given(type, Str(LABEL, "text")), "") << type;
  }
}

}  // namespace
