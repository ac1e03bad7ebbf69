// SPDX-License-Identifier: MIT
// The compiler's free layout: blanks, line ends and comments anywhere between the words, several
// definitions behind one keyword. The caller handles what fits no form here.
//
// Does not parse an object that is defined inside the list that controls it, nor a value that holds
// a comment.
#ifndef PANDREL_UILFIX_PARSE_FREE_H
#define PANDREL_UILFIX_PARSE_FREE_H

#include <optional>
#include <string_view>

#include "uilfix/cursor.h"
#include "uilfix/module.h"

namespace uilfix {

// In place of a position: there is none.
inline constexpr std::size_t kNone = std::string_view::npos;

// Which definitions stand behind each other, by the keyword in front of the first.
enum class Definitions { kOther, kObjects, kProcedures };

// The keyword and name of a definition that begins here, on the same line: an Object with its head
// only, or a Declaration. Nothing for anything else; `definitions` follows the keyword.
std::optional<Item> TakeFreeDefinition(Cursor& cursor, Definitions& definitions);

// One piece of a live object: an entry of the section, or as Verbatim the head of a section or a
// closing brace.
std::optional<Entry> TakeFreeEntry(Cursor& cursor, Mark section);

// The rest of the line, or of a comment that ends in a later one.
Verbatim TakeFreeLine(Cursor& cursor);

}  // namespace uilfix

#endif
