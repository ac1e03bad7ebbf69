// SPDX-License-Identifier: MIT
// Names by the thousand.
#ifndef PANDREL_TESTS_UNIT_SUPPORT_NUMBERED_H
#define PANDREL_TESTS_UNIT_SUPPORT_NUMBERED_H

#include <string>

// A letter, a number and an "x", so that the number is not one that the table of names appended.
inline std::string Numbered(const char* letter, int number) {
  return std::string(letter).append(std::to_string(number)).append("x");
}

#endif
