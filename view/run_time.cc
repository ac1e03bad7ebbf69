// SPDX-License-Identifier: MIT
#include "run_time.h"

#include <Xm/MessageB.h>
#include <Xm/Text.h>

#include <cctype>
#include <iostream>

#include "widget_tree.h"

namespace view {
namespace {

constexpr char kProgram[] = "pandrel-view";

const Windows* run_time_windows = nullptr;

// The argument of a call. One that is missing comes as a pointer to a zero word, so it reads as an
// empty text.
std::string ArgumentText(XtPointer tag) { return tag ? static_cast<const char*>(tag) : ""; }

// "(WL)[name]" or "name".
std::string WidgetName(const std::string& argument) {
  if (argument.starts_with("(WL)[") && argument.ends_with("]")) {
    return argument.substr(5, argument.size() - 6);
  }
  return argument;
}

// The widget, or null after a line on standard error.
Widget Find(const std::string& procedure, const std::string& name) {
  Widget widget = run_time_windows ? FindWidget(*run_time_windows, name) : nullptr;
  if (!widget) std::cerr << kProgram << ": " << procedure << ": no widget named " << name << "\n";
  return widget;
}

void SetShown(const std::string& procedure, XtPointer tag, bool shown) {
  Widget widget = Find(procedure, WidgetName(ArgumentText(tag)));
  if (!widget) return;
  if (const Window* window = WindowOf(*run_time_windows, widget)) {
    shown ? ShowWindow(*window) : HideWindow(*window);
  } else {
    shown ? XtManageChild(widget) : XtUnmanageChild(widget);
  }
}

void ManageCB(Widget, XtPointer tag, XtPointer) { SetShown("ZoManageCB", tag, true); }
void UnmanageCB(Widget, XtPointer tag, XtPointer) { SetShown("ZoUnmanageCB", tag, false); }

void SetSensitive(const std::string& procedure, XtPointer tag, bool sensitive) {
  Widget widget = Find(procedure, WidgetName(ArgumentText(tag)));
  if (widget) XtSetSensitive(widget, sensitive ? True : False);
}

void SensitiveCB(Widget, XtPointer tag, XtPointer) { SetSensitive("ZoSetSensitiveCB", tag, true); }
void InsensitiveCB(Widget, XtPointer tag, XtPointer) {
  SetSensitive("ZoSetInsensitiveCB", tag, false);
}

bool IsTrue(const std::string& value) {
  return value == "True" || value == "true" || value == "1" || value == "yes" || value == "on";
}

// "name.resource=value". The name may hold dots. A shell's being mapped is the same as its being
// shown; setting the resource of one that is up would do nothing.
void SetValuesCB(Widget, XtPointer tag, XtPointer) {
  const std::string argument = ArgumentText(tag);
  const std::size_t equals = argument.find('=');
  const std::size_t dot = argument.rfind('.', equals);
  if (equals == std::string::npos || dot == std::string::npos) {
    std::cerr << kProgram << ": ZoSetValuesCB: not of the form name.resource=value: " << argument
              << "\n";
    return;
  }
  Widget widget = Find("ZoSetValuesCB", argument.substr(0, dot));
  if (!widget) return;
  std::string resource = argument.substr(dot + 1, equals - dot - 1);
  if (resource.starts_with("XmN")) resource.erase(0, 3);
  std::string value = argument.substr(equals + 1);
  const Window* window = XtIsShell(widget) ? WindowOf(*run_time_windows, widget) : nullptr;
  if (window && resource == "mappedWhenManaged") {
    IsTrue(value) ? ShowWindow(*window) : HideWindow(*window);
    return;
  }
  XtVaSetValues(widget, XtVaTypedArg, resource.data(), XtRString, value.data(),
                static_cast<int>(value.size() + 1), nullptr);
}

// Lets digits through, and a sign at the start.
void VerifyNumericCB(Widget, XtPointer, XtPointer data) {
  auto* change = static_cast<XmTextVerifyCallbackStruct*>(data);
  if (!change || change->reason != XmCR_MODIFYING_TEXT_VALUE || !change->text) return;
  for (int i = 0; i < change->text->length; ++i) {
    const char c = change->text->ptr[i];
    const bool sign = (c == '-' || c == '+') && i == 0 && change->startPos == 0;
    if (!sign && !std::isdigit(static_cast<unsigned char>(c))) change->doit = False;
  }
}

void DestroyHelp(Widget dialog, XtPointer, XtPointer) { XtDestroyWidget(XtParent(dialog)); }

void HelpCB(Widget widget, XtPointer tag, XtPointer) {
  std::string text = ArgumentText(tag);
  std::string title = std::string("Help: ") + XtName(widget);
  XmString message = XmStringGenerate(text.data(), nullptr, XmCHARSET_TEXT, nullptr);
  XmString dialog_title = XmStringGenerate(title.data(), nullptr, XmCHARSET_TEXT, nullptr);
  Arg arguments[2];
  XtSetArg(arguments[0], XmNmessageString, message);
  XtSetArg(arguments[1], XmNdialogTitle, dialog_title);
  char name[] = "help";
  Widget dialog = XmCreateInformationDialog(ShellOf(widget), name, arguments, 2);
  XmStringFree(message);
  XmStringFree(dialog_title);
  XtUnmanageChild(XtNameToWidget(dialog, "Cancel"));
  XtUnmanageChild(XtNameToWidget(dialog, "Help"));
  XtAddCallback(dialog, XmNunmapCallback, DestroyHelp, nullptr);
  XtManageChild(dialog);
}

struct RunTimeRow {
  const char* name;
  XtCallbackProc procedure;
};

constexpr RunTimeRow kRunTime[] = {
    {"ZoManageCB", ManageCB},
    {"ZoUnmanageCB", UnmanageCB},
    {"ZoSetValuesCB", SetValuesCB},
    {"ZoSetSensitiveCB", SensitiveCB},
    {"ZoSetInsensitiveCB", InsensitiveCB},
    {"ZoVerifyNumericCB", VerifyNumericCB},
    {"ZoHelpCB", HelpCB},
};

}  // namespace

void SetRunTimeWindows(const Windows& windows) { run_time_windows = &windows; }

XtCallbackProc RunTimeProcedure(const std::string& name) {
  for (const RunTimeRow& row : kRunTime) {
    if (row.name == name) return row.procedure;
  }
  return nullptr;
}

}  // namespace view
