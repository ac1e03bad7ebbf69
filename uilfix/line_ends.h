// SPDX-License-Identifier: MIT
// Carriage returns, which editors of other systems leave before line ends and the compiler refuses.
#ifndef PANDREL_UILFIX_LINE_ENDS_H
#define PANDREL_UILFIX_LINE_ENDS_H

#include <cstddef>
#include <string>
#include <string_view>

namespace uilfix {

// How many carriage returns there are, and the line of the first.
struct CarriageReturns {
  std::size_t count = 0;
  int line = 0;
};

// The text with "\n" for each line end: without the carriage returns before line feeds and, where
// there are no line feeds at all, with a line feed for each.
std::string WithPlainLineEnds(std::string_view text, CarriageReturns* found);

}  // namespace uilfix

#endif
