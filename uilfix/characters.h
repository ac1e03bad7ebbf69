// SPDX-License-Identifier: MIT
// Classes of characters, whatever the locale of the one who asks.
#ifndef PANDREL_UILFIX_CHARACTERS_H
#define PANDREL_UILFIX_CHARACTERS_H

#include <cctype>

namespace uilfix {

// White space and line ends.
inline bool IsBlank(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }

}  // namespace uilfix

#endif
