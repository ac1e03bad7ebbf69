// SPDX-License-Identifier: MIT
#include "port/folder.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include "uilfix/module_files.h"

using namespace port;
namespace fs = std::filesystem;

class FolderTest : public testing::Test {
 protected:
  FolderTest() {
    std::string name = testing::TempDir() + "port-XXXXXX";
    root_ = mkdtemp(name.data());
    target_ = root_ / "app";
  }
  ~FolderTest() override { fs::remove_all(root_); }

  std::vector<std::string> Run(const std::string& text) {
    Folder folder(target_);
    EXPECT_EQ(folder.Error(), "");
    folder.Add("main.c", text);
    auto notes = folder.Finish();
    EXPECT_EQ(folder.Error(), "");
    return notes;
  }
  std::string Read(const char* file) const {
    return uilfix::ReadFile((target_ / file).string()).value_or("(none)");
  }
  void Write(const char* file, const std::string& text) const {
    uilfix::WriteFile((target_ / file).string(), text);
  }
  std::size_t EntriesOfRoot() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(root_), fs::directory_iterator()));
  }

  fs::path root_;
  fs::path target_;
};

TEST_F(FolderTest, WritesANewFolderWithAMark) {
  EXPECT_TRUE(Run("one").empty());
  EXPECT_EQ(Read("main.c"), "one");
  EXPECT_TRUE(ReadMark(target_).found);
  EXPECT_EQ(EntriesOfRoot(), 1U) << "nothing may be left beside";
}

TEST_F(FolderTest, ReplacesItsOwnFiles) {
  Run("one");
  EXPECT_TRUE(Run("two").empty());
  EXPECT_EQ(Read("main.c"), "two");
}

TEST_F(FolderTest, KeepsWhatTheUserChangedRunAfterRun) {
  Run("one");
  Write("main.c", "mine");
  for (const char* text : {"two", "three"}) {
    const auto notes = Run(text);
    ASSERT_EQ(notes.size(), 1U);
    EXPECT_EQ(notes[0], "main.c was changed and is kept; the new one is main.c.new");
    EXPECT_EQ(Read("main.c"), "mine");
    EXPECT_EQ(Read("main.c.new"), text);
  }
}

TEST_F(FolderTest, KeepsAFileThatItDidNotWrite) {
  Run("one");
  Write("other.c", "mine");
  Folder folder(target_);
  folder.Add("other.c", "ours");
  EXPECT_EQ(folder.Finish().size(), 1U);
  EXPECT_EQ(Read("other.c"), "mine");
  EXPECT_EQ(Read("other.c.new"), "ours");
}

TEST_F(FolderTest, RefusesAFolderThatIsNotItsOwn) {
  fs::create_directories(target_);
  Write("precious", "text");
  EXPECT_NE(Folder(target_).Error(), "");
  EXPECT_EQ(EntriesOfRoot(), 1U);
}

TEST_F(FolderTest, TakesAnEmptyFolder) {
  fs::create_directories(target_);
  Run("one");
  EXPECT_EQ(Read("main.c"), "one");
}

TEST_F(FolderTest, LeavesTheFormerFolderWholeWhenTheRunStops) {
  Run("one");
  {
    Folder folder(target_);
    folder.Add("main.c", "two");
  }
  EXPECT_EQ(Read("main.c"), "one");
  EXPECT_EQ(EntriesOfRoot(), 1U);
}
