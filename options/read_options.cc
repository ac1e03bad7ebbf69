// SPDX-License-Identifier: MIT
#include "options/read_options.h"

#include <getopt.h>

namespace options {
namespace {

// What getopt_long_only returns for an operand, and for the first row of the table.
constexpr int kOperand = 1;
constexpr int kFirstRow = 256;

int ArgumentKind(Value value) {
  switch (value) {
    case Value::kNone:
      return no_argument;
    case Value::kNeeded:
      return required_argument;
    case Value::kOptional:
      break;
  }
  return optional_argument;
}

// Operands come as they stand, and a missing value is told from an unknown option.
std::string Letters(const std::vector<Option>& table) {
  std::string letters = "-:";
  for (const Option& option : table) {
    if (option.letter == 0) continue;
    letters += option.letter;
    if (option.value != Value::kNone) letters += ':';
  }
  return letters;
}

std::vector<::option> LongOptions(const std::vector<Option>& table) {
  std::vector<::option> rows;
  int code = kFirstRow;
  for (const Option& option : table) {
    if (!option.name.empty()) {
      rows.push_back({option.name.c_str(), ArgumentKind(option.value), nullptr, code});
    }
    ++code;
  }
  rows.push_back({nullptr, 0, nullptr, 0});
  return rows;
}

const Option& RowOf(const std::vector<Option>& table, int code) {
  if (code >= kFirstRow) return table[code - kFirstRow];
  std::size_t row = 0;
  while (table[row].letter != code) ++row;
  return table[row];
}

}  // namespace

std::string ReadOptions(const std::vector<std::string_view>& arguments,
                        const std::vector<Option>& table, const Take& take_operand) {
  std::vector<std::string> texts(arguments.begin(), arguments.end());
  std::vector<char*> argv = {const_cast<char*>("")};
  for (std::string& text : texts) argv.push_back(text.data());
  argv.push_back(nullptr);
  const int argc = static_cast<int>(argv.size()) - 1;
  const std::string letters = Letters(table);
  const std::vector<::option> rows = LongOptions(table);
  opterr = 0;
  optind = 0;  // starts over
  int at = 1;
  std::string error;
  for (;;) {
    const int code = getopt_long_only(argc, argv.data(), letters.c_str(), rows.data(), nullptr);
    if (code == -1) break;
    const std::string written = argv[at];
    at = optind;
    if (code == '?') return "unknown option: " + written;
    if (code == ':') return written + " needs a value";
    if (code == kOperand) {
      error = take_operand(optarg);
    } else {
      const Option& option = RowOf(table, code);
      const std::string value = optarg ? optarg : "";
      if (option.value == Value::kNeeded && value.empty()) return written + " needs a value";
      error = option.take(value);
    }
    if (!error.empty()) return error;
  }
  for (int i = optind; i < argc && error.empty(); ++i) error = take_operand(argv[i]);
  return error;
}

Option Flag(std::string name, char letter, bool& flag, bool value) {
  return Set(std::move(name), letter, flag, value);
}

Option Text(std::string name, char letter, std::string& text) {
  return {std::move(name), letter, Value::kNeeded, [&text](const std::string& value) {
            text = value;
            return std::string();
          }};
}

}  // namespace options
