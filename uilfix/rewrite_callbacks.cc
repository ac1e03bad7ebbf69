// SPDX-License-Identifier: MIT
// All procedures of a widget are in one list under the reason of the first. So a press of a button
// shows the help text, or does nothing because help came first, and a text field's notification
// runs at every keystroke. This gives help and checking their own reasons; the other procedures
// keep that of the list, or get the one of the widget's class.
#include <array>

#include "uilfix/rewrites.h"
#include "uilfix/selection_reason.h"

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

// What a GIL Notify becomes; that of a list goes by its selection policy. A drawing area is
// missing: its repaint, resize and input procedures cannot be told apart.
constexpr ClassReason kClassReasons[] = {
    {"XmPushButton", "XmNactivateCallback"},
    {"XmText", "XmNactivateCallback"},
    {"XmTextField", "XmNactivateCallback"},
    {"XmScale", "XmNvalueChangedCallback"},
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
  if (object.class_name == "XmList") return SelectionReason(object);
  for (const ClassReason& row : kClassReasons) {
    if (row.class_name == object.class_name) return row.reason;
  }
  return {};
}

// An entry for `reason`, its calls in pandrel's layout: they get lines of their own, as far in as
// the entry they came from.
Callback& EntryFor(std::vector<Callback>& callbacks, std::string_view reason,
                   const Callback& model) {
  for (Callback& callback : callbacks) {
    if (callback.reason == reason) return callback;
  }
  Callback callback;
  callback.lead = model.lead;
  callback.reason = reason;
  callback.line = model.line;
  callbacks.push_back(std::move(callback));
  return callbacks.back();
}

// Whether another entry of the object has this reason; two of them would not both be called.
bool IsTaken(const Object& object, const Callback& list, std::string_view reason) {
  bool taken = false;
  ForEachEntry<Callback>(object, [&](const Callback& callback) {
    taken |= &callback != &list && callback.reason == reason;
  });
  return taken;
}

// The reason that a call should have in a list whose ordinary calls have the reason `ordinary`.
std::string_view ReasonOf(const Call& call, std::string_view ordinary) {
  const std::string_view own = ReasonOfProcedure(call.procedure);
  return own.empty() ? ordinary : own;
}

// Whether all calls can have the reason that they should have, and one does not.
bool MustSplit(const Object& object, const Callback& list, std::string_view ordinary) {
  bool all_right = true;
  for (const Call& call : list.calls) {
    const std::string_view reason = ReasonOf(call, ordinary);
    if (IsTaken(object, list, reason)) return false;
    all_right &= reason == list.reason;
  }
  return !all_right;
}

// One entry per reason, in the order of the calls. Empty when the list can stay as it is.
std::vector<Callback> SplitList(const Object& object, const Callback& list) {
  const std::string_view ordinary = OrdinaryReason(object, list);
  std::vector<Callback> split;
  if (ordinary.empty() || !MustSplit(object, list, ordinary)) return split;
  for (const Call& call : list.calls) {
    auto& calls = EntryFor(split, ReasonOf(call, ordinary), list).calls;
    calls.push_back(call);
    calls.back().layout = nullptr;
  }
  for (Callback& callback : split) callback.list = callback.calls.size() > 1;
  return split;
}

}  // namespace

void FixCallbacks(Module& module, Report& report) {
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment()) return;
    for (std::size_t i = 0; i < object.entries.size(); ++i) {
      const auto* callback = std::get_if<Callback>(&object.entries[i]);
      if (!callback || !callback->list || IsCommented(callback->lead)) continue;
      const std::vector<Callback> split = SplitList(object, *callback);
      if (split.empty()) continue;
      report.Add(callback->line, callback->reason + " of " + object.name + " is now " +
                                     std::to_string(split.size()) + " callbacks");
      object.entries[i] = split.front();
      object.entries.insert(object.entries.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                            split.begin() + 1, split.end());
      i += split.size() - 1;
    }
  });
}

}  // namespace uilfix
