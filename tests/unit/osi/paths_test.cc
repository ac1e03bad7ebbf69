// SPDX-License-Identifier: MIT
#include "osi/paths.h"

#include <gtest/gtest.h>
#include <limits.h>
#include <unistd.h>

#include <string>

#include "unit/osi/owned.h"
#include "unit/osi/surroundings.h"

namespace {

TEST(OsiMakePath, PutsOneSlashBetween) {
  EXPECT_STREQ(OsiMakePath("/usr/bin", "sed"), "/usr/bin/sed");
  EXPECT_STREQ(OsiMakePath("/usr/bin/", "sed"), "/usr/bin/sed");
  EXPECT_STREQ(OsiMakePath("/", "sed"), "/sed");
  EXPECT_STREQ(OsiMakePath("icons//", "a"), "icons//a");
}

TEST(OsiMakePath, TakesNullAsEmpty) {
  EXPECT_STREQ(OsiMakePath(nullptr, "sed"), "/sed");
  EXPECT_STREQ(OsiMakePath("", "sed"), "/sed");
  EXPECT_STREQ(OsiMakePath("bin", nullptr), "bin/");
  EXPECT_STREQ(OsiMakePath(nullptr, nullptr), "/");
}

TEST(OsiMakePath, TakesItsOwnResult) {
  EXPECT_STREQ(OsiMakePath(OsiMakePath("a", "b"), "c"), "a/b/c");
  EXPECT_STREQ(OsiMakePath("0", OsiMakePath("a", "b")), "0/a/b");
}

TEST(OsiMakePath, HoldsTheLongestPathAndCutsWhatIsLonger) {
  const std::string dir(PATH_MAX, 'd');
  const std::string name(PATH_MAX - 2, 'n');
  const std::string path = dir + "/" + name;
  EXPECT_EQ(OsiMakePath(dir.c_str(), name.c_str()), path);
  EXPECT_EQ(OsiMakePath(dir.c_str(), (name + "more").c_str()), path);
}

TEST(OsiMakePath, ResultStaysWhereItIs) {
  const char* first = OsiMakePath("a", "b");
  OsiMakePath(std::string(3000, 'd').c_str(), "c");
  OsiMakePath("x", "y");
  EXPECT_STREQ(first, "x/y");
}

class OsiFileFindExeInPathTest : public testing::Test {
 protected:
  OsiFileFindExeInPathTest() : a_(dir_.Mkdir("a")), b_(dir_.Mkdir("b")) {}

  // What is found for `name` along `path`; "(none)" for null.
  static std::string Find(const char* name, const std::string& path) {
    ScopedEnv variable("PATH", path.c_str());
    const char* found = OsiFileFindExeInPath(name);
    return found ? found : "(none)";
  }

  TempDir dir_;
  std::string a_;
  std::string b_;
};

TEST_F(OsiFileFindExeInPathTest, FindsNothingWithoutPath) {
  ScopedEnv variable("PATH", nullptr);
  EXPECT_EQ(OsiFileFindExeInPath("sh"), nullptr);
}

TEST_F(OsiFileFindExeInPathTest, TakesTheFirstOfTwo) {
  dir_.Write("a/tool", "", 0755);
  dir_.Write("b/tool", "", 0755);
  EXPECT_EQ(Find("tool", a_ + ":" + b_), a_ + "/tool");
  EXPECT_EQ(Find("tool", b_ + ":" + a_), b_ + "/tool");
}

TEST_F(OsiFileFindExeInPathTest, LooksOnForAFileThatIsExecutable) {
  dir_.Write("a/tool", "", 0644);
  dir_.Write("b/tool", "", 0755);
  EXPECT_EQ(Find("tool", a_ + ":" + b_), b_ + "/tool");
}

TEST_F(OsiFileFindExeInPathTest, LooksAtTheOwnersExecuteBitOnly) {
  dir_.Write("a/tool", "", 0611);
  EXPECT_EQ(Find("tool", a_), "(none)");
  dir_.Write("b/tool", "", 0100);
  EXPECT_EQ(Find("tool", a_ + ":" + b_), b_ + "/tool");
}

TEST_F(OsiFileFindExeInPathTest, PassesOverDirectories) {
  dir_.Mkdir("a/tool");
  EXPECT_EQ(Find("tool", a_), "(none)");
  dir_.Write("b/tool", "", 0755);
  EXPECT_EQ(Find("tool", a_ + ":" + b_), b_ + "/tool");
}

TEST_F(OsiFileFindExeInPathTest, SkipsEmptyFields) {
  dir_.Write("tool", "", 0755);
  ScopedCwd here(dir_.Path());
  EXPECT_EQ(Find("tool", ""), "(none)");
  EXPECT_EQ(Find("tool", ":"), "(none)");
  EXPECT_EQ(Find("tool", "::" + a_ + "::"), "(none)");
  dir_.Write("b/tool", "", 0755);
  EXPECT_EQ(Find("tool", "::" + b_ + ":"), b_ + "/tool");
}

TEST_F(OsiFileFindExeInPathTest, PassesOverDirectoriesThatAreNotThere) {
  dir_.Write("b/tool", "", 0755);
  EXPECT_EQ(Find("tool", dir_.Path("gone") + ":" + b_), b_ + "/tool");
}

TEST_F(OsiFileFindExeInPathTest, JoinsLikeMakePath) {
  dir_.Write("a/tool", "", 0755);
  EXPECT_EQ(Find("tool", a_ + "/"), a_ + "/tool");
  EXPECT_EQ(Find("a/tool", dir_.Path()), a_ + "/tool");
}

TEST_F(OsiFileFindExeInPathTest, FindsNothingForANullOrTooLongName) {
  EXPECT_EQ(Find(nullptr, a_), "(none)");
  EXPECT_EQ(Find(std::string(100000, 'x').c_str(), a_), "(none)");
  EXPECT_EQ(Find("tool", std::string(100000, 'x')), "(none)");
}

TEST_F(OsiFileFindExeInPathTest, LeavesPathAndTheResultOfMakePathAlone) {
  dir_.Write("b/tool", "", 0755);
  const std::string path = a_ + ":" + b_;
  ScopedEnv variable("PATH", path.c_str());
  const char* made = OsiMakePath("kept", "path");
  EXPECT_STREQ(OsiFileFindExeInPath("tool"), (b_ + "/tool").c_str());
  EXPECT_STREQ(made, "kept/path");
  EXPECT_EQ(getenv("PATH"), path);
}

struct Components {
  std::string dir;
  std::string file;
};

Components Split(const char* path) {
  char* dir = nullptr;
  char* file = nullptr;
  OsiFileComponents(path, &dir, &file);
  return {Take(dir), Take(file)};
}

TEST(OsiFileComponents, SplitsAtTheLastSlash) {
  EXPECT_EQ(Split("/usr/bin/sed").dir, "/usr/bin");
  EXPECT_EQ(Split("/usr/bin/sed").file, "sed");
  EXPECT_EQ(Split("icons/").dir, "icons");
  EXPECT_EQ(Split("icons/").file, "");
}

TEST(OsiFileComponents, GivesPartsThatMakePathJoinsAgain) {
  Components parts = Split("/sed");
  EXPECT_EQ(parts.dir, "");
  EXPECT_EQ(parts.file, "sed");
  EXPECT_STREQ(OsiMakePath(parts.dir.c_str(), parts.file.c_str()), "/sed");
}

TEST(OsiFileComponents, GivesTheCurrentDirectoryWithoutASlash) {
  ScopedCwd here("/usr");
  EXPECT_EQ(Split("sed").dir, "/usr");
  EXPECT_EQ(Split("sed").file, "sed");
  EXPECT_EQ(Split(nullptr).dir, "/usr");
  EXPECT_EQ(Split(nullptr).file, "");
}

TEST(OsiFileComponents, CallsACurrentDirectoryWithoutANameByItsDot) {
  TempDir dir;
  const std::string gone = dir.Mkdir("gone");
  ScopedCwd here(gone);
  ASSERT_EQ(rmdir(gone.c_str()), 0);
  EXPECT_EQ(Split("sed").dir, ".");
}

TEST(OsiFileComponents, AllowsMissingOutputs) {
  char* part = nullptr;
  OsiFileComponents("a/b", &part, nullptr);
  EXPECT_EQ(Take(part), "a");
  OsiFileComponents("a/b", nullptr, &part);
  EXPECT_EQ(Take(part), "b");
  OsiFileComponents("a/b", nullptr, nullptr);
}

TEST(OsiFileConstructBinPath, AddsBin) {
  EXPECT_EQ(Take(OsiFileConstructBinPath("/usr")), "/usr/bin/");
  EXPECT_EQ(Take(OsiFileConstructBinPath(nullptr)), "/bin/");
}

}  // namespace
