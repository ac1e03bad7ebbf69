// SPDX-License-Identifier: MIT
#include "port/port_events.h"

#include <array>
#include <string_view>

#include "gil/tokens.h"
#include "widget/tree.h"

namespace port {
namespace {

struct CallbackRow {
  std::string_view event;
  const char* class_name;
  const char* callback;
};

// Events that a widget has a callback for. A list's selection is not among them: see
// SelectionCallback().
constexpr CallbackRow kCallbacks[] = {
    {"Notify", "XmPushButton", "XmNactivateCallback"},
    {"Notify", "XmToggleButton", "XmNvalueChangedCallback"},
    {"Notify", "XmText", "XmNactivateCallback"},
    {"Notify", "XmTextField", "XmNactivateCallback"},
    {"Notify", "XmScale", "XmNvalueChangedCallback"},
    {"Select", "XmPushButton", "XmNactivateCallback"},
    {"Select", "XmToggleButton", "XmNvalueChangedCallback"},
    {"Select", "XmDrawingArea", "XmNinputCallback"},
    {"Deselect", "XmToggleButton", "XmNvalueChangedCallback"},
    {"Repaint", "XmDrawingArea", "XmNexposeCallback"},
    {"Resize", "XmDrawingArea", "XmNresizeCallback"},
    {"KeyPress", "XmText", "XmNvalueChangedCallback"},
    {"KeyPress", "XmTextField", "XmNvalueChangedCallback"},
    {"DoubleClick", "XmList", "XmNdefaultActionCallback"},
};

// Events that every widget gets from the server, by the names that connections.c knows them under.
constexpr std::string_view kWidgetEvents[] = {"AnyEvent", "Enter",      "Exit",   "Adjust",
                                              "Menu",     "Select",     "Resize", "Repaint",
                                              "KeyPress", "DoubleClick"};

// What only a window inside of a shell can take.
constexpr std::string_view kDrop = "DroppedUpon";

bool IsItem(const Widg* widg) {
  return IsClass(widg, "XmPushButton") || IsClass(widg, "XmToggleButton") ||
         IsClass(widg, "XmCascadeButton");
}

const char* CallbackOf(const Widg* widg, std::string_view event) {
  if (IsClass(widg, "XmList") && (event == "Notify" || event == "Select" || event == "Deselect")) {
    return SelectionCallback(widg);
  }
  for (const CallbackRow& row : kCallbacks) {
    if (row.event == event && IsClass(widg, row.class_name)) return row.callback;
  }
  return nullptr;
}

bool IsWidgetEvent(std::string_view event) {
  for (std::string_view known : kWidgetEvents) {
    if (known == event) return true;
  }
  return false;
}

// Whether the toggle is one of a box of which exactly one is set.
bool IsExclusive(const Session& session, const Widg* toggle) {
  const auto parent = session.parent_of.find(toggle);
  return parent != session.parent_of.end() && parent->second &&
         HasResource(parent->second, "XmNradioBehavior");
}

// A toggle calls its callback whenever it changes, but a choice is made when it becomes set. In a
// box of which one toggle is set, the toggle that becomes unset calls its callback as well.
std::string Condition(const Session& session, const Widg* widg, const Connection& connection,
                      std::string_view event) {
  if (!IsClass(widg, "XmToggleButton")) return "";
  if (event == "Deselect") return "unset";
  if (!connection.from_item.empty() || IsExclusive(session, widg)) return "set";
  return "";
}

// The widgets that the end of the path names.
std::vector<Widg*> Candidates(const Session& session, const Connection& connection) {
  const PortObject& object = session.model.objects[connection.from_object];
  const bool has_items = object.type == MENU || object.type == SETTING;
  if (has_items) return ItemWidgets(session, connection.from_object, connection.from_item);
  std::vector<Widg*> own;
  for (Widg* widg : OwnWidgets(session, connection.from_object)) {
    if (IsInModule(widg)) own.push_back(widg);
  }
  return own;
}

}  // namespace

const char* SelectionCallback(const Widg* list) {
  const std::string_view policy = GetResourceValue(list, "XmNselectionPolicy");
  return policy == "XmMULTIPLE_SELECT" ? "XmNmultipleSelectionCallback"
                                       : "XmNbrowseSelectionCallback";
}

std::vector<Widg*> ItemWidgets(const Session& session, int object, const std::string& label) {
  std::vector<Widg*> items;
  for (Widg* widg : WidgetsOf(session, object)) {
    if (!IsItem(widg) || !IsInModule(widg)) continue;
    const std::string text = GilText(GetResourceValue(widg, "XmNlabelString"));
    const std::string glyph = GilText(GetResourceValue(widg, "XmNoriginalPixmapName"));
    if (label.empty() || text == label || glyph == label) items.push_back(widg);
  }
  return items;
}

std::vector<PlannedSource> FindSources(const Session& session, int index, std::string* why) {
  const Connection& connection = session.model.connections[index];
  const std::string event = connection.when.empty() ? "" : connection.when[0];
  if (connection.from_object < 0) {
    *why = "nothing is named " + PathText(connection.from);
    return {};
  }
  const std::vector<Widg*> candidates = Candidates(session, connection);
  if (candidates.empty()) {
    *why = session.model.objects[connection.from_object].name + " has no widget";
    return {};
  }
  std::vector<PlannedSource> sources;
  for (const Widg* widg : candidates) {
    if (const char* callback = CallbackOf(widg, event)) {
      sources.push_back({index, widg, callback, Condition(session, widg, connection, event)});
    } else if (IsShell(widg) && event == "Done") {
      sources.push_back({index, widg, event, ""});
    } else if (IsWidgetEvent(event) || (event == kDrop && !IsShell(widg))) {
      sources.push_back({index, widg, event, ""});
    }
  }
  if (sources.empty()) *why = "Motif has no counterpart of the event " + event;
  return sources;
}

}  // namespace port
