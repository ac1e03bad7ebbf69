// SPDX-License-Identifier: MIT
// Expectations about new strings: compare and release in one go.
#ifndef PANDREL_TESTS_UNIT_OSI_OWNED_H
#define PANDREL_TESTS_UNIT_OSI_OWNED_H

#include <gtest/gtest.h>

#include <string>

#include "osi/memory.h"

// The text of the OsiMalloc string `s`, which is released. A null one fails the test.
inline std::string Take(char* s) {
  if (!s) {
    ADD_FAILURE() << "null where a new string was expected";
    return "";
  }
  std::string text = s;
  OsiFree(s);
  return text;
}

#endif
