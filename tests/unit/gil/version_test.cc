// SPDX-License-Identifier: MIT
#include "gil/version.h"

#include "unit/support/session_fixture.h"

using VersionTest = SessionFixture;

TEST_F(VersionTest, IsZeroBeforeAnyHeader) { EXPECT_EQ(GetVersion(), 0); }

TEST_F(VersionTest, IsTheLastOneRecordedWithoutAnyWord) {
  const Outcome outcome = Run([] {
    SetVersion(4);
    SetVersion(3);
  });
  EXPECT_EQ(GetVersion(), 3);
  EXPECT_EQ(outcome.status, std::nullopt);
  EXPECT_EQ(outcome.out + outcome.err, "");
}

TEST_F(VersionTest, IsForgottenByReset) {
  SetVersion(3);
  ResetVersion();
  EXPECT_EQ(GetVersion(), 0);
}

TEST_F(VersionTest, TwoIsRefusedInThreeLines) {
  const Outcome outcome = Run([] { SetVersion(2); });
  EXPECT_EQ(outcome.status, -1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err,
            "Error: GIL file is GIL version 2\n"
            "    Import GIL and Pandrel only handle GIL version 3\n"
            "    Read the GIL file into Devguide version 3 and resave to be able to convert it\n");
  EXPECT_EQ(GetVersion(), 2);
}
