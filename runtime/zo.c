/* SPDX-License-Identifier: MIT */
#include "zo.h"

#include <Mrm/MrmAppl.h>
#include <X11/IntrinsicP.h>
#include <X11/ShellP.h>
#include <X11/StringDefs.h>
#include <Xm/DialogS.h>
#include <Xm/MessageB.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define COUNT(array) (sizeof(array) / sizeof(array)[0])

/* ---- Messages ---- */

static void ReportToStderr(Widget caller, const char* message) {
  String name = NULL;
  String class_name = NULL;
  XtGetApplicationNameAndClass(XtDisplayOfObject(caller), &name, &class_name);
  fprintf(stderr, "%s: %s\n", name ? name : "?", message);
}

static ZoReportProc report = ReportToStderr;

ZoReportProc ZoSetReport(ZoReportProc new_report) {
  ZoReportProc former = report;
  report = new_report ? new_report : ReportToStderr;
  return former;
}

/* A message that was given. The list lives as long as the program. */
typedef struct Given {
  struct Given* next;
  char* message;
} Given;

static Given* given = NULL;

/* Reports "procedure: what argument", once. */
static void ReportOnce(Widget caller, const char* procedure, const char* what,
                       const char* argument) {
  const size_t size = strlen(procedure) + strlen(what) + strlen(argument) + 4;
  char* message = XtMalloc((Cardinal)size);
  Given* known;
  snprintf(message, size, "%s: %s %s", procedure, what, argument);
  for (known = given; known; known = known->next) {
    if (strcmp(known->message, message) == 0) {
      XtFree(message);
      return;
    }
  }
  known = (Given*)XtMalloc(sizeof *known);
  known->message = message;
  known->next = given;
  given = known;
  report(caller, message);
}

/* ---- Finding widgets ---- */

/* The widget of this name at or below `widget`, the shells that pop up from it included. */
static Widget FindBelow(Widget widget, const char* name) {
  Cardinal i;
  if (strcmp(XtName(widget), name) == 0) return widget;
  if (XtIsComposite(widget)) {
    WidgetList children = NULL;
    Cardinal count = 0;
    XtVaGetValues(widget, XtNchildren, &children, XtNnumChildren, &count, (char*)NULL);
    for (i = 0; i < count; ++i) {
      Widget found = FindBelow(children[i], name);
      if (found) return found;
    }
  }
  /* The list of popup shells is no resource. Gadgets, which are no widgets, have none. */
  if (XtIsWidget(widget)) {
    for (i = 0; i < widget->core.num_popups; ++i) {
      Widget found = FindBelow(widget->core.popup_list[i], name);
      if (found) return found;
    }
  }
  return NULL;
}

Widget ZoFind(Widget caller, const char* name) {
  Widget hooks = XtHooksOfDisplay(XtDisplayOfObject(caller));
  WidgetList shells = NULL;
  Cardinal count = 0;
  Cardinal i;
  Widget at;
  for (at = caller; at; at = XtParent(at)) {
    Widget found = XtIsShell(at) ? FindBelow(at, name) : NULL;
    if (found) return found;
  }
  XtVaGetValues(hooks, XtNshells, &shells, XtNnumShells, &count, (char*)NULL);
  for (i = 0; i < count; ++i) {
    Widget found = FindBelow(shells[i], name);
    if (found) return found;
  }
  return NULL;
}

/* ---- Arguments ---- */

/* A missing argument comes as a null pointer or as a pointer to a zero word, which reads as an
   empty text. */
static Boolean HasArgument(XtPointer argument) {
  return argument && *(const char*)argument != '\0';
}

/* The widget named by the first `length` bytes of `text`, a "(WL)[...]" around the name taken off;
   null after a message. */
static Widget FindNamed(Widget caller, const char* procedure, const char* text, size_t length) {
  static const char open[] = "(WL)[";
  const size_t open_length = sizeof open - 1;
  char* name;
  Widget widget;
  if (length > open_length && strncmp(text, open, open_length) == 0 && text[length - 1] == ']') {
    text += open_length;
    length -= open_length + 1;
  }
  name = XtMalloc((Cardinal)length + 1);
  memcpy(name, text, length);
  name[length] = '\0';
  widget = ZoFind(caller, name);
  if (!widget) ReportOnce(caller, procedure, "no widget named", name);
  XtFree(name);
  return widget;
}

static Widget FindArgument(Widget caller, const char* procedure, XtPointer argument) {
  const char* text = (const char*)argument;
  return HasArgument(argument) ? FindNamed(caller, procedure, text, strlen(text)) : NULL;
}

/* ---- Showing and hiding ---- */

/* Menus have shells of their own, which pop up and down with what they hold. */
static Boolean IsWindow(Widget widget) { return XtIsWMShell(widget) ? True : False; }

static void SetDialogShown(Widget shell, Boolean shown) {
  WidgetList children = NULL;
  Cardinal count = 0;
  XtVaGetValues(shell, XtNchildren, &children, XtNnumChildren, &count, (char*)NULL);
  if (count == 0) return;
  if (shown) {
    XtManageChildren(children, count);
  } else {
    XtUnmanageChildren(children, count);
  }
}

static void SetWindowShown(Widget shell, Boolean shown) {
  if (XmIsDialogShell(shell)) {
    SetDialogShown(shell, shown);
  } else if (!shown) {
    XtPopdown(shell);
  } else if (((ShellWidget)shell)->shell.popped_up) {
    /* It may be an icon, which the toolkit would leave as it is. */
    XMapRaised(XtDisplay(shell), XtWindow(shell));
  } else {
    XtPopup(shell, XtGrabNone);
  }
}

static void SetShown(Widget widget, Boolean shown) {
  Widget parent = XtParent(widget);
  if (IsWindow(widget)) {
    SetWindowShown(widget, shown);
  } else if (parent && IsWindow(parent) && !XmIsDialogShell(parent)) {
    if (shown) XtManageChild(widget);
    SetWindowShown(parent, shown);
  } else if (shown) {
    XtManageChild(widget);
  } else {
    XtUnmanageChild(widget);
  }
}

void ZoShow(Widget widget) { SetShown(widget, True); }
void ZoHide(Widget widget) { SetShown(widget, False); }

/* ---- The procedures ---- */

void ZoManageCB(Widget caller, XtPointer argument, XtPointer call_data) {
  Widget widget = FindArgument(caller, "ZoManageCB", argument);
  (void)call_data;
  if (widget) ZoShow(widget);
}

void ZoUnmanageCB(Widget caller, XtPointer argument, XtPointer call_data) {
  Widget widget = FindArgument(caller, "ZoUnmanageCB", argument);
  (void)call_data;
  if (widget) ZoHide(widget);
}

void ZoSetSensitiveCB(Widget caller, XtPointer argument, XtPointer call_data) {
  Widget widget = FindArgument(caller, "ZoSetSensitiveCB", argument);
  (void)call_data;
  if (widget) XtSetSensitive(widget, True);
}

void ZoSetInsensitiveCB(Widget caller, XtPointer argument, XtPointer call_data) {
  Widget widget = FindArgument(caller, "ZoSetInsensitiveCB", argument);
  (void)call_data;
  if (widget) XtSetSensitive(widget, False);
}

static Boolean IsTrue(Widget widget, char* value) {
  Boolean result = False;
  XrmValue from;
  XrmValue to;
  from.addr = value;
  from.size = (unsigned)strlen(value) + 1;
  to.addr = (XPointer)&result;
  to.size = sizeof result;
  return XtConvertAndStore(widget, XtRString, &from, XtRBoolean, &to) ? result : False;
}

static void SetResource(Widget widget, char* resource, char* value) {
  if (strncmp(resource, "XmN", 3) == 0) resource += 3;
  if (IsWindow(widget) && strcmp(resource, XtNmappedWhenManaged) == 0) {
    /* Setting the resource of a window that is up would do nothing. */
    SetShown(widget, IsTrue(widget, value));
    return;
  }
  XtVaSetValues(widget, XtVaTypedArg, resource, XtRString, value, (int)strlen(value) + 1,
                (char*)NULL);
  /* Showing also raises, as in OPEN LOOK, where it selects one of several panels in one place. */
  if (strcmp(resource, XtNmappedWhenManaged) == 0 && XtIsWidget(widget) && XtIsRealized(widget) &&
      IsTrue(widget, value)) {
    XRaiseWindow(XtDisplay(widget), XtWindow(widget));
  }
}

/* Where the resource begins in "name.resource=value": behind the last dot before the sign, since a
   name may hold dots. Null when the text has not that form. */
static const char* ResourceIn(const char* text) {
  const char* equals = strchr(text, '=');
  const char* at = equals;
  if (!equals) return NULL;
  while (at > text && at[-1] != '.') --at;
  return at > text + 1 && at < equals ? at : NULL;
}

void ZoSetValuesCB(Widget caller, XtPointer argument, XtPointer call_data) {
  static const char procedure[] = "ZoSetValuesCB";
  const char* text = (const char*)argument;
  const char* resource;
  Widget widget;
  (void)call_data;
  if (!HasArgument(argument)) return;
  resource = ResourceIn(text);
  if (!resource) {
    ReportOnce(caller, procedure, "not of the form name.resource=value:", text);
    return;
  }
  widget = FindNamed(caller, procedure, text, (size_t)(resource - text) - 1);
  if (widget) {
    char* copy = XtNewString(resource);
    char* equals = strchr(copy, '=');
    *equals = '\0';
    SetResource(widget, copy, equals + 1);
    XtFree(copy);
  }
}

static Boolean IsSign(char c) { return c == '-' || c == '+'; }

/* Whether the text of the widget has a sign at this position. */
static Boolean SignStandsAt(Widget widget, XmTextPosition position) {
  char* text = XmIsTextField(widget) ? XmTextFieldGetString(widget) : XmTextGetString(widget);
  const Boolean sign =
      text && position >= 0 && (size_t)position < strlen(text) && IsSign(text[position]);
  XtFree(text);
  return sign;
}

void ZoVerifyNumericCB(Widget caller, XtPointer argument, XtPointer call_data) {
  XmTextVerifyCallbackStruct* change = (XmTextVerifyCallbackStruct*)call_data;
  int i;
  (void)argument;
  /* Deleting is always right: what was there before need not have been a number. */
  if (!change || change->reason != XmCR_MODIFYING_TEXT_VALUE || !change->text ||
      !change->text->ptr || change->text->length == 0) {
    return;
  }
  for (i = 0; i < change->text->length; ++i) {
    const char c = change->text->ptr[i];
    const Boolean leading_sign = IsSign(c) && i == 0 && change->startPos == 0;
    if (!leading_sign && (c < '0' || c > '9')) change->doit = False;
  }
  if (SignStandsAt(caller, change->endPos)) change->doit = False;
}

static void DestroyHelp(Widget dialog, XtPointer closure, XtPointer call_data) {
  (void)closure;
  (void)call_data;
  XtDestroyWidget(XtParent(dialog));
}

void ZoHelpCB(Widget caller, XtPointer argument, XtPointer call_data) {
  static const char title_form[] = "Help: %s";
  static char name[] = "help";
  char title[200];
  Widget shell = caller;
  Widget dialog;
  XmString message;
  XmString dialog_title;
  Arg arguments[2];
  (void)call_data;
  if (!HasArgument(argument)) return;
  while (!XtIsWMShell(shell) && XtParent(shell)) shell = XtParent(shell);
  snprintf(title, sizeof title, title_form, XtName(caller));
  message = XmStringGenerate(argument, NULL, XmCHARSET_TEXT, NULL);
  dialog_title = XmStringGenerate(title, NULL, XmCHARSET_TEXT, NULL);
  XtSetArg(arguments[0], XmNmessageString, message);
  XtSetArg(arguments[1], XmNdialogTitle, dialog_title);
  dialog = XmCreateInformationDialog(shell, name, arguments, COUNT(arguments));
  XmStringFree(message);
  XmStringFree(dialog_title);
  XtUnmanageChild(XmMessageBoxGetChild(dialog, XmDIALOG_CANCEL_BUTTON));
  XtUnmanageChild(XmMessageBoxGetChild(dialog, XmDIALOG_HELP_BUTTON));
  XtAddCallback(dialog, XmNunmapCallback, DestroyHelp, NULL);
  XtManageChild(dialog);
}

/* ---- Names ---- */

typedef struct {
  const char* name;
  XtCallbackProc procedure;
} Row;

static const Row rows[] = {
    {"ZoManageCB", ZoManageCB},
    {"ZoUnmanageCB", ZoUnmanageCB},
    {"ZoSetValuesCB", ZoSetValuesCB},
    {"ZoSetSensitiveCB", ZoSetSensitiveCB},
    {"ZoSetInsensitiveCB", ZoSetInsensitiveCB},
    {"ZoVerifyNumericCB", ZoVerifyNumericCB},
    {"ZoHelpCB", ZoHelpCB},
};

XtCallbackProc ZoProcedure(const char* name) {
  size_t i;
  for (i = 0; i < COUNT(rows); ++i) {
    if (strcmp(rows[i].name, name) == 0) return rows[i].procedure;
  }
  return NULL;
}

void ZoRegister(void) {
  /* The resource manager keeps pointers to the names. */
  static MRMRegisterArg known[COUNT(rows)];
  size_t i;
  for (i = 0; i < COUNT(rows); ++i) {
    known[i].name = (String)(XtArgVal)rows[i].name;
    /* By way of an integer: the language knows no conversion of a function to an object. */
    known[i].value = (XtPointer)(XtArgVal)rows[i].procedure;
  }
  MrmRegisterNames(known, (MrmCount)COUNT(known));
}
