// SPDX-License-Identifier: MIT
// Which callback a list calls when the user selects an item.
#ifndef PANDREL_UILFIX_SELECTION_REASON_H
#define PANDREL_UILFIX_SELECTION_REASON_H

#include <string_view>

#include "uilfix/module.h"

namespace uilfix {

// Whether the reason is one of those that belong to a selection policy.
bool IsSelectionReason(std::string_view reason);

// The reason of the list's policy; of Motif's own, which is to browse, when it has none. Empty when
// the policy is not one of the four.
std::string_view SelectionReason(const Object& list);

}  // namespace uilfix

#endif
