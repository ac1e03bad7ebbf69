// SPDX-License-Identifier: MIT
#include "convert/actions.h"

#include <cstdio>
#include <string>

#include "convert/events.h"
#include "flags/flags.h"
#include "gil/object.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "osi/strings.h"
#include "text/uil_text.h"
#include "widget/callbacks.h"
#include "widget/procedures.h"
#include "widget/resources.h"
#include "widget/search.h"
#include "widget/tree.h"
#include "widget/walk.h"

char* FixInstanceNameForZO25(char* name) {
  return usezo && zo25 ? ReplaceTrailingDigit(name) : name;
}

// The texts of procedures must be writable, as those from the file are.
static char manage_procedure[] = "ZoManageCB";
static char unmanage_procedure[] = "ZoUnmanageCB";
static char set_values_procedure[] = "ZoSetValuesCB";
static char sensitive_procedure[] = "ZoSetSensitiveCB";
static char insensitive_procedure[] = "ZoSetInsensitiveCB";

// What shows or hides a widget: the procedure for a dialog, the setting for any other.
struct Visibility {
  char* dialog_procedure;
  const char* setting;
};

static const Visibility kShow = {manage_procedure, ".mappedWhenManaged=True"};
static const Visibility kHide = {unmanage_procedure, ".mappedWhenManaged=False"};

// Managing what is in a dialog shows it. The builder's version 2.5 takes the name in a widget list.
static char* MakeDialogArgument(const Widg* content) {
  return zo25 ? MakeWidgList(FixInstanceNameForZO25(content->name))
              : MakeQuotedString(content->name);
}

static Widg* FindWidgToSet(const char* target, const Visibility& visibility, char** procedure,
                           char** argument) {
  Widg* found = FindWidgWithChild(top_widget, target);
  if (found && IsClass(found, "XmDialogShell")) {
    *procedure = visibility.dialog_procedure;
    *argument = MakeDialogArgument(found->child);
    return found->child;
  }
  if (!found) found = FindWidg(top_widget, target);
  if (!found) return nullptr;
  *procedure = set_values_procedure;
  *argument =
      MakeQuotedString(MergeStrings(FixInstanceNameForZO25(found->name), visibility.setting));
  return found;
}

Widg* FindWidgToShow(const char* target, char** procedure, char** argument) {
  return FindWidgToSet(target, kShow, procedure, argument);
}

Widg* FindWidgToHide(const char* target, char** procedure, char** argument) {
  return FindWidgToSet(target, kHide, procedure, argument);
}

void FindAndFixUpWidgetName(const char* name) {
  if (!zo25 || !usezo) return;
  Widg* target = FindWidg(top_widget, name);
  if (!target) {
    std::fprintf(stderr, "Cannot find widget %s which is target of action\n", name);
    return;
  }
  FixInstanceNameForZO25(target->name);
}

// Enable and Disable use the target's GIL name, not that of its instance.
static char* MakeSensitivityArgument(const Value* to) {
  char* name = ValueText(to);
  FindAndFixUpWidgetName(name);
  const std::string former = name;
  FixInstanceNameForZO25(name);
  ProcedureTextChanged(name, former);
  return MakeWidgList(name);
}

// Adds a callback for "Show", "Hide", "Enable" or "Disable" of the widget that `to` names. For the
// builder's version 2.5 this may rename that widget, and change the text of `to`.
static void AddCallbackForDefinedAction(Widg* widg, const Value* when, const Value* to,
                                        const Value* action) {
  if (!IsStringValue(when)) {
    std::fputs("***ERROR: ProcessAction: WHEN is not StringConstant\n", stderr);
    return;
  }
  if (!IsStringValue(action)) {
    std::fputs("***ERROR: ProcessAction: action_name is not StringConstant\n", stderr);
    return;
  }
  const char* name = ValueText(action);
  const char* target = ValueText(to);
  char* procedure = nullptr;
  char* argument = nullptr;
  if (OsiStrcmp(name, "Show") == 0) {
    if (!FindWidgToShow(target, &procedure, &argument)) {
      std::fprintf(stderr, "Cannot find child to show: %s\n", target);
    }
  } else if (OsiStrcmp(name, "Hide") == 0) {
    if (!FindWidgToHide(target, &procedure, &argument)) {
      std::fprintf(stderr, "Cannot find child to hide: %s\n", target);
    }
  } else if (OsiStrcmp(name, "Enable") == 0) {
    procedure = sensitive_procedure;
    argument = MakeSensitivityArgument(to);
  } else if (OsiStrcmp(name, "Disable") == 0) {
    procedure = insensitive_procedure;
    argument = MakeSensitivityArgument(to);
  } else {
    std::fprintf(stderr, "ProcessAction: Unknown action_name %s\n", name);
  }
  // Look the event up in every case: one without a callback is noted even when the target is
  // missing.
  const char* callback_name = MapActionToCallback(widg, ValueText(when));
  if (callback_name && procedure && argument) {
    AddCallback(widg, callback_name, procedure, argument);
  }
}

// Adds a callback that calls the function named by `action`, if the event has a callback.
static void AddCallbackForCallFunction(Widg* widg, const Value* when, const Value* action) {
  // Look the event up even without an action: it may be one to note.
  const char* callback_name = MapActionToCallback(widg, ValueText(when));
  if (callback_name && action) AddCallback(widg, callback_name, ValueText(action), "");
}

static bool IsPredefined(const Value* function_type) {
  return (usezo || gen_zo_callbacks) && ValueToken(function_type, 0) == USER_DEFINED;
}

static bool IsCallFunction(const Value* function_type) {
  if (IsStringValue(function_type)) {
    return OsiStrcmp(ValueText(function_type), "CallFunction") == 0;
  }
  return function_type && function_type->kind == kIntegerValue &&
         function_type->ival == CALL_FUNCTION;
}

void ProcessAction(Widg* widg, const Action* action) {
  if (!action) return;
  // These two go to standard output, unlike every other report on actions.
  if (action->when && action->when->next) {
    std::fputs("***ERROR: ProcessAction: more than one item in WHEN list. Ignoring others...\n",
               stdout);
  }
  if (action->actionName && action->actionName->next) {
    std::fputs("***ERROR: ProcessAction: more than one item in ACTION list. Ignoring others ...\n",
               stdout);
  }
  if (IsPredefined(action->functionType)) {
    const Value* to = LastValue(action->to);
    if (to) AddCallbackForDefinedAction(widg, action->when, to, action->actionName);
  } else if (IsCallFunction(action->functionType)) {
    AddCallbackForCallFunction(widg, action->when, action->actionName);
  }
}

Widg* LocateFromWidg(Widg* widg, const Action* action) {
  if (!action->from) return widg;
  const char* name = ValueText(LastValue(action->from));
  if (OsiStrcmp(name, widg->gil_name) == 0) return widg;
  for (Widg* item = widg->child; item; item = item->next) {
    if (OsiStrcmp(GetResourceValue(item, "XmNlabelString"), name) == 0 ||
        OsiStrcmp(GetResourceValue(item, "XmNoriginalPixmapName"), name) == 0) {
      return item;
    }
  }
  return widg;
}

void ProcessActionsForWidg(Widg* widg) {
  for (const Action* action = widg->actions; action; action = action->next) {
    ProcessAction(LocateFromWidg(widg, action), action);
  }
}

void ProcessActionsForWidgHierarchy(Widg* widg) {
  WalkWidgets(
      widg->child, {WalkStep::kChild, WalkStep::kSelf, WalkStep::kNext}, [](Widg*) { return true; },
      ProcessActionsForWidg);
  ProcessActionsForWidg(widg);
}
