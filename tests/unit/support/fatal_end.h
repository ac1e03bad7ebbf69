// SPDX-License-Identifier: MIT
// What a test expects of a run that ended early.
#ifndef PANDREL_TESTS_UNIT_SUPPORT_FATAL_END_H
#define PANDREL_TESTS_UNIT_SUPPORT_FATAL_END_H

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "unit/support/session_fixture.h"

// The run ended with status -1 and just the line "Error: <message>" on standard error.
inline void ExpectError(const Outcome& outcome, const std::string& message) {
  EXPECT_EQ(outcome.status, std::optional<int>(-1)) << message;
  EXPECT_EQ(outcome.err, "Error: " + message + "\n");
  EXPECT_EQ(outcome.out, "");
}

// The run came to its end without a word.
inline void ExpectQuiet(const Outcome& outcome) {
  EXPECT_EQ(outcome.status, std::nullopt);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out, "");
}

#endif
