// SPDX-License-Identifier: MIT
#include "osi/fatal.h"
#include "unit/support/session_fixture.h"

using FatalMessagesTest = SessionFixture;

TEST_F(FatalMessagesTest, ErrorEndsTheRunWithItsMessage) {
  const Outcome outcome = Run([] { Error("Parse error"); });
  EXPECT_EQ(outcome.status, -1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "Error: Parse error\n");
}

TEST_F(FatalMessagesTest, SystemErrorEndsTheRun) {
  const Outcome outcome = Run([] { SystemErrorHandler(); });
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "Sorry, fatal error trying to convert GIL file.\n");
}
