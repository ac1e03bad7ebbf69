// SPDX-License-Identifier: MIT
// The compiler's integers have 32 bits, without the smallest one.
#include <algorithm>
#include <cctype>

#include "uilfix/rewrites.h"

namespace uilfix {
namespace {

constexpr std::string_view kLargest = "2147483647";
constexpr std::string_view kSmallest = "-2147483647";

// The digits of a value that is one integer; empty for any other value.
std::string_view Digits(std::string_view value) {
  if (value.starts_with('-')) value.remove_prefix(1);
  const bool all = std::all_of(value.begin(), value.end(), [](char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
  });
  if (!all) return {};
  while (value.starts_with('0')) value.remove_prefix(1);
  return value;
}

}  // namespace

void FixNumbers(Module& module, Report& report) {
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment()) return;
    ForEachEntry<Argument>(object, [&](Argument& argument) {
      const std::string_view digits = Digits(argument.value);
      const bool fits = digits.size() < kLargest.size() ||
                        (digits.size() == kLargest.size() && digits <= kLargest);
      if (fits) return;
      const std::string old = argument.value;
      argument.value = old[0] == '-' ? kSmallest : kLargest;
      report.Add(argument.line, argument.resource + " of " + object.name + ": " + old + " is now " +
                                    argument.value);
    });
  });
}

}  // namespace uilfix
