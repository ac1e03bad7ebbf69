// SPDX-License-Identifier: MIT
#include "uilfix/module_files.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

namespace uilfix {
namespace {

TEST(Files, ComeBackAsWritten) {
  const std::string file = ::testing::TempDir() + "/files_test.uil";
  const std::string text("a\0b\r\n\xFF", 6);
  EXPECT_TRUE(WriteFile(file, text));
  EXPECT_EQ(ReadFile(file), text);
  EXPECT_TRUE(WriteFile(file, ""));
  EXPECT_EQ(ReadFile(file), "");
  std::filesystem::remove(file);
}

TEST(Files, FailuresSayWhy) {
  EXPECT_EQ(ReadFile("/no/such/file"), std::nullopt);
  EXPECT_EQ(errno, ENOENT);
  EXPECT_EQ(ReadFile("/"), std::nullopt);
  EXPECT_EQ(errno, EISDIR);
  EXPECT_FALSE(WriteFile("/no/such/file", "x"));
  EXPECT_EQ(errno, ENOENT);
  EXPECT_FALSE(WriteFile("/dev/full", "x"));
  EXPECT_EQ(errno, ENOSPC);
}

}  // namespace
}  // namespace uilfix
