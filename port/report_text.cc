// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "port/model.h"
#include "port/port_report.h"
#include "port/report_rows.h"

namespace port {

static const std::size_t kColumns = 5;
using Line = std::array<std::string, kColumns>;

// Columns up to this width line up; a longer text pushes its line to the right.
static const std::size_t kWidest = 40;

// One line of the table for each action, however long.
static std::string OneLine(std::string text) {
  std::replace(text.begin(), text.end(), '\n', ' ');
  std::replace(text.begin(), text.end(), '\t', ' ');
  return text;
}

static std::size_t Letters(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

static Line MakeLine(const ConnectionRow& row) {
  std::string how = row.call;
  if (!row.reason.empty()) how += (how.empty() ? "" : "; ") + row.reason;
  Line line = {row.from, row.event, row.code.empty() ? row.action : row.action + ": " + row.code,
               row.fate, how};
  for (std::string& text : line) text = OneLine(text);
  return line;
}

std::string ReportText(const ReportInput& input) {
  std::vector<Line> lines = {{"FROM", "EVENT", "ACTION", "BECOMES", "AS"}};
  for (const Connection& connection : input.model->connections) {
    lines.push_back(MakeLine(MakeRow(*input.model, connection)));
  }
  std::array<std::size_t, kColumns> widths = {};
  for (const Line& line : lines) {
    for (std::size_t i = 0; i < kColumns; ++i) {
      widths[i] = std::max(widths[i], std::min(Letters(line[i]), kWidest));
    }
  }
  std::string text;
  for (const Line& line : lines) {
    for (std::size_t i = 0; i < kColumns; ++i) {
      text += line[i];
      if (i + 1 == kColumns) break;
      text.append(widths[i] - std::min(widths[i], Letters(line[i])) + 2, ' ');
    }
    while (text.ends_with(' ')) text.pop_back();
    text += '\n';
  }
  return text + TotalsLine(CountAll(input)) + "\n";
}

}  // namespace port
