// SPDX-License-Identifier: MIT
#include "uilfix/selection_reason.h"

#include <algorithm>
#include <array>

namespace uilfix {
namespace {

struct Policy {
  std::string_view name;
  std::string_view reason;
};

// Motif's default first.
constexpr std::array<Policy, 4> kPolicies = {{
    {"XmBROWSE_SELECT", "XmNbrowseSelectionCallback"},
    {"XmSINGLE_SELECT", "XmNsingleSelectionCallback"},
    {"XmMULTIPLE_SELECT", "XmNmultipleSelectionCallback"},
    {"XmEXTENDED_SELECT", "XmNextendedSelectionCallback"},
}};

}  // namespace

bool IsSelectionReason(std::string_view reason) {
  return std::any_of(kPolicies.begin(), kPolicies.end(),
                     [&](const Policy& row) { return row.reason == reason; });
}

std::string_view SelectionReason(const Object& list) {
  const std::string* policy = FindArgument(list, "XmNselectionPolicy");
  if (!policy) return kPolicies[0].reason;
  for (const Policy& row : kPolicies) {
    if (row.name == *policy) return row.reason;
  }
  return {};
}

}  // namespace uilfix
