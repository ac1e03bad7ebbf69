// SPDX-License-Identifier: MIT
#include "convert/std_attributes.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>

#include "flags/flags.h"
#include "unit/support/fatal_end.h"
#include "unit/support/gil_objects.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/tree.h"

namespace {

using StdAttributes = SessionFixture;

// A widget after the attributes of a canvas.
Widg* Standard(std::initializer_list<Attr*> attrs, int32_t type = CANVAS_PANE) {
  Widg* widg = NewWidg("XmDrawingArea", "canvas");
  const Obj* obj = Object(type, "canvas");
  for (const Attr* attr : attrs) ProcessStdAttributes(obj, widg, attr);
  return widg;
}

TEST_F(StdAttributes, NineAreStandard) {
  for (const int32_t name : {X, Y, WIDTH, HEIGHT, BACKGROUND_COLOR, FOREGROUND_COLOR, INITIAL_STATE,
                             SHOW_BORDER, HELP}) {
    EXPECT_EQ(IsStdAttribute(Int(name, 0)), 1) << name;
  }
  int count = 0;
  for (int32_t name = kFirstToken; name <= kLastToken; ++name) {
    count += IsStdAttribute(Int(name, 0));
  }
  EXPECT_EQ(count, 9);
}

TEST_F(StdAttributes, GeometryGoesToResourcesAndFields) {
  const Widg* widg = Standard({Int(X, 1), Int(Y, -2), Int(WIDTH, 30), Int(HEIGHT, 40)});
  EXPECT_EQ(Resources(widg), "XmNx=1 XmNy=-2 XmNwidth=30 XmNheight=40");
  EXPECT_EQ(widg->x, 1);
  EXPECT_EQ(widg->y, -2);
  EXPECT_EQ(widg->width, 30);
  EXPECT_EQ(widg->height, 40);
}

TEST_F(StdAttributes, MessageSizesItselfWhenRepositioning) {
  const Widg* widg = Standard({Int(X, 1), Int(WIDTH, 120), Int(HEIGHT, 20)}, MESSAGE);
  EXPECT_EQ(Resources(widg), "XmNx=1");
  EXPECT_EQ(widg->width, 120);
  EXPECT_EQ(widg->height, 20);
}

TEST_F(StdAttributes, MessageKeepsItsSizeWithoutRepositioning) {
  reposition = 0;
  EXPECT_EQ(Resources(Standard({Int(WIDTH, 120), Int(HEIGHT, 20)}, MESSAGE)),
            "XmNwidth=120 XmNheight=20");
}

TEST_F(StdAttributes, ColorsAreConstructors) {
  EXPECT_EQ(Resources(Standard({Str(BACKGROUND_COLOR, "blue"), Str(FOREGROUND_COLOR, "red")})),
            "XmNbackground=color(\"blue\") XmNforeground=color(\"red\")");
}

TEST_F(StdAttributes, EmptyColorsAreNone) {
  EXPECT_EQ(Resources(Standard({Str(BACKGROUND_COLOR, ""), Str(FOREGROUND_COLOR, "")})), "");
}

TEST_F(StdAttributes, BorderIsTwoPixelsOrNone) {
  EXPECT_EQ(Resources(Standard({Tok(SHOW_BORDER, T)})), "XmNborderWidth=2");
  EXPECT_EQ(Resources(Standard({Tok(SHOW_BORDER, NIL)})), "");
}

TEST_F(StdAttributes, StatesBecomeResources) {
  EXPECT_EQ(Resources(Standard({Tok(INITIAL_STATE, INACTIVE)})), "XmNsensitive=false");
  EXPECT_EQ(Resources(Standard({Tok(INITIAL_STATE, INVISIBLE)})), "XmNmappedWhenManaged=false");
  EXPECT_EQ(Resources(Standard({Tok(INITIAL_STATE, ICONIC)})), "XmNiconic=true");
  for (const int32_t state : {ACTIVE, VISIBLE, OPEN}) {
    EXPECT_EQ(Resources(Standard({Tok(INITIAL_STATE, state)})), "") << state;
  }
}

TEST_F(StdAttributes, InvisibleIsShownWhenAllIsMapped) {
  map_all = 1;
  EXPECT_EQ(Resources(Standard({Tok(INITIAL_STATE, INVISIBLE)})), "");
}

TEST_F(StdAttributes, UnknownStateIsReported) {
  const Widg* widg = nullptr;
  const Outcome outcome = Run([&] { widg = Standard({Tok(INITIAL_STATE, HORIZONTAL)}); });
  EXPECT_EQ(outcome.status, std::nullopt);
  EXPECT_EQ(outcome.err, "Unknown value for INITIAL_STATE 310\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(Resources(widg), "");
}

TEST_F(StdAttributes, HelpOfTwoLinesIsOneArgument) {
  zo25 = 0;
  EXPECT_EQ(Callbacks(Standard({Str(HELP, "one\ntwo")})),
            "XmNhelpCallback ZoHelpCB(\"one\\ntwo\")");
}

TEST_F(StdAttributes, OnlyTheBuildersVersion30ShowsHelp) {
  EXPECT_EQ(Callbacks(Standard({Str(HELP, "text")})), "");
  usezo = zo25 = 0;
  EXPECT_EQ(Callbacks(Standard({Str(HELP, "text")})), "");
}

TEST_F(StdAttributes, EmptyHelpIsNone) {
  zo25 = 0;
  EXPECT_EQ(Callbacks(Standard({Str(HELP, "")})), "");
}

TEST_F(StdAttributes, AttributeGivenTwiceHasItsLastValueInTheFirstPlace) {
  EXPECT_EQ(Resources(Standard({Int(X, 1), Int(Y, 2), Int(X, 3)})), "XmNx=3 XmNy=2");
}

TEST_F(StdAttributes, AnyOtherAttributeIsFatal) {
  ExpectError(Run([] { Standard({Str(LABEL, "text")}); }),
              "Bad attribute passed to ProcessStdAttributes");
}

TEST_F(StdAttributes, AttachmentNamesClassAndInstance) {
  NewWidg("XmLabel", "title");
  EXPECT_STREQ(MakeWidgetAttachment(NewWidg("XmLabel", "Title")), "XmLabel title1");
}

TEST_F(StdAttributes, ColorIsPutBetweenParentheses) {
  EXPECT_STREQ(MakeColorVal("\"blue\""), "color(\"blue\")");
}

TEST_F(StdAttributes, ExhaustedMemoryIsFatal) {
  ExpectError(RunOutOfMemory(0, [] { MakeColorVal("\"blue\""); }), "Out of memory in MakeColorVal");
  const Widg* widg = NewWidg("XmLabel", "title");
  ExpectError(RunOutOfMemory(0, [=] { MakeWidgetAttachment(widg); }),
              "Out of memory in MakeWidgetAttachment");
}

}  // namespace
