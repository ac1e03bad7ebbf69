// SPDX-License-Identifier: MIT
#include "uilfix/line_ends.h"

#include <algorithm>

namespace uilfix {

std::string WithPlainLineEnds(std::string_view text, CarriageReturns* found) {
  std::string plain;
  plain.reserve(text.size());
  const bool line_feeds = text.find('\n') != std::string_view::npos;
  std::size_t begin = 0;
  for (std::size_t at = text.find('\r'); at != std::string_view::npos; at = text.find('\r', at)) {
    std::size_t end = at;
    while (end < text.size() && text[end] == '\r') ++end;
    if (!line_feeds || text.substr(end, 1) == "\n") {
      if (found->count == 0) {
        const auto first = text.begin() + static_cast<std::ptrdiff_t>(at);
        found->line = 1 + static_cast<int>(std::count(text.begin(), first, '\n'));
      }
      found->count += end - at;
      plain += text.substr(begin, at - begin);
      if (!line_feeds) plain.append(end - at, '\n');
      begin = end;
    }
    at = end;
  }
  plain += text.substr(begin);
  return plain;
}

}  // namespace uilfix
