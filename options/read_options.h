// SPDX-License-Identifier: MIT
// The command line of a tool, from a table of its options. The reading itself is getopt_long_only()
// of the C library: options of one letter together or apart from their value, long ones with one or
// two dashes, "--" before operands. Long options may be cut short while it is clear which is meant.
#ifndef PANDREL_OPTIONS_READ_OPTIONS_H
#define PANDREL_OPTIONS_READ_OPTIONS_H

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace options {

enum class Value : unsigned char { kNone, kNeeded, kOptional };

// Takes a value (empty for none); returns what is wrong with it, or the empty text.
using Take = std::function<std::string(const std::string& value)>;

struct Option {
  std::string name;  // without dashes; empty when it has only a letter
  char letter;       // 0 for none
  Value value;
  Take take;
};

// Calls each option's `take` and `take_operand` in the order of the arguments, up to the first
// error, which it returns; the empty text when there is none. A needed value is not empty. Not for
// several threads at once.
std::string ReadOptions(const std::vector<std::string_view>& arguments,
                        const std::vector<Option>& table, const Take& take_operand);

// A row of the table that sets `target` to `value`.
template <typename T>
Option Set(std::string name, char letter, T& target, T value) {
  return {std::move(name), letter, Value::kNone, [&target, value](const std::string&) {
            target = value;
            return std::string();
          }};
}

// Rows that set a flag, or a text.
Option Flag(std::string name, char letter, bool& flag, bool value = true);
Option Text(std::string name, char letter, std::string& text);

}  // namespace options

#endif
