// SPDX-License-Identifier: MIT
// All procedures of a widget stand in one list under the first one's reason. So the help text pops
// up when the button is pressed, or pressing the button does nothing because help came first; and
// a text field's notification runs at every keystroke. Help and checking have their own reasons;
// the rest keep the list's, or get the one that the widget's class has.
#include <array>

#include "uilfix/rewrites.h"

namespace uilfix {
namespace {

struct OwnReason {
  std::string_view procedure;
  std::string_view reason;
};

constexpr std::array<OwnReason, 2> kOwnReasons = {{
    {"ZoHelpCB", "XmNhelpCallback"},
    {"ZoVerifyNumericCB", "XmNmodifyVerifyCallback"},
}};

struct ClassReason {
  std::string_view class_name;
  std::string_view reason;
};

// What a GIL Notify becomes. A drawing area is missing: its repaint, resize and input procedures
// cannot be told apart.
constexpr ClassReason kClassReasons[] = {
    {"XmPushButton", "XmNactivateCallback"},  {"XmText", "XmNactivateCallback"},
    {"XmTextField", "XmNactivateCallback"},   {"XmScale", "XmNvalueChangedCallback"},
    {"XmList", "XmNsingleSelectionCallback"},
};

// The reason that belongs to a procedure of the run-time library; empty for any other procedure.
std::string_view ReasonOfProcedure(std::string_view procedure) {
  for (const OwnReason& row : kOwnReasons) {
    if (row.procedure == procedure) return row.reason;
  }
  return {};
}

bool IsOwnReason(std::string_view reason) {
  for (const OwnReason& row : kOwnReasons) {
    if (row.reason == reason) return true;
  }
  return false;
}

// The reason for the ordinary procedures of a list; empty when it cannot be known.
std::string_view OrdinaryReason(const Object& object, const Callback& callback) {
  if (!IsOwnReason(callback.reason)) return callback.reason;
  for (const ClassReason& row : kClassReasons) {
    if (row.class_name == object.class_name) return row.reason;
  }
  return {};
}

Callback& EntryFor(std::vector<Callback>& callbacks, std::string_view reason,
                   const Callback& model) {
  for (Callback& callback : callbacks) {
    if (callback.reason == reason) return callback;
  }
  Callback callback = model;
  callback.reason = reason;
  callback.calls.clear();
  callbacks.push_back(callback);
  return callbacks.back();
}

// One entry per reason, in the order of the calls. Empty when the list can stay as it is.
std::vector<Callback> SplitList(const Object& object, const Callback& list) {
  const std::string_view ordinary = OrdinaryReason(object, list);
  if (ordinary.empty()) return {};
  std::vector<Callback> split;
  for (const Call& call : list.calls) {
    const std::string_view own = ReasonOfProcedure(call.procedure);
    EntryFor(split, own.empty() ? ordinary : own, list).calls.push_back(call);
  }
  if (split.size() == 1 && split[0].reason == list.reason) return {};
  for (Callback& callback : split) callback.list = callback.calls.size() > 1;
  return split;
}

}  // namespace

void FixCallbacks(Module& module, Report& report) {
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment()) return;
    std::vector<Entry> entries;
    for (Entry& entry : object.entries) {
      const auto* callback = std::get_if<Callback>(&entry);
      const auto split =
          callback && callback->list ? SplitList(object, *callback) : std::vector<Callback>();
      if (split.empty()) {
        entries.push_back(std::move(entry));
        continue;
      }
      report.Add(callback->line, callback->reason + " of " + object.name + " is now " +
                                     std::to_string(split.size()) + " callbacks");
      entries.insert(entries.end(), split.begin(), split.end());
    }
    object.entries = std::move(entries);
  });
}

}  // namespace uilfix
