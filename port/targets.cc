// SPDX-License-Identifier: MIT
#include "port/targets.h"

#include <string_view>

#include "gil/tokens.h"
#include "port/port_events.h"
#include "widget/tree.h"

namespace port {
namespace {

enum class Subject : uint8_t {
  kShown,      // a dialog's or window's procedure, else mappedWhenManaged
  kSensitive,  // the procedure alone
  kText,       // a widget and a text
};

struct ActionRow {
  std::string_view action;
  Subject subject;
  const char* procedure;
  const char* setting;  // kShown: of what is no window
};

constexpr ActionRow kActions[] = {
    {"Show", Subject::kShown, "ZoManageCB", ".mappedWhenManaged=True"},
    {"Hide", Subject::kShown, "ZoUnmanageCB", ".mappedWhenManaged=False"},
    {"Enable", Subject::kSensitive, "ZoSetSensitiveCB", ""},
    {"Disable", Subject::kSensitive, "ZoSetInsensitiveCB", ""},
    {"SetLabel", Subject::kText, "SetLabel", ""},
    {"SetValue", Subject::kText, "SetValue", ""},
};

const ActionRow* FindAction(std::string_view action) {
  for (const ActionRow& row : kActions) {
    if (row.action == action) return &row;
  }
  return nullptr;
}

// Actions that put a text into a window's footer.
bool IsFooterAction(std::string_view action) {
  return action.find("Footer") != std::string_view::npos;
}

bool IsWindowType(int32_t type) { return type == BASE_WINDOW || type == POPUP_WINDOW; }

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (char c : text) {
    if (c == '\n') {
      quoted += "\\n";
      continue;
    }
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + "\"";
}

// The label that stands beside a control or over a list, else the widget itself.
const Widg* LabelWidget(const Session& session, int object, const Widg* widg) {
  for (const Widg* companion : WidgetsOf(session, object)) {
    if (!IsClass(companion, "XmLabel")) continue;
    if (companion != widg && IsInModule(companion)) return companion;
  }
  return widg;
}

// The text in a pane that scrolls, else the widget itself.
const Widg* ValueWidget(const Session& session, int object, const Widg* widg) {
  for (const Widg* companion : WidgetsOf(session, object)) {
    if (IsClass(companion, "XmText") && IsInModule(companion)) return companion;
  }
  return widg;
}

}  // namespace

std::string Call::Text() const {
  if (!widget.empty()) return procedure + "(" + Quoted(widget) + ", " + Quoted(text) + ")";
  return procedure + "(" + Quoted(argument) + ")";
}

const Widg* TargetWidget(const Session& session, const Connection& connection) {
  if (connection.to_object < 0) return nullptr;
  if (!connection.to_item.empty()) {
    const auto items = ItemWidgets(session, connection.to_object, connection.to_item);
    return items.empty() ? nullptr : items[0];
  }
  for (const Widg* widg : OwnWidgets(session, connection.to_object)) {
    if (!IsInModule(widg)) continue;
    return IsClass(widg, "XmDialogShell") ? widg->child : widg;
  }
  // A stack setting has no widget of its own.
  for (const Widg* widg : WidgetsOf(session, connection.to_object)) {
    if (IsClass(widg, "XmOptionMenu") && IsInModule(widg)) return widg;
  }
  return nullptr;
}

std::string WhyNotPredefined(const Session& session, const Connection& connection) {
  if (connection.function_type != "user_defined") {
    return "nobody knows the function type " + connection.function_type;
  }
  const ActionRow* row = FindAction(connection.action);
  if (!row && IsFooterAction(connection.action)) return "windows of Motif have no footer";
  if (!row) return "nobody knows the action " + connection.action;
  if (connection.to.empty()) return "the action has no target";
  if (connection.to_object < 0) return "nothing is named " + PathText(connection.to);
  if (!TargetWidget(session, connection)) {
    if (!connection.to_item.empty()) return "nothing is named " + PathText(connection.to);
    return session.model.objects[connection.to_object].name + " has no widget";
  }
  return "";
}

Call PredefinedCall(const Session& session, const Connection& connection) {
  const ActionRow* row = FindAction(connection.action);
  const Widg* target = TargetWidget(session, connection);
  if (!row || !target) return {};
  const std::string name = NameOf(session, target);
  const PortObject& object = session.model.objects[connection.to_object];
  switch (row->subject) {
    case Subject::kShown:
      if (IsWindowType(object.type)) return {row->procedure, name, "", ""};
      return {"ZoSetValuesCB", name + row->setting, "", ""};
    case Subject::kSensitive:
      return {row->procedure, name, "", ""};
    case Subject::kText:
      break;
  }
  const bool whole = connection.to_item.empty();
  const bool label = row->action == "SetLabel" && whole;
  const Widg* subject = target;
  if (label) subject = LabelWidget(session, connection.to_object, target);
  if (whole && !label) subject = ValueWidget(session, connection.to_object, target);
  const std::string text = connection.arguments.empty() ? "" : connection.arguments[0];
  // A dialog's title is its shell's.
  if (label && IsWindowType(object.type)) subject = OwnWidgets(session, connection.to_object)[0];
  return {row->procedure, "", NameOf(session, subject), text};
}

}  // namespace port
