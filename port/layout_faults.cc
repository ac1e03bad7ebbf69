// SPDX-License-Identifier: MIT
#include "port/layout_faults.h"

#include <algorithm>
#include <array>
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

static std::string Unescape(std::string_view field) {
  std::string text;
  for (std::size_t i = 0; i < field.size(); ++i) {
    if (field[i] == '\\' && i + 1 < field.size()) {
      ++i;
      text += field[i] == 't' ? '\t' : field[i] == 'n' ? '\n' : field[i];
    } else {
      text += field[i];
    }
  }
  return PageText(text);
}

static std::string Signed(const std::string& number) {
  return number.starts_with('-') ? number : "+" + number;
}

static std::string Size(const std::string& width, const std::string& height) {
  return width.empty() ? "" : width + "x" + height;
}

static LayoutFault ParseLine(std::string_view line) {
  LayoutFault fault;
  for (std::string* field : {&fault.kind, &fault.widget, &fault.object, &fault.window}) {
    *field = Unescape(Take(&line, '\t'));
  }
  std::array<std::string, 4> numbers;  // x, y, width, height
  for (std::string& number : numbers) number = Unescape(Take(&line, '\t'));
  fault.place = Size(numbers[2], numbers[3]);
  if (!fault.place.empty()) fault.place += Signed(numbers[0]) + Signed(numbers[1]);
  fault.other = Unescape(Take(&line, '\t'));
  fault.other_object = Unescape(Take(&line, '\t'));
  const std::string across = Unescape(Take(&line, '\t'));
  fault.pixels = Size(across, Unescape(Take(&line, '\t')));
  return fault;
}

std::vector<LayoutFault> ParseLayoutFaults(std::string_view lines) {
  std::vector<LayoutFault> faults;
  while (!lines.empty()) {
    const std::string_view line = Take(&lines, '\n');
    // The viewer writes each call of a callback as well: a sentence, without a tab.
    if (line.find('\t') != std::string_view::npos) faults.push_back(ParseLine(line));
  }
  return faults;
}

bool IsOfLayout(const LayoutFault& fault) { return fault.kind != "icon" && fault.kind != "color"; }

}  // namespace port
