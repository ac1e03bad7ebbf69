// SPDX-License-Identifier: MIT
#include "osi/environment.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "unit/osi/surroundings.h"

#ifdef PANDREL_SANITIZED
#include <sanitizer/lsan_interface.h>
#endif

static constexpr char kName[] = "PANDREL_TEST_VARIABLE";

// OsiSetEnv on purpose never frees what it puts into the environment: no leak to report when the
// variable is set anew.
static int SetEnv(const char* name, const char* value) {
#ifdef PANDREL_SANITIZED
  __lsan::ScopedDisabler no_leak;
#endif
  return OsiSetEnv(name, value);
}

TEST(OsiGetEnv, GivesTheValueOrNull) {
  ScopedEnv variable(kName, "a value");
  EXPECT_STREQ(OsiGetEnv(kName), "a value");
  unsetenv(kName);
  EXPECT_EQ(OsiGetEnv(kName), nullptr);
  EXPECT_EQ(OsiGetEnv(""), nullptr);
  EXPECT_EQ(OsiGetEnv(nullptr), nullptr);
}

TEST(OsiSetEnv, SetsAndReplacesAVariable) {
  ScopedEnv variable(kName, nullptr);
  EXPECT_EQ(SetEnv(kName, "first"), 0);
  EXPECT_STREQ(std::getenv(kName), "first");
  EXPECT_EQ(SetEnv(kName, "second=2"), 0);
  EXPECT_STREQ(std::getenv(kName), "second=2");
  EXPECT_EQ(SetEnv(kName, ""), 0);
  EXPECT_STREQ(std::getenv(kName), "");
}

TEST(OsiSetEnv, KeepsACopyOfItsOwn) {
  ScopedEnv variable(kName, nullptr);
  char value[] = "value";
  EXPECT_EQ(SetEnv(kName, value), 0);
  value[0] = 'V';
  EXPECT_STREQ(std::getenv(kName), "value");
}

TEST(OsiSetEnv, IsSeenByChildren) {
  ScopedEnv variable(kName, nullptr);
  EXPECT_EQ(SetEnv(kName, "inherited"), 0);
  EXPECT_EQ(std::system("test \"$PANDREL_TEST_VARIABLE\" = inherited"), 0);
}

TEST(OsiSetEnv, FailsWithoutANameOrAValue) {
  ScopedEnv variable(kName, "kept");
  EXPECT_EQ(SetEnv(kName, nullptr), -1);
  EXPECT_EQ(SetEnv(nullptr, "value"), -1);
  EXPECT_EQ(SetEnv(nullptr, nullptr), -1);
  EXPECT_STREQ(std::getenv(kName), "kept");
}

TEST(OsiPutEnv, ChangesNothing) {
  ScopedEnv variable(kName, "kept");
  OsiPutEnv();
  EXPECT_STREQ(std::getenv(kName), "kept");
}
