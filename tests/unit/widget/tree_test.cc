// SPDX-License-Identifier: MIT
#include "widget/tree.h"
#include "widget/callbacks.h"

#include <gtest/gtest.h>

#include <string>

#include "unit/support/fatal_end.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/copy.h"
#include "widget/procedures.h"

namespace {

using WidgTree = SessionFixture;

const char kNameOf31[] = "a234567890123456789012345678901";
const char kNameOf32[] = "a2345678901234567890123456789012";
const char kNameOf30[] = "a23456789012345678901234567890";

TEST_F(WidgTree, FirstLetterOfTheNameIsLowered) {
  const Widg* widg = NewWidg("XmLabel", "Title");
  EXPECT_STREQ(widg->name, "title");
  EXPECT_STREQ(widg->gil_name, "Title");
}

TEST_F(WidgTree, SecondWidgetOfANameGetsANumber) {
  NewWidg("XmLabel", "Title");
  const Widg* second = NewWidg("XmLabel", "Title");
  EXPECT_STREQ(second->name, "title1");
  EXPECT_STREQ(second->gil_name, "Title");
}

TEST_F(WidgTree, OnlyTheFirstLetterIsLowered) {
  EXPECT_STREQ(NewWidg("XmLabel", "OKButton")->name, "oKButton");
  EXPECT_STREQ(NewWidg("XmLabel", "_Tail")->name, "_Tail");
}

TEST_F(WidgTree, NameOf40CharactersIsCutTo30) {
  const std::string requested(40, 'x');
  const Widg* widg = NewWidg("XmLabel", requested);
  EXPECT_EQ(widg->name, std::string(30, 'x'));
  EXPECT_EQ(widg->gil_name, requested);
}

TEST_F(WidgTree, NameOf31CharactersStaysWhole) {
  EXPECT_STREQ(NewWidg("XmLabel", kNameOf31)->name, kNameOf31);
}

TEST_F(WidgTree, NameOf32CharactersIsCutTo30) {
  EXPECT_STREQ(NewWidg("XmLabel", kNameOf32)->name, kNameOf30);
}

TEST_F(WidgTree, NumberComesOnTopOfTheCutName) {
  NewWidg("XmLabel", std::string(40, 'x'));
  EXPECT_EQ(NewWidg("XmLabel", std::string(35, 'x'))->name, std::string(30, 'x') + "1");
}

TEST_F(WidgTree, RequestedNameChangesInTheCallersBuffer) {
  char requested[] = "A234567890123456789012345678901234567890";
  MakeWidg("XmLabel", requested);
  EXPECT_STREQ(requested, kNameOf30);
}

TEST_F(WidgTree, ReservedWordOfUilIsNumbered) {
  EXPECT_STREQ(NewWidg("XmLabel", "Object")->name, "object1");
  EXPECT_STREQ(NewWidg("XmLabel", "widget")->name, "widget2");
}

TEST_F(WidgTree, NullNameCountsAsEmpty) {
  const Widg* widg = MakeWidg("XmLabel", nullptr);
  EXPECT_STREQ(widg->name, "");
  EXPECT_STREQ(widg->gil_name, "");
}

TEST_F(WidgTree, NewWidgetIsManagedAndOtherwiseBlank) {
  const char* const class_name = "XmLabel";
  const Widg* widg = NewWidg(class_name, "title");
  EXPECT_EQ(widg->class_name, class_name);
  EXPECT_EQ(widg->managed, 1);
  EXPECT_EQ(widg->next, nullptr);
  EXPECT_EQ(widg->child, nullptr);
  EXPECT_EQ(widg->callbacks, nullptr);
  EXPECT_EQ(widg->resources, nullptr);
  EXPECT_EQ(widg->actions, nullptr);
  EXPECT_EQ(widg->wrapped, 0);
  EXPECT_EQ(widg->generated, 0);
  EXPECT_EQ(widg->x, 0);
  EXPECT_EQ(widg->y, 0);
  EXPECT_EQ(widg->width, 0);
  EXPECT_EQ(widg->height, 0);
  EXPECT_EQ(widg->extra_width, 0);
  EXPECT_EQ(widg->extra_height, 0);
}

TEST_F(WidgTree, ClassesAreComparedWhole) {
  const Widg* widg = NewWidg("XmText", "text");
  EXPECT_TRUE(IsClass(widg, "XmText"));
  EXPECT_FALSE(IsClass(widg, "XmTextField"));
  EXPECT_FALSE(IsClass(widg, "xmtext"));
}

TEST_F(WidgTree, RecordsKeepTheCallersTexts) {
  const char* const resource_name = "XmNx";
  const char* value = "1";
  const Resource* resource = MakeResource(resource_name, value);
  EXPECT_EQ(resource->name, resource_name);
  EXPECT_EQ(resource->value, value);
  EXPECT_EQ(resource->next, nullptr);

  const char* name = "XmNhelpCallback";
  char procedure[] = "quit";
  const Callback* callback = MakeCallback(name, procedure, value);
  EXPECT_EQ(callback->callback_name, name);
  EXPECT_EQ(callback->procedure, procedure);
  EXPECT_EQ(callback->argument, value);
  EXPECT_EQ(callback->next, nullptr);
}

TEST_F(WidgTree, ResourceSetAgainKeepsItsPlace) {
  Widg* widg = NewWidg("XmLabel", "title");
  AddResource(widg, "XmNx", "10");
  AddResource(widg, "XmNy", "5");
  AddResource(widg, "XmNx", "12");
  EXPECT_EQ(Resources(widg), "XmNx=12 XmNy=5");
}

TEST_F(WidgTree, ResourceNamesAreComparedExactly) {
  Widg* widg = With(NewWidg("XmLabel", "title"), {{"XmNx", "1"}, {"xmnx", "2"}, {"XmN", "3"}});
  EXPECT_EQ(Resources(widg), "XmNx=1 xmnx=2 XmN=3");
}

TEST_F(WidgTree, AbsentResourceReadsAsEmptyText) {
  const Widg* widg = NewWidg("XmLabel", "title");
  EXPECT_STREQ(GetResourceValue(widg, "XmNx"), "");
  EXPECT_FALSE(HasResource(widg, "XmNx"));
}

TEST_F(WidgTree, NullValueReadsAsEmptyText) {
  const Widg* widg = With(NewWidg("XmLabel", "title"), {{"XmNx", nullptr}});
  EXPECT_STREQ(GetResourceValue(widg, "XmNx"), "");
}

TEST_F(WidgTree, EmptyValueCountsAsUnset) {
  const Widg* widg = With(NewWidg("XmLabel", "title"), {{"XmNx", ""}});
  EXPECT_FALSE(HasResource(widg, "XmNx"));
}

TEST_F(WidgTree, NumbersAreReadUpToTheFirstOtherCharacter) {
  const Widg* widg =
      With(NewWidg("XmLabel", "title"), {{"XmNx", "-12abc"}, {"XmNy", "abc"}, {"XmNwidth", "7"}});
  EXPECT_EQ(GetResourceInt(widg, "XmNx"), -12);
  EXPECT_EQ(GetResourceInt(widg, "XmNy"), 0);
  EXPECT_EQ(GetResourceInt(widg, "XmNwidth"), 7);
  EXPECT_EQ(GetResourceInt(widg, "XmNheight"), 0);
}

TEST_F(WidgTree, RemovingTakesOneResourceOut) {
  Widg* widg = With(NewWidg("XmLabel", "title"), {{"XmNx", "1"}, {"XmNy", "2"}, {"XmNz", "3"}});
  RemoveResource(widg, "XmNy");
  EXPECT_EQ(Resources(widg), "XmNx=1 XmNz=3");
  RemoveResource(widg, "XmNx");
  EXPECT_EQ(Resources(widg), "XmNz=3");
  RemoveResource(widg, "XmNz");
  EXPECT_EQ(Resources(widg), "");
}

TEST_F(WidgTree, RemovingAnAbsentResourceChangesNothing) {
  Widg* widg = With(NewWidg("XmLabel", "title"), {{"XmNx", "1"}});
  RemoveResource(widg, "XmNy");
  EXPECT_EQ(Resources(widg), "XmNx=1");
}

TEST_F(WidgTree, RemovedRecordStillLeadsToWhatFollows) {
  Widg* widg = With(NewWidg("XmLabel", "title"), {{"XmNx", "1"}, {"XmNy", "2"}});
  Widg* copy = CopyWidg(widg);
  RemoveResource(copy, "XmNx");
  EXPECT_EQ(Resources(copy), "XmNy=2");
  EXPECT_EQ(Resources(widg), "XmNx=1 XmNy=2");
}

TEST_F(WidgTree, MovingTakesTheResourceAlong) {
  Widg* from = With(NewWidg("XmLabel", "from"), {{"XmNx", "1"}, {"XmNy", "2"}});
  Widg* to = With(NewWidg("XmLabel", "to"), {{"XmNx", "9"}, {"XmNz", "3"}});
  MoveResource(from, "XmNx", to);
  EXPECT_EQ(Resources(from), "XmNy=2");
  EXPECT_EQ(Resources(to), "XmNx=1 XmNz=3");
}

TEST_F(WidgTree, MovingAnEmptyOrAbsentResourceChangesNothing) {
  Widg* from = With(NewWidg("XmLabel", "from"), {{"XmNx", ""}});
  Widg* to = With(NewWidg("XmLabel", "to"), {{"XmNx", "9"}, {"XmNy", "8"}});
  MoveResource(from, "XmNx", to);
  MoveResource(from, "XmNy", to);
  EXPECT_EQ(Resources(from), "XmNx=");
  EXPECT_EQ(Resources(to), "XmNx=9 XmNy=8");
}

TEST_F(WidgTree, MovingBetweenWidgetsThatShareTheirListRemovesTheResource) {
  Widg* widg = With(NewWidg("XmLabel", "title"), {{"XmNx", "1"}, {"XmNy", "2"}});
  Widg* copy = CopyWidg(widg);
  MoveResource(widg, "XmNx", copy);
  EXPECT_EQ(Resources(widg), "XmNy=2");
  EXPECT_EQ(Resources(copy), "XmNx=1 XmNy=2");
}

TEST_F(WidgTree, IdenticalCallbackIsAddedOnce) {
  Widg* widg = NewWidg("XmPushButton", "ok");
  AddCallback(widg, "XmNactivateCallback", Writable("quit"), "");
  AddCallback(widg, "XmNactivateCallback", Writable("quit"), "");
  EXPECT_EQ(Callbacks(widg), "XmNactivateCallback quit()");
}

TEST_F(WidgTree, CallbackThatDiffersInOneTextIsAdded) {
  Widg* widg = NewWidg("XmPushButton", "ok");
  AddCallback(widg, "XmNactivateCallback", Writable("quit"), "");
  AddCallback(widg, "XmNactivateCallback", Writable("quit"), "now");
  AddCallback(widg, "XmNactivateCallback", Writable("save"), "");
  AddCallback(widg, "XmNhelpCallback", Writable("quit"), "");
  EXPECT_EQ(Callbacks(widg),
            "XmNactivateCallback quit(); XmNactivateCallback quit(now); "
            "XmNactivateCallback save(); XmNhelpCallback quit()");
}

TEST_F(WidgTree, ProcedureOfADuplicateCallbackIsDeclaredAllTheSame) {
  Widg* widg = NewWidg("XmPushButton", "ok");
  AddCallback(widg, "XmNactivateCallback", Writable("quit"), "");
  ResetProcedures();
  AddCallback(widg, "XmNactivateCallback", Writable("quit"), "");
  EXPECT_EQ(Procedures(), "quit");
}

Widg* HelpBetweenActivates() {
  Widg* widg = NewWidg("XmPushButton", "from");
  AddCallback(widg, "XmNactivateCallback", Writable("first"), "");
  AddCallback(widg, "XmNhelpCallback", Writable("help"), "");
  AddCallback(widg, "XmNactivateCallback", Writable("second"), "");
  return widg;
}

TEST_F(WidgTree, MovingCallbacksLeavesTheOthers) {
  Widg* from = HelpBetweenActivates();
  Widg* to = NewWidg("XmPushButton", "to");
  MoveCallback(from, to, "XmNactivateCallback");
  EXPECT_EQ(Callbacks(from), "XmNhelpCallback help()");
  EXPECT_EQ(Callbacks(to), "XmNactivateCallback first(); XmNactivateCallback second()");
}

TEST_F(WidgTree, MovingCallbacksSkipsWhatTheTargetHas) {
  Widg* from = HelpBetweenActivates();
  Widg* to = NewWidg("XmPushButton", "to");
  AddCallback(to, "XmNactivateCallback", Writable("second"), "");
  MoveCallback(from, to, "XmNactivateCallback");
  EXPECT_EQ(Callbacks(from), "XmNhelpCallback help()");
  EXPECT_EQ(Callbacks(to), "XmNactivateCallback second(); XmNactivateCallback first()");
}

TEST_F(WidgTree, MovingTheFirstCallbackKeepsTheOrderOfTheRest) {
  Widg* from = HelpBetweenActivates();
  MoveCallback(from, NewWidg("XmPushButton", "to"), "XmNhelpCallback");
  EXPECT_EQ(Callbacks(from), "XmNactivateCallback first(); XmNactivateCallback second()");
}

TEST_F(WidgTree, MovingCallbacksOfANullWidgetDoesNothing) {
  Widg* widg = HelpBetweenActivates();
  const std::string before = Callbacks(widg);
  MoveCallback(widg, nullptr, "XmNactivateCallback");
  MoveCallback(nullptr, widg, "XmNactivateCallback");
  EXPECT_EQ(Callbacks(widg), before);
}

TEST_F(WidgTree, MovingFromAWidgetWithoutCallbacksDoesNothing) {
  Widg* to = HelpBetweenActivates();
  const std::string before = Callbacks(to);
  MoveCallback(NewWidg("XmPushButton", "bare"), to, "XmNactivateCallback");
  EXPECT_EQ(Callbacks(to), before);
}

TEST_F(WidgTree, MovingCallbacksBetweenWidgetsThatShareTheirListEnds) {
  Widg* widg = HelpBetweenActivates();
  Widg* copy = CopyWidg(widg);
  MoveCallback(widg, copy, "XmNactivateCallback");
  EXPECT_EQ(Callbacks(widg), "XmNhelpCallback help()");
}

TEST_F(WidgTree, ResetEmptiesTheTree) {
  TopLevel({NewWidg("TopLevelShell", "shell")});
  ResetTree();
  EXPECT_EQ(top_widget, nullptr);
}

TEST_F(WidgTree, ExhaustedMemoryForAWidgetIsFatal) {
  char name[] = "title";
  ExpectError(RunOutOfMemory(0, [&] { MakeWidg("XmLabel", name); }), "Out of memory in MakeWidg");
}

TEST_F(WidgTree, ExhaustedMemoryForTheNameOfAWidgetIsFatal) {
  char name[] = "title";
  ExpectError(RunOutOfMemory(1, [&] { MakeWidg("XmLabel", name); }), "Out of memory in MakeWidg");
}

TEST_F(WidgTree, ExhaustedMemoryForAResourceIsFatal) {
  Widg* widg = NewWidg("XmLabel", "title");
  ExpectError(RunOutOfMemory(0, [&] { AddResource(widg, "XmNx", "1"); }),
              "Out of memory in MakeResource");
}

TEST_F(WidgTree, ExhaustedMemoryForACallbackIsFatal) {
  Widg* widg = NewWidg("XmLabel", "title");
  char procedure[] = "quit";
  ExpectError(RunOutOfMemory(0, [&] { AddCallback(widg, "XmNhelpCallback", procedure, ""); }),
              "Out of memory in MakeCallback");
}

}  // namespace
