// SPDX-License-Identifier: MIT
// Which callback a list calls when the user selects an item.
#ifndef PANDREL_UILFIX_SELECTION_REASON_H
#define PANDREL_UILFIX_SELECTION_REASON_H

#include <string_view>

#include "uilfix/module.h"

namespace uilfix {

// Whether the reason is one of those that belong to a selection policy.
bool IsSelectionReason(std::string_view reason);

// The reason of the list's policy; without one, that of Motif's default, which is to browse. Empty
// when the policy is not one of the four.
std::string_view SelectionReason(const Object& list);

}  // namespace uilfix

#endif
