// SPDX-License-Identifier: MIT
// What the UIL compiler takes as a name.
#ifndef PANDREL_UILFIX_RESERVED_WORDS_H
#define PANDREL_UILFIX_RESERVED_WORDS_H

#include <cstddef>
#include <span>
#include <string_view>

namespace uilfix {

// The longest name, in bytes, that the compiler takes.
inline constexpr std::size_t kMaxName = 31;

// The words that the compiler refuses as the name of a widget or procedure, sorted bytewise: its
// grammar's words, the units of measure, the character sets and the widget classes.
std::span<const std::string_view> ReservedWords();

bool IsReservedWord(std::string_view name);

// A letter, "_" or "$", then letters, digits, "_" and "$". Length and meaning are not looked at.
bool HasNameForm(std::string_view name);

}  // namespace uilfix

#endif
