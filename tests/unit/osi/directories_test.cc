// SPDX-License-Identifier: MIT
#include "osi/directories.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <set>
#include <string>

#include "unit/osi/owned.h"
#include "unit/osi/surroundings.h"

// The names in `directory`, which is closed.
static std::set<std::string> NamesIn(DIR* directory) {
  std::set<std::string> names;
  while (struct dirent* entry = OsiReadDir(directory)) names.insert(entry->d_name);
  EXPECT_EQ(OsiCloseDir(directory), 0);
  return names;
}

TEST(OsiOpenDir, OpensTheDirectoryOfTheJoinedName) {
  TempDir dir;
  dir.Mkdir("icons");
  dir.Write("icons/open.icon", "");
  DIR* directory = OsiOpenDir(dir.Path().c_str(), "icons");
  ASSERT_NE(directory, nullptr);
  EXPECT_EQ(NamesIn(directory), (std::set<std::string>{".", "..", "open.icon"}));
}

TEST(OsiOpenDir, TakesNullAsEmpty) {
  TempDir dir;
  DIR* directory = OsiOpenDir(dir.Path().c_str(), nullptr);
  ASSERT_NE(directory, nullptr);
  EXPECT_EQ(NamesIn(directory), (std::set<std::string>{".", ".."}));
  directory = OsiOpenDir(nullptr, "usr");
  ASSERT_NE(directory, nullptr);
  EXPECT_EQ(NamesIn(directory).count("bin"), 1U);
}

TEST(OsiOpenDir, GivesNullForWhatIsNoDirectory) {
  TempDir dir;
  dir.Write("file", "");
  EXPECT_EQ(OsiOpenDir(dir.Path().c_str(), "file"), nullptr);
  EXPECT_EQ(OsiOpenDir(dir.Path().c_str(), "gone"), nullptr);
}

TEST(OsiReadDir, GivesNullForNull) { EXPECT_EQ(OsiReadDir(nullptr), nullptr); }

TEST(OsiCloseDir, FailsForNull) { EXPECT_EQ(OsiCloseDir(nullptr), -1); }

TEST(OsiGetCwd, GivesANewCopyOfTheName) {
  ScopedCwd here("/usr/bin");
  const std::string name = std::filesystem::current_path();
  char* first = OsiGetCwd();
  char* second = OsiGetCwd();
  EXPECT_NE(first, second);
  EXPECT_EQ(Take(first), name);
  EXPECT_EQ(Take(second), name);
}

TEST(OsiGetCwd, GivesNullWhenTheDirectoryIsGone) {
  TempDir dir;
  const std::string gone = dir.Mkdir("gone");
  ScopedCwd here(gone);
  ASSERT_EQ(rmdir(gone.c_str()), 0);
  EXPECT_EQ(OsiGetCwd(), nullptr);
}

// Goes to a directory below `dir` whose full name has `length` bytes.
static void GoDeep(const TempDir& dir, std::size_t length) {
  std::string path = std::filesystem::canonical(dir.Path());
  while (path.size() < length) {
    std::size_t missing = length - path.size() - 1;
    // Never a name of which one byte would be left to add: it has no room for a "/" and a letter.
    std::size_t part = missing > 201 ? 200 : missing;
    path.append("/").append(part, 'd');
    ASSERT_EQ(mkdir(path.c_str(), 0755), 0) << path;
  }
  ASSERT_EQ(chdir(path.c_str()), 0);
  ASSERT_EQ(std::filesystem::current_path().string().size(), length);
}

TEST(OsiGetCwd, HoldsANameOf1024BytesWithItsNul) {
  TempDir dir;
  ScopedCwd here(dir.Path());
  GoDeep(dir, 1023);
  EXPECT_EQ(Take(OsiGetCwd()).size(), 1023U);
}

TEST(OsiGetCwd, GivesNullForALongerName) {
  TempDir dir;
  ScopedCwd here(dir.Path());
  GoDeep(dir, 1024);
  EXPECT_EQ(OsiGetCwd(), nullptr);
}
