// SPDX-License-Identifier: MIT
// A list calls one of four callbacks, by its selection policy, and a GIL list's Notify always
// becomes the one for single selection. Under any other policy that is never called.
#include "uilfix/rewrites.h"
#include "uilfix/selection_reason.h"

namespace uilfix {

void FixReasons(Module& module, Report& report) {
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment()) return;
    if (object.class_name != "XmList" && object.class_name != "XmScrolledList") return;
    Callback* selection = nullptr;
    int count = 0;
    ForEachEntry<Callback>(object, [&](Callback& callback) {
      if (IsCommented(callback.lead) || !IsSelectionReason(callback.reason)) return;
      selection = &callback;
      ++count;
    });
    // With callbacks for several policies the program changes the policy while it runs.
    if (count != 1) return;
    const std::string_view reason = SelectionReason(object);
    if (reason.empty() || selection->reason == reason) return;
    report.Add(selection->line, selection->reason + " of " + object.name + " is now " +
                                    std::string(reason) + ", as its selection policy asks");
    selection->reason = reason;
  });
}

}  // namespace uilfix
