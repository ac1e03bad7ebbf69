// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

// After GoogleTest, which uses names that X defines as macros.
#include "uid_names.h"

namespace view {
namespace {

TEST(UidNames, AreTextsThatMayBeNames) {
  const auto file = std::filesystem::path(::testing::TempDir()) / "names.uid";
  const std::string bytes("\x01\x02quit\0 a b\0quit\0x.y\0_ok$1\0unended", 34);
  std::ofstream(file, std::ios::binary) << bytes;
  EXPECT_THAT(ReadUidNames(file), ::testing::ElementsAre("quit", "b", "_ok$1"));
  std::filesystem::remove(file);
  EXPECT_TRUE(ReadUidNames(file).empty());
}

}  // namespace
}  // namespace view
