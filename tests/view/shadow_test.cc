// SPDX-License-Identifier: MIT
#include "writable_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace view {
namespace {

namespace fs = std::filesystem;

class Shadow : public ::testing::Test {
 protected:
  Shadow() : folder_(fs::path(::testing::TempDir()) / "shadow_test") {
    fs::remove_all(folder_);
    fs::create_directories(User() / "icons" / "deep");
    std::ofstream(User() / "a.G") << "gil";
    std::ofstream(User() / "icons" / "i.icon") << "icon";
    std::ofstream(User() / "icons" / "deep" / "d.icon") << "icon";
  }
  ~Shadow() override { fs::remove_all(folder_); }

  fs::path User() const { return folder_ / "user"; }
  fs::path Copy() const { return folder_ / "shadow"; }

  fs::path folder_;
};

TEST_F(Shadow, CanBeReadAndWritten) {
  MakeShadow(User(), Copy(), 1);
  EXPECT_TRUE(fs::is_regular_file(Copy() / "a.G"));
  EXPECT_TRUE(fs::is_regular_file(Copy() / "icons" / "deep" / "d.icon"));
  std::ofstream(Copy() / "icons" / "i.xbm") << "bits";
  EXPECT_FALSE(fs::exists(User() / "icons" / "i.xbm"));
}

TEST_F(Shadow, IsPutInPlaceOfTheUsersFolder) {
  MakeShadow(User(), Copy(), 1);
  PutShadow(User() / "icons", Copy(), "icons/deep");
  EXPECT_TRUE(fs::is_regular_file(Copy() / "icons" / "deep" / "i.icon"));
  std::ofstream(Copy() / "icons" / "deep" / "i.xbm") << "bits";
  EXPECT_FALSE(fs::exists(User() / "icons" / "deep" / "i.xbm"));
  EXPECT_TRUE(fs::exists(User() / "icons" / "deep" / "d.icon"));
}

TEST_F(Shadow, IsPutBelowTheUsersFolder) {
  MakeShadow(User(), Copy(), 1);
  PutShadow(User(), Copy(), "icons/deep/new");
  EXPECT_TRUE(fs::is_regular_file(Copy() / "icons" / "deep" / "new" / "a.G"));
  EXPECT_TRUE(fs::is_regular_file(Copy() / "icons" / "deep" / "d.icon"));
  EXPECT_FALSE(fs::exists(User() / "icons" / "deep" / "new"));
}

}  // namespace
}  // namespace view
