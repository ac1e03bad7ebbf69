// SPDX-License-Identifier: MIT
#include "convert/actions.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>

#include "flags/flags.h"
#include "unit/support/checked_searches.h"
#include "unit/support/fatal_end.h"
#include "unit/support/gil_objects.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/links.h"
#include "widget/search.h"
#include "widget/tree.h"

namespace {

// Every search also goes through the tree and must find the same.
class Actions : public SessionFixture {
 protected:
  Actions() { CheckSearches(true); }
  ~Actions() override { CheckSearches(false); }
};

// A button of the name "ok" at the top level.
Widg* Ok() {
  Widg* button = NewWidg("XmPushButton", "ok");
  TopLevel({button});
  return button;
}

// What a predefined action of the button on Notify makes of it.
std::string Done(Widg* widg, const char* action, const char* to) {
  ProcessAction(widg, Predefined("ok", "Notify", to, action));
  return Callbacks(widg);
}

// A dialog with one child.
Widg* Dialog(const char* child) {
  return NewWidg("XmDialogShell", "popup", {NewWidg("XmBulletinBoard", child)});
}

TEST_F(Actions, FunctionsAreCalledWithoutAnArgument) {
  Widg* ok = Ok();
  ProcessAction(ok, Call("ok", "Notify", "quit"));
  EXPECT_EQ(Callbacks(ok), "XmNactivateCallback quit()");
  EXPECT_EQ(Procedures(), "quit");
}

TEST_F(Actions, SameCallTwiceIsOneCallback) {
  Widg* ok = Ok();
  ProcessAction(ok, Call("ok", "Notify", "quit"));
  ProcessAction(ok, Call("ok", "Notify", "quit"));
  EXPECT_EQ(Callbacks(ok), "XmNactivateCallback quit()");
}

TEST_F(Actions, CallMayBeAnIntegerOfTheKeyword) {
  Widg* ok = Ok();
  Action* action = Call("ok", "Notify", "quit");
  action->functionType = intValue(CALL_FUNCTION);
  ProcessAction(ok, action);
  EXPECT_EQ(Callbacks(ok), "XmNactivateCallback quit()");
}

TEST_F(Actions, OtherFunctionTypesAreDroppedSilently) {
  Widg* ok = Ok();
  for (Value* type : {tokenValue(CALL_FUNCTION), intValue(3), IdValue("ExecuteCode"),
                      IdValue("callfunction"), static_cast<Value*>(nullptr)}) {
    Action* action = Call("ok", "Notify", "quit");
    action->functionType = type;
    ExpectQuiet(Run([=] { ProcessAction(ok, action); }));
  }
  EXPECT_EQ(Callbacks(ok), "");
}

TEST_F(Actions, EventWithoutACallbackAddsNone) {
  Widg* ok = Ok();
  const Outcome outcome = Run([=] { ProcessAction(ok, Call("ok", "Enter", "quit")); });
  EXPECT_EQ(outcome.err, "Ignoring Enter action on widget ok. No direct callback mapping.\n");
  EXPECT_EQ(Callbacks(ok), "");
  EXPECT_EQ(Procedures(), "");
}

TEST_F(Actions, MissingActionIsNothing) {
  ExpectQuiet(Run([] { ProcessAction(Ok(), nullptr); }));
}

TEST_F(Actions, SecondEventIsReportedOnStandardOutput) {
  Widg* ok = Ok();
  Action* action = Call("ok", "Notify", "quit");
  action->when->next = IdValue("Enter");
  const Outcome outcome = Run([=] { ProcessAction(ok, action); });
  EXPECT_EQ(outcome.out,
            "***ERROR: ProcessAction: more than one item in WHEN list. Ignoring others...\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(Callbacks(ok), "XmNactivateCallback quit()");
}

TEST_F(Actions, SecondActionIsReportedOnStandardOutput) {
  Widg* ok = Ok();
  Action* action = Call("ok", "Notify", "quit");
  action->actionName->next = IdValue("save");
  const Outcome outcome = Run([=] { ProcessAction(ok, action); });
  EXPECT_EQ(outcome.out,
            "***ERROR: ProcessAction: more than one item in ACTION list. Ignoring others ...\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(Callbacks(ok), "XmNactivateCallback quit()");
}

TEST_F(Actions, CallOfNothingOnlyAsksForTheEvent) {
  Widg* ok = Ok();
  Action* action = Call("ok", "Enter", "quit");
  action->actionName = nullptr;
  const Outcome outcome = Run([=] { ProcessAction(ok, action); });
  EXPECT_EQ(outcome.err, "Ignoring Enter action on widget ok. No direct callback mapping.\n");
  EXPECT_EQ(Callbacks(ok), "");
}

TEST_F(Actions, CallOfNothingOnAnEventWithACallbackDoesNothing) {
  Widg* ok = Ok();
  Action* action = Call("ok", "Notify", "quit");
  action->actionName = nullptr;
  ExpectQuiet(Run([=] { ProcessAction(ok, action); }));
  EXPECT_EQ(Callbacks(ok), "");
}

TEST_F(Actions, CallOnNoEventDoesNothing) {
  Widg* ok = Ok();
  Action* action = Call("ok", "Notify", "quit");
  action->when = nullptr;
  ExpectQuiet(Run([=] { ProcessAction(ok, action); }));
  EXPECT_EQ(Callbacks(ok), "");
}

TEST_F(Actions, EventThatIsNoTextIsReported) {
  Widg* ok = Ok();
  for (Value* when : {tokenValue(T), intValue(1), static_cast<Value*>(nullptr)}) {
    Action* action = Predefined("ok", "Notify", "ok", "Show");
    action->when = when;
    const Outcome outcome = Run([=] { ProcessAction(ok, action); });
    EXPECT_EQ(outcome.err, "***ERROR: ProcessAction: WHEN is not StringConstant\n");
    EXPECT_EQ(outcome.out, "");
  }
}

TEST_F(Actions, ActionThatIsNoTextIsReported) {
  Widg* ok = Ok();
  for (Value* name : {tokenValue(T), intValue(1), static_cast<Value*>(nullptr)}) {
    Action* action = Predefined("ok", "Notify", "ok", "Show");
    action->actionName = name;
    const Outcome outcome = Run([=] { ProcessAction(ok, action); });
    EXPECT_EQ(outcome.err, "***ERROR: ProcessAction: action_name is not StringConstant\n");
    EXPECT_EQ(outcome.out, "");
  }
}

TEST_F(Actions, ActionOnNothingIsDroppedSilently) {
  Widg* ok = Ok();
  Action* action = Predefined("ok", "Notify", "ok", "Show");
  action->to = nullptr;
  ExpectQuiet(Run([=] { ProcessAction(ok, action); }));
  EXPECT_EQ(Callbacks(ok), "");
}

TEST_F(Actions, LastNameOfThePathIsTheTarget) {
  Widg* ok = Ok();
  TopLevel({NewWidg("XmLabel", "target")});
  Action* action = Predefined("ok", "Notify", "window", "Show");
  action->to->next = IdValue("target");
  ProcessAction(ok, action);
  EXPECT_EQ(Callbacks(ok), "XmNactivateCallback ZoSetValuesCB(\"target.mappedWhenManaged=True\")");
}

TEST_F(Actions, PredefinedActionsNeedTheRunTimeLibrary) {
  Widg* ok = Ok();
  usezo = 0;
  ExpectQuiet(Run([=] { EXPECT_EQ(Done(ok, "Show", "ok"), ""); }));
  gen_zo_callbacks = 1;
  EXPECT_EQ(Done(ok, "Show", "ok"),
            "XmNactivateCallback ZoSetValuesCB(\"ok.mappedWhenManaged=True\")");
}

TEST_F(Actions, UnknownActionIsReportedAndItsEventNoted) {
  Widg* ok = Ok();
  const Outcome outcome =
      Run([=] { ProcessAction(ok, Predefined("ok", "Enter", "ok", "Explode")); });
  EXPECT_EQ(outcome.err,
            "ProcessAction: Unknown action_name Explode\n"
            "Ignoring Enter action on widget ok. No direct callback mapping.\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(Callbacks(ok), "");
}

TEST_F(Actions, MissingTargetsAreReportedEvenWhenQuiet) {
  verbose = 0;
  Widg* ok = Ok();
  EXPECT_EQ(Run([=] { Done(ok, "Show", "nowhere"); }).err, "Cannot find child to show: nowhere\n");
  EXPECT_EQ(Run([=] { Done(ok, "Hide", "nowhere"); }).err, "Cannot find child to hide: nowhere\n");
  EXPECT_EQ(Run([=] { Done(ok, "Jump", "nowhere"); }).err,
            "ProcessAction: Unknown action_name Jump\n");
  EXPECT_EQ(Callbacks(ok), "");
}

TEST_F(Actions, ShowAndHideOfADialogManageItsContent) {
  Widg* ok = Ok();
  TopLevel({Dialog("content")});
  Done(ok, "Show", "popup");
  EXPECT_EQ(Done(ok, "Hide", "popup"),
            "XmNactivateCallback ZoManageCB(\"(WL)[content]\"); "
            "XmNactivateCallback ZoUnmanageCB(\"(WL)[content]\")");
}

TEST_F(Actions, Version30NamesTheContentOfADialogAlone) {
  zo25 = 0;
  Widg* ok = Ok();
  TopLevel({Dialog("content1")});
  EXPECT_EQ(Done(ok, "Show", "popup"), "XmNactivateCallback ZoManageCB(\"content1\")");
  EXPECT_STREQ(Find("content1")->name, "content1");
}

TEST_F(Actions, ShowAndHideOfAControlMapIt) {
  Widg* ok = Ok();
  TopLevel({NewWidg("XmPushButton", "okBtn")});
  Done(ok, "Show", "okBtn");
  EXPECT_EQ(Done(ok, "Hide", "okBtn"),
            "XmNactivateCallback ZoSetValuesCB(\"okBtn.mappedWhenManaged=True\"); "
            "XmNactivateCallback ZoSetValuesCB(\"okBtn.mappedWhenManaged=False\")");
}

TEST_F(Actions, TargetWithAChildIsPreferred) {
  Widg* ok = Ok();
  TopLevel({NewWidg("XmLabel", "target"), NewWidg("XmForm", "target", {NewWidg("XmLabel", "x")})});
  zo25 = 0;
  EXPECT_EQ(Done(ok, "Show", "target"),
            "XmNactivateCallback ZoSetValuesCB(\"target1.mappedWhenManaged=True\")");
}

TEST_F(Actions, ChildlessDialogIsMappedLikeAControl) {
  Widg* ok = Ok();
  TopLevel({NewWidg("XmDialogShell", "popup")});
  EXPECT_EQ(Done(ok, "Show", "popup"),
            "XmNactivateCallback ZoSetValuesCB(\"popup.mappedWhenManaged=True\")");
}

TEST_F(Actions, FindersLeaveTheirResultsAloneWithoutATarget) {
  Ok();
  char procedure[] = "former";
  char* found_procedure = procedure;
  char* argument = nullptr;
  EXPECT_EQ(FindWidgToShow("nowhere", &found_procedure, &argument), nullptr);
  EXPECT_EQ(FindWidgToHide("nowhere", &found_procedure, &argument), nullptr);
  EXPECT_EQ(found_procedure, procedure);
  EXPECT_EQ(argument, nullptr);
}

TEST_F(Actions, FindersReturnTheWidgetActedOn) {
  Widg* dialog = Dialog("content");
  Widg* label = NewWidg("XmLabel", "label");
  TopLevel({dialog, label});
  char* procedure = nullptr;
  char* argument = nullptr;
  EXPECT_EQ(FindWidgToShow("popup", &procedure, &argument), dialog->child);
  EXPECT_STREQ(procedure, "ZoManageCB");
  EXPECT_EQ(FindWidgToHide("label", &procedure, &argument), label);
  EXPECT_STREQ(procedure, "ZoSetValuesCB");
  EXPECT_STREQ(argument, "\"label.mappedWhenManaged=False\"");
}

TEST_F(Actions, ShownTargetIsRenamedForVersion25) {
  Widg* ok = Ok();
  TopLevel({NewWidg("XmLabel", "item1")});
  EXPECT_EQ(Done(ok, "Show", "item1"),
            "XmNactivateCallback ZoSetValuesCB(\"itemB.mappedWhenManaged=True\")");
  EXPECT_STREQ(Find("item1")->name, "itemB");
}

TEST_F(Actions, ContentOfAShownDialogIsRenamedForVersion25) {
  Widg* ok = Ok();
  TopLevel({Dialog("content2")});
  EXPECT_EQ(Done(ok, "Hide", "popup"), "XmNactivateCallback ZoUnmanageCB(\"(WL)[contentC]\")");
  EXPECT_STREQ(Find("content2")->name, "contentC");
}

TEST_F(Actions, EnableAndDisableNameTheGilNameRenamed) {
  Widg* ok = Ok();
  TopLevel({NewWidg("XmLabel", "item1")});
  EXPECT_EQ(Done(ok, "Enable", "item1"), "XmNactivateCallback ZoSetSensitiveCB(\"(WL)[itemB]\")");
  EXPECT_STREQ(Find("item1")->name, "itemB");
}

TEST_F(Actions, DisableHasItsOwnProcedure) {
  zo25 = 0;
  Widg* ok = Ok();
  TopLevel({NewWidg("XmLabel", "item1")});
  EXPECT_EQ(Done(ok, "Disable", "item1"),
            "XmNactivateCallback ZoSetInsensitiveCB(\"(WL)[item1]\")");
  EXPECT_STREQ(Find("item1")->name, "item1");
}

TEST_F(Actions, EnableOfAMissingTargetIsReportedAndStillCalled) {
  Widg* ok = Ok();
  const Outcome outcome = Run([=] { Done(ok, "Enable", "nowhere"); });
  EXPECT_EQ(outcome.err, "Cannot find widget nowhere which is target of action\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(Callbacks(ok), "XmNactivateCallback ZoSetSensitiveCB(\"(WL)[nowhere]\")");
}

TEST_F(Actions, MissingTargetIsNotLookedForByOtherTargets) {
  zo25 = 0;
  Widg* ok = Ok();
  ExpectQuiet(Run([=] { Done(ok, "Disable", "nowhere"); }));
}

TEST_F(Actions, PredefinedActionMayBeAnIntegerOfTheKeyword) {
  Widg* ok = Ok();
  Action* action = Predefined("ok", "Notify", "ok", "Show");
  action->functionType = intValue(USER_DEFINED);
  ProcessAction(ok, action);
  EXPECT_EQ(Callbacks(ok), "XmNactivateCallback ZoSetValuesCB(\"ok.mappedWhenManaged=True\")");
}

TEST_F(Actions, CallOfNilCallsAProcedureWithoutAName) {
  Widg* ok = Ok();
  Action* action = Call("ok", "Notify", "quit");
  action->actionName = tokenValue(NIL);
  ExpectQuiet(Run([=] { ProcessAction(ok, action); }));
  EXPECT_EQ(Callbacks(ok), "XmNactivateCallback ()");
}

TEST_F(Actions, TextOfATargetIsRenamedForAllWhoShareTheAction) {
  Widg* ok = Ok();
  Widg* other = NewWidg("XmPushButton", "other");
  TopLevel({other, NewWidg("XmLabel", "b1")});
  Action* action = Predefined("ok", "Notify", "b1", "Enable");
  ExpectQuiet(Run([=] { ProcessAction(ok, action); }));
  const Outcome outcome = Run([=] { ProcessAction(other, action); });
  EXPECT_EQ(outcome.err, "Cannot find widget bB which is target of action\n");
  EXPECT_EQ(Callbacks(ok), "XmNactivateCallback ZoSetSensitiveCB(\"(WL)[bB]\")");
  EXPECT_EQ(Callbacks(other), "XmNactivateCallback ZoSetSensitiveCB(\"(WL)[bB]\")");
}

TEST_F(Actions, ProcedureThatIsRenamedWithATargetIsDeclaredOnce) {
  Widg* ok = Ok();
  Widg* other = NewWidg("XmPushButton", "other");
  TopLevel({other, NewWidg("XmLabel", "b1")});
  const Action* call = Call("ok", "Notify", "b1");
  Action* enable = Predefined("ok", "Notify", "b1", "Enable");
  enable->to = call->actionName;
  ProcessAction(ok, call);
  ProcessAction(ok, enable);
  ProcessAction(other, Call("other", "Notify", "bB"));
  EXPECT_EQ(Procedures(), "bB ZoSetSensitiveCB");
}

TEST_F(Actions, TargetIsRenamedThoughTheEventHasNoCallback) {
  Widg* ok = Ok();
  TopLevel({NewWidg("XmLabel", "item1"), NewWidg("XmLabel", "other2")});
  const Outcome outcome = Run([=] {
    ProcessAction(ok, Predefined("ok", "Enter", "item1", "Show"));
    ProcessAction(ok, Predefined("ok", "Enter", "other2", "Disable"));
  });
  const std::string note = "Ignoring Enter action on widget ok. No direct callback mapping.\n";
  EXPECT_EQ(outcome.err, note + note);
  EXPECT_EQ(Callbacks(ok), "");
  EXPECT_STREQ(Find("item1")->name, "itemB");
  EXPECT_STREQ(Find("other2")->name, "otherC");
}

TEST_F(Actions, LaterActionsSeeTheRenamedTarget) {
  Widg* ok = Ok();
  TopLevel({NewWidg("XmLabel", "item1")});
  Done(ok, "Show", "item1");
  EXPECT_EQ(Done(ok, "Hide", "item1"),
            "XmNactivateCallback ZoSetValuesCB(\"itemB.mappedWhenManaged=True\"); "
            "XmNactivateCallback ZoSetValuesCB(\"itemB.mappedWhenManaged=False\")");
}

TEST_F(Actions, TrailingDigitsBecomeLettersInPlace) {
  char one[] = "item1";
  char nine[] = "item9";
  char zero[] = "0";
  char empty[] = "";
  EXPECT_EQ(FixInstanceNameForZO25(one), one);
  EXPECT_STREQ(one, "itemB");
  EXPECT_STREQ(FixInstanceNameForZO25(nine), "item9");
  EXPECT_STREQ(FixInstanceNameForZO25(zero), "A");
  EXPECT_STREQ(FixInstanceNameForZO25(empty), "");
}

TEST_F(Actions, NamesStayForOtherTargets) {
  char name[] = "item1";
  zo25 = 0;
  EXPECT_STREQ(FixInstanceNameForZO25(name), "item1");
  zo25 = 1;
  usezo = 0;
  EXPECT_STREQ(FixInstanceNameForZO25(name), "item1");
}

TEST_F(Actions, NameIsFixedOnlyForVersion25OfTheBuilder) {
  usezo = 0;
  ExpectQuiet(Run([] { FindAndFixUpWidgetName("nowhere"); }));
  usezo = 1;
  EXPECT_EQ(Run([] { FindAndFixUpWidgetName("nowhere"); }).err,
            "Cannot find widget nowhere which is target of action\n");
}

// A setting of two choices, the second a glyph.
Widg* Choices() {
  return NewWidg("XmRowColumn", "hue",
                 {With(NewWidg("XmToggleButton", "a"), {{"XmNlabelString", "\"Red\""}}),
                  With(NewWidg("XmToggleButton", "b"), {{"XmNoriginalPixmapName", "\"g.icon\""}}),
                  With(NewWidg("XmToggleButton", "c"), {{"XmNlabelString", "\"Red\""}})});
}

Widg* From(Widg* widg, std::initializer_list<std::string_view> path) {
  Action* action = Call("", "Notify", "quit");
  action->from = Ids(FROM, path)->value;
  return LocateFromWidg(widg, action);
}

TEST_F(Actions, ActionFromAnItemLandsOnTheChildOfThatLabel) {
  Widg* setting = Choices();
  EXPECT_EQ(From(setting, {"window", "\"Red\""}), setting->child);
  EXPECT_EQ(From(setting, {"\"g.icon\""}), setting->child->next);
}

TEST_F(Actions, ActionFromTheObjectItselfStaysThere) {
  Widg* setting = Choices();
  EXPECT_EQ(From(setting, {"window", "hue"}), setting);
}

TEST_F(Actions, NameOfTheObjectGoesBeforeTheLabelsOfItsItems) {
  Widg* setting = NewWidg("XmRowColumn", "\"Red\"",
                          {With(NewWidg("XmToggleButton", "a"), {{"XmNlabelString", "\"Red\""}})});
  EXPECT_EQ(From(setting, {"\"Red\""}), setting);
}

TEST_F(Actions, InstanceNameIsNoSource) {
  Widg* item = With(NewWidg("XmToggleButton", "a"), {{"XmNlabelString", "hue"}});
  Widg* setting = NewWidg("XmRowColumn", "Hue", {item});
  ASSERT_STREQ(setting->name, "hue");
  EXPECT_EQ(From(setting, {"hue"}), item);
}

TEST_F(Actions, NamesOfItemsAreNoSource) {
  Widg* setting = Choices();
  EXPECT_EQ(From(setting, {"b"}), setting);
}

TEST_F(Actions, ActionFromNowhereStays) {
  Widg* setting = Choices();
  EXPECT_EQ(From(setting, {}), setting);
  EXPECT_EQ(From(setting, {"\"Blue\""}), setting);
  EXPECT_EQ(From(setting, {"\"Red\"", "other"}), setting);
}

TEST_F(Actions, EveryActionOfAWidgetIsConverted) {
  Widg* ok = Convert(Acting(Object(BUTTON, "ok"),
                            {Call("ok", "Notify", "first"), Call("ok", "Notify", "second")}));
  ProcessActionsForWidg(ok);
  EXPECT_EQ(Callbacks(ok), "XmNactivateCallback first(); XmNactivateCallback second()");
}

TEST_F(Actions, ChildrenComeBeforeTheirParents) {
  Widg* area = Convert(Owning(Acting(Object(CANVAS_PANE, "area"), {Call("area", "Select", "last")}),
                              {Acting(Object(BUTTON, "a"), {Call("a", "Notify", "first")}),
                               Acting(Object(BUTTON, "b"), {Call("b", "Notify", "second")})}));
  ProcessActionsForWidgHierarchy(area);
  EXPECT_EQ(Procedures(), "first second last");
}

TEST_F(Actions, SiblingsOfTheWidgetAreNotItsHierarchy) {
  Widg* first = Convert({Acting(Object(BUTTON, "a"), {Call("a", "Notify", "first")}),
                         Acting(Object(BUTTON, "b"), {Call("b", "Notify", "second")})});
  ProcessActionsForWidgHierarchy(first);
  EXPECT_EQ(Procedures(), "first");
}

TEST_F(Actions, WalkOfATreeThatLiesBelowItselfEnds) {
  Widg* inner = NewWidg("XmPushButton", "inner");
  Widg* outer = NewWidg("XmForm", "outer", {inner});
  TopLevel({outer});
  AddChildWidg(inner, outer);
  inner->actions = Call("inner", "Notify", "quit");
  ProcessActionsForWidgHierarchy(outer);
  EXPECT_EQ(Callbacks(inner), "XmNactivateCallback quit()");
}

}  // namespace
