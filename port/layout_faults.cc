// SPDX-License-Identifier: MIT
#include "port/layout_faults.h"

#include <algorithm>
#include <cstddef>

#include "port/page_text.h"

namespace port {

// Cuts the text up to the first `separator`, or all of it, off the front of `rest`.
static std::string_view Take(std::string_view* rest, char separator) {
  const std::size_t end = std::min(rest->find(separator), rest->size());
  const std::string_view front = rest->substr(0, end);
  rest->remove_prefix(std::min(end + 1, rest->size()));
  return front;
}

static LayoutFault ParseLine(std::string_view line) {
  LayoutFault fault;
  if (line.find('\t') == std::string_view::npos) {
    fault.kind = "other";
    fault.detail = PageText(line);
    return fault;
  }
  for (std::string* field : {&fault.kind, &fault.window, &fault.widget, &fault.other}) {
    *field = PageText(Take(&line, '\t'));
  }
  fault.detail = PageText(line);
  return fault;
}

std::vector<LayoutFault> ParseLayoutFaults(std::string_view lines) {
  std::vector<LayoutFault> faults;
  while (!lines.empty()) {
    const std::string_view line = Take(&lines, '\n');
    if (!line.empty()) faults.push_back(ParseLine(line));
  }
  return faults;
}

}  // namespace port
