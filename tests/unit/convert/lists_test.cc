// SPDX-License-Identifier: MIT
#include "convert/lists.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "flags/flags.h"
#include "osi/owned_text.h"
#include "unit/support/check_widg_tree.h"
#include "unit/support/fatal_end.h"
#include "unit/support/gil_objects.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/tree.h"

namespace {

using ScrollingLists = SessionFixture;

Widg* Plain() { return FromGil(At(NewWidg("XmList", "files"), 1, 2, 30, 40), 1, 2, 30, 40); }

Widg* Processed(std::initializer_list<Attr*> attrs, Widg* list = Plain()) {
  return SpecProcScrollingList(Object(SCROLLING_LIST, "files", attrs), list);
}

std::string Table(const Value* values) {
  char* table = nullptr;
  const int count = MakeStringTable(values, &table);
  const OsiOwnedText owner(table);
  return std::to_string(count).append(" ").append(table ? table : "");
}

TEST_F(ScrollingLists, ListGoesIntoAScrolledWindow) {
  Widg* sw = Processed({});
  EXPECT_EQ(ClassTree(sw), "XmScrolledWindow(XmList)");
  EXPECT_EQ(InstanceTree(sw), "files_sw(files)");
  EXPECT_EQ(Resources(sw),
            "XmNscrollBarDisplayPolicy=XmSTATIC XmNx=1 XmNy=2 XmNwidth=30 XmNheight=40");
  EXPECT_EQ(Resources(sw->child), "XmNwidth=30 XmNheight=40");
  EXPECT_EQ(sw->child->wrapped, 1);
}

TEST_F(ScrollingLists, ScrolledWindowTakesTheListsPlace) {
  Widg* list = Plain();
  Siblings({list, NewWidg("XmLabel", "b")});
  EXPECT_EQ(Names(Processed({}, list)), "files_sw b");
  EXPECT_EQ(list->next, nullptr);
}

TEST_F(ScrollingLists, ValuesAreItemsInTheOrderHeld) {
  const Widg* list = Processed({Strs(INITIAL_LIST_VALUES, {"A", "B", "C"})})->child;
  EXPECT_STREQ(GetResourceValue(list, "XmNitems"), "string_table(\"C\",\n\"B\",\n\"A\")");
  EXPECT_STREQ(GetResourceValue(list, "XmNitemCount"), "3");
}

TEST_F(ScrollingLists, EmptyListOfValuesWritesNothing) {
  ExpectQuiet(Run([] {
    EXPECT_EQ(Resources(Processed({Strs(INITIAL_LIST_VALUES, {})})->child),
              "XmNwidth=30 XmNheight=40");
  }));
}

TEST_F(ScrollingLists, GlyphsAreNoted) {
  const Outcome outcome = Run([] { Processed({Strs(INITIAL_LIST_GLYPHS, {"a.icon"})}); });
  EXPECT_EQ(outcome.out, "ScrollingList files: Motif lists do not support glyphs\n");
  EXPECT_EQ(outcome.err, "");
}

TEST_F(ScrollingLists, EmptyGilStringIsAGlyphLikeAnyOther) {
  const Outcome outcome = Run([] { Processed({Strs(INITIAL_LIST_GLYPHS, {""})}); });
  EXPECT_EQ(outcome.out, "ScrollingList files: Motif lists do not support glyphs\n");
}

TEST_F(ScrollingLists, GlyphsAreDroppedSilentlyWithoutNotes) {
  verbose = 0;
  ExpectQuiet(Run([] { Processed({Strs(INITIAL_LIST_GLYPHS, {"a.icon"})}); }));
}

TEST_F(ScrollingLists, NoGlyphsAreNotNoted) {
  ExpectQuiet(Run([] { Processed({Strs(INITIAL_LIST_GLYPHS, {})}); }));
}

TEST_F(ScrollingLists, TitleOfMotif11StandsInAForm) {
  Widg* form = Processed({Str(TITLE, "Files"), Strs(INITIAL_LIST_VALUES, {"A", "B", "C"})});
  EXPECT_EQ(ClassTree(form), "XmForm(XmLabel XmScrolledWindow(XmList))");
  EXPECT_EQ(InstanceTree(form), "files_form(files_title files_sw(files))");
  EXPECT_EQ(Resources(form), "XmNx=1 XmNy=2 XmNwidth=30 XmNheight=40");
  EXPECT_EQ(Resources(form->child),
            "XmNlabelString=\"Files\" XmNtopAttachment=XmATTACH_FORM "
            "XmNleftAttachment=XmATTACH_FORM");
  EXPECT_EQ(Resources(form->child->next),
            "XmNscrollBarDisplayPolicy=XmSTATIC XmNwidth=30 XmNheight=40 "
            "XmNtopAttachment=XmATTACH_WIDGET XmNtopWidget=files_title "
            "XmNbottomAttachment=XmATTACH_FORM XmNleftAttachment=XmATTACH_FORM "
            "XmNrightAttachment=XmATTACH_FORM");
  EXPECT_STREQ(GetResourceValue(form->child->next->child, "XmNitemCount"), "3");
  EXPECT_EQ(form->child->next->wrapped, 1);
  EXPECT_EQ(form->x, 1);
  EXPECT_EQ(form->y, 2);
  EXPECT_EQ(form->width, 30);
  EXPECT_EQ(form->height, 40);
  EXPECT_EQ(CheckWidgTree(form), "");
}

TEST_F(ScrollingLists, TitleOfMotif12StandsInAFrame) {
  motif12 = 1;
  Widg* frame = Processed({Str(TITLE, "Files")});
  EXPECT_EQ(InstanceTree(frame), "files_frame(files_title files_sw(files))");
  EXPECT_STREQ(frame->class_name, "XmFrame");
  EXPECT_EQ(Resources(frame->child),
            "XmNlabelString=\"Files\" XmNchildType=XmFRAME_TITLE_CHILD "
            "XmNchildVerticalAlignment=XmALIGNMENT_WIDGET_TOP");
  EXPECT_EQ(Resources(frame->child->next),
            "XmNscrollBarDisplayPolicy=XmSTATIC XmNwidth=30 XmNheight=40 "
            "XmNchildType=XmFRAME_WORKAREA_CHILD");
}

TEST_F(ScrollingLists, EmptyTitleIsNone) {
  EXPECT_EQ(ClassTree(Processed({Str(TITLE, "")})), "XmScrolledWindow(XmList)");
}

TEST_F(ScrollingLists, ContainerTakesTheListsPlace) {
  Widg* list = Plain();
  Siblings({list, NewWidg("XmLabel", "b")});
  EXPECT_EQ(Names(Processed({Str(TITLE, "Files")}, list)), "files_form b");
}

TEST_F(ScrollingLists, TableOfOneItem) { EXPECT_EQ(Table(StrValue("A")), "1 string_table(\"A\")"); }

TEST_F(ScrollingLists, LongTablesAreWhole) {
  Value* values = nullptr;
  std::string expected = "500 string_table(";
  for (int i = 0; i < 500; ++i) {
    Value* value = StrValue(std::string(20, 'x'));
    value->next = values;
    values = value;
    if (i > 0) expected += ",\n";
    expected.append("\"").append(20, 'x').append("\"");
  }
  EXPECT_EQ(Table(values), expected + ")");
}

TEST_F(ScrollingLists, ItemLongerThanTheBufferIsWhole) {
  const std::string item(5000, 'x');
  EXPECT_EQ(Table(StrValue(item)), std::string("1 string_table(\"").append(item).append("\")"));
}

TEST_F(ScrollingLists, MissingListIsReported) {
  const Outcome outcome = Run([] { EXPECT_EQ(Table(nullptr), "0 "); });
  EXPECT_EQ(outcome.err, "MakeStringTable passed NULL string_value");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, std::nullopt);
}

TEST_F(ScrollingLists, BufferThatCannotBeHadIsReported) {
  const Value* values = StrValue("A");
  char* table = nullptr;
  int count = -1;
  const Outcome outcome = RunOutOfMemory(0, [&] { count = MakeStringTable(values, &table); });
  EXPECT_EQ(outcome.err, "Out of memory in pandrel making string table\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, std::nullopt);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(table, nullptr);
}

TEST_F(ScrollingLists, BufferThatCannotGrowEndsTheRunWithStatusZero) {
  const Value* values = StrValue(std::string(2000, 'x'));
  char* table = nullptr;
  const Outcome outcome = RunOutOfMemory(1, [&] { MakeStringTable(values, &table); });
  EXPECT_EQ(outcome.err, "Out of memory in pandrel making string table\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, std::optional<int>(0));
}

TEST_F(ScrollingLists, BufferKeepsItsSizeForTheNextList) {
  Table(StrValue(std::string(2000, 'x')));
  const Value* values = StrValue(std::string(2000, 'x'));
  char* table = nullptr;
  // Only the buffer is asked for; nothing has to grow.
  ExpectQuiet(RunOutOfMemory(1, [&] { MakeStringTable(values, &table); }));
  OsiFree(table);
  ResetStringTable();
  EXPECT_EQ(RunOutOfMemory(1, [&] { MakeStringTable(values, &table); }).status,
            std::optional<int>(0));
}

}  // namespace
