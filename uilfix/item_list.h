// SPDX-License-Identifier: MIT
// The items of a list, as the expressions inside "string_table(...)".
#ifndef PANDREL_UILFIX_ITEM_LIST_H
#define PANDREL_UILFIX_ITEM_LIST_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "uilfix/module.h"

namespace uilfix {

// The items of a value that is one string table; nothing for any other value.
std::optional<std::vector<std::string>> SplitItems(std::string_view value);

// The string table of these items, one on a line.
std::string JoinItems(const std::vector<std::string>& items);

// Whether the items of a list are in the order of the GIL file. pandrel writes them in reverse; see
// FixOrder.
bool IsInFileOrder(const Argument& items);

// Notes it, in a comment before the argument.
void NoteFileOrder(Argument& items);

}  // namespace uilfix

#endif
