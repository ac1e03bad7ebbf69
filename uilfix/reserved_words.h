// SPDX-License-Identifier: MIT
// What the UIL compiler accepts as a name.
#ifndef PANDREL_UILFIX_RESERVED_WORDS_H
#define PANDREL_UILFIX_RESERVED_WORDS_H

#include <cstddef>
#include <span>
#include <string_view>

namespace uilfix {

// The longest name, in bytes, that the compiler accepts.
inline constexpr std::size_t kMaxName = 31;

// The words that the compiler refuses as the name of a widget or procedure, sorted bytewise: its
// grammar's words, the units of measure, the character sets and the widget classes.
std::span<const std::string_view> ReservedWords();

bool IsReservedWord(std::string_view name);

// Whether the text is a letter, "_" or "$", then letters, digits, "_" and "$"; of any length, and
// perhaps a reserved word.
bool HasNameForm(std::string_view name);

}  // namespace uilfix

#endif
