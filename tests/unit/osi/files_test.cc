// SPDX-License-Identifier: MIT
#include "osi/files.h"
#include "osi/files_testing.h"

#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "osi/memory.h"
#include "unit/osi/owned.h"
#include "unit/osi/surroundings.h"

// What arc4random gives next, in the place of the library's own.
static std::vector<uint32_t> chosen_numbers;

extern "C" uint32_t arc4random() noexcept {
  if (chosen_numbers.empty()) return std::random_device()();
  const uint32_t number = chosen_numbers.back();
  chosen_numbers.pop_back();
  return number;
}

namespace {

TEST(OsiFileExists, IsTrueForAnyKindOfFile) {
  TempDir dir;
  EXPECT_TRUE(OsiFileExists(dir.Write("file", "").c_str()));
  EXPECT_TRUE(OsiFileExists(dir.Path().c_str()));
  EXPECT_TRUE(OsiFileExists("/dev/null"));
  EXPECT_FALSE(OsiFileExists(dir.Path("gone").c_str()));
  EXPECT_FALSE(OsiFileExists(""));
  EXPECT_FALSE(OsiFileExists(nullptr));
}

TEST(OsiFileExists, FollowsLinks) {
  TempDir dir;
  ASSERT_EQ(symlink("gone", dir.Path("link").c_str()), 0);
  EXPECT_FALSE(OsiFileExists(dir.Path("link").c_str()));
}

TEST(OsiDirExists, IsTheSameTest) {
  TempDir dir;
  EXPECT_TRUE(OsiDirExists(dir.Path().c_str()));
  EXPECT_TRUE(OsiDirExists(dir.Write("file", "").c_str()));
  EXPECT_FALSE(OsiDirExists(dir.Path("gone").c_str()));
  EXPECT_FALSE(OsiDirExists(nullptr));
}

class OsiFileAccessTest : public testing::Test {
 protected:
  OsiFileAccessTest() { OsiFileAccessForgetUser(); }
  ~OsiFileAccessTest() override { OsiFileAccessForgetUser(); }

  // "rwo": which of the three questions are answered with yes for a file of these permissions.
  std::string Access(mode_t mode) const { return AccessTo(dir_.Write("file", "", mode)); }

  static std::string AccessTo(const std::string& path) {
    std::string answer;
    if (OsiFileAccess(path.c_str(), kOsiReadable)) answer += 'r';
    if (OsiFileAccess(path.c_str(), kOsiWritable)) answer += 'w';
    if (OsiFileAccess(path.c_str(), kOsiReadOnly)) answer += 'o';
    return answer;
  }

  TempDir dir_;
};

TEST_F(OsiFileAccessTest, LooksAtTheOwnersBitsOfAnOwnFile) {
  EXPECT_EQ(Access(0600), "rw");
  EXPECT_EQ(Access(0400), "ro");
  EXPECT_EQ(Access(0200), "w");
  EXPECT_EQ(Access(0100), "");
  EXPECT_EQ(Access(0066), "");
}

TEST_F(OsiFileAccessTest, IsFalseWithoutAFile) {
  EXPECT_EQ(AccessTo(dir_.Path("gone")), "");
  EXPECT_EQ(AccessTo(""), "");
  EXPECT_FALSE(OsiFileAccess(nullptr, kOsiReadable));
}

TEST_F(OsiFileAccessTest, IsFalseForAnyOtherQuestion) {
  const std::string path = dir_.Write("file", "", 0777);
  EXPECT_FALSE(OsiFileAccess(path.c_str(), 3));
  EXPECT_FALSE(OsiFileAccess(path.c_str(), -1));
}

// Files of other owners take the superuser to make; changed groups stay within a death test's
// child.
class OsiFileAccessAsRootTest : public OsiFileAccessTest {
 protected:
  void SetUp() override {
    if (geteuid() != 0) GTEST_SKIP() << "needs the superuser to give files away";
  }

  std::string Give(gid_t gid, mode_t mode) const {
    const std::string path = dir_.Write("given", "", mode);
    EXPECT_EQ(chown(path.c_str(), kOtherUser, gid), 0);
    return path;
  }

  static constexpr uid_t kOtherUser = 4242;
  static constexpr gid_t kGroup = 7000;
};

TEST_F(OsiFileAccessAsRootTest, LooksAtTheOthersBitsOfAForeignFile) {
  EXPECT_EQ(AccessTo(Give(kGroup, 0004)), "ro");
  EXPECT_EQ(AccessTo(Give(kGroup, 0002)), "w");
  EXPECT_EQ(AccessTo(Give(kGroup, 0770)), "");
}

// Runs in a child: ends with status 0 when the answer for `path` is `expected`.
[[noreturn]] void ExpectAccessWithGroups(const std::vector<gid_t>& groups, const std::string& path,
                                         const std::string& expected) {
  bool is_set = setgroups(groups.size(), groups.data()) == 0;
  std::string answer;
  if (OsiFileAccess(path.c_str(), kOsiReadable)) answer += 'r';
  if (OsiFileAccess(path.c_str(), kOsiWritable)) answer += 'w';
  if (OsiFileAccess(path.c_str(), kOsiReadOnly)) answer += 'o';
  std::fprintf(stderr, "groups %s, access '%s'", is_set ? "set" : "not set", answer.c_str());
  _exit(is_set && answer == expected ? 0 : 1);
}

using OsiFileAccessDeathTest = OsiFileAccessAsRootTest;

TEST_F(OsiFileAccessDeathTest, KnowsTheGroupsOfTheUser) {
  const std::string path = Give(kGroup, 0640);
  EXPECT_EXIT(ExpectAccessWithGroups({kGroup - 1, kGroup}, path, "ro"), testing::ExitedWithCode(0),
              "");
  EXPECT_EXIT(ExpectAccessWithGroups({kGroup - 1}, path, ""), testing::ExitedWithCode(0), "");
}

// The current group counts only where the list cannot be read.
TEST_F(OsiFileAccessDeathTest, LooksAtTheGroupsBitsOfTheListedGroupsOnly) {
  const std::string own = Give(getgid(), 0640);
  EXPECT_EXIT(ExpectAccessWithGroups({kGroup}, own, ""), testing::ExitedWithCode(0), "");
  EXPECT_EXIT(ExpectAccessWithGroups({}, own, ""), testing::ExitedWithCode(0), "");
  EXPECT_EXIT(ExpectAccessWithGroups({getgid()}, own, "ro"), testing::ExitedWithCode(0), "");
  const std::string others = Give(getgid(), 0604);
  EXPECT_EXIT(ExpectAccessWithGroups({getgid()}, others, ""), testing::ExitedWithCode(0), "");
}

TEST_F(OsiFileAccessDeathTest, KnowsSixteenGroupsAtMost) {
  std::vector<gid_t> groups;
  while (groups.size() < 16) groups.push_back(kGroup + static_cast<gid_t>(groups.size()));
  const std::string path = Give(kGroup + 15, 0640);
  EXPECT_EXIT(ExpectAccessWithGroups(groups, path, "ro"), testing::ExitedWithCode(0), "");
  groups.push_back(kGroup + 16);
  EXPECT_EXIT(ExpectAccessWithGroups(groups, path, ""), testing::ExitedWithCode(0), "");
  const std::string own = Give(getgid(), 0640);
  EXPECT_EXIT(ExpectAccessWithGroups(groups, own, "ro"), testing::ExitedWithCode(0), "");
}

TEST_F(OsiFileAccessDeathTest, ReadsTheUserOnce) {
  const std::string path = Give(kGroup, 0640);
  EXPECT_EQ(AccessTo(path), "");
  EXPECT_EXIT(ExpectAccessWithGroups({kGroup}, path, ""), testing::ExitedWithCode(0), "");
  OsiFileAccessForgetUser();
  EXPECT_EXIT(ExpectAccessWithGroups({kGroup}, path, "ro"), testing::ExitedWithCode(0), "");
}

class OsiFileIsNewerTest : public testing::Test {
 protected:
  // A file modified at `seconds` and `nanoseconds`.
  std::string At(const char* name, time_t seconds, long nanoseconds = 0) const {
    const std::string path = dir_.Write(name, "");
    const timespec times[2] = {{seconds, nanoseconds}, {seconds, nanoseconds}};
    EXPECT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
    return path;
  }

  static bool IsNewer(const std::string& a, const std::string& b) {
    return OsiFileIsNewer(a.c_str(), b.c_str());
  }

  TempDir dir_;
};

TEST_F(OsiFileIsNewerTest, ComparesTheTimesOfModification) {
  const std::string old = At("old", 1000);
  const std::string recent = At("recent", 2000);
  const std::string as_old = At("as_old", 1000);
  EXPECT_TRUE(IsNewer(recent, old));
  EXPECT_FALSE(IsNewer(old, recent));
  EXPECT_FALSE(IsNewer(old, as_old));
}

TEST_F(OsiFileIsNewerTest, MindsPartsOfASecond) {
  const std::string early = At("early", 1000, 100);
  const std::string late = At("late", 1000, 200);
  EXPECT_TRUE(IsNewer(late, early));
  EXPECT_FALSE(IsNewer(early, late));
}

TEST_F(OsiFileIsNewerTest, FindsAFileNewerThanOneThatIsNotThere) {
  const std::string file = At("file", 1000);
  EXPECT_TRUE(IsNewer(file, dir_.Path("gone")));
  EXPECT_FALSE(IsNewer(dir_.Path("gone"), file));
  EXPECT_FALSE(IsNewer(dir_.Path("gone"), dir_.Path("gone too")));
}

TEST_F(OsiFileIsNewerTest, IsFalseWithoutAName) {
  const std::string file = At("file", 1000);
  EXPECT_FALSE(OsiFileIsNewer(file.c_str(), ""));
  EXPECT_FALSE(OsiFileIsNewer(file.c_str(), nullptr));
  EXPECT_FALSE(OsiFileIsNewer("", file.c_str()));
  EXPECT_FALSE(OsiFileIsNewer(nullptr, file.c_str()));
}

class OsiFileCopyTest : public testing::Test {
 protected:
  // What a copy of a file of `text` holds.
  std::string CopyOf(const std::string& text) const {
    FILE* from = std::fopen(dir_.Write("from", text).c_str(), "r");
    FILE* to = std::fopen(dir_.Path("to").c_str(), "w");
    EXPECT_TRUE(OsiFileCopy(to, from));
    std::fclose(from);
    std::fclose(to);
    return ReadWhole(dir_.Path("to"));
  }

  TempDir dir_;
};

TEST_F(OsiFileCopyTest, CopiesFilesOfAnySize) {
  for (std::size_t size : {0, 1, 4095, 4096, 4097, 100000}) {
    std::string text;
    while (text.size() < size) text += static_cast<char>(text.size() * 7 % 256);
    EXPECT_EQ(CopyOf(text), text) << size;
  }
}

TEST_F(OsiFileCopyTest, StartsWhereTheStreamStands) {
  FILE* from = std::fopen(dir_.Write("from", "12345").c_str(), "r");
  FILE* to = std::fopen(dir_.Path("to").c_str(), "w");
  std::fgetc(from);
  std::fputc('x', to);
  EXPECT_TRUE(OsiFileCopy(to, from));
  std::fclose(from);
  std::fclose(to);
  EXPECT_EQ(ReadWhole(dir_.Path("to")), "x2345");
}

TEST_F(OsiFileCopyTest, FailsWhenWritingFails) {
  FILE* from = std::fopen(dir_.Write("from", std::string(10000, 'x')).c_str(), "r");
  FILE* to = std::fopen("/dev/full", "w");
  ASSERT_NE(to, nullptr);
  EXPECT_FALSE(OsiFileCopy(to, from));
  std::fclose(from);
  std::fclose(to);
}

TEST_F(OsiFileCopyTest, FailsWhenReadingFails) {
  FILE* from = std::fopen(dir_.Path().c_str(), "r");  // a directory opens, but does not read
  FILE* to = std::fopen(dir_.Path("to").c_str(), "w");
  ASSERT_NE(from, nullptr);
  EXPECT_FALSE(OsiFileCopy(to, from));
  std::fclose(from);
  std::fclose(to);
}

TEST_F(OsiFileCopyTest, FailsWithoutAStream) {
  EXPECT_FALSE(OsiFileCopy(nullptr, stdin));
  EXPECT_FALSE(OsiFileCopy(stdout, nullptr));
}

TEST(OsiFileDelete, RemovesAFile) {
  TempDir dir;
  const std::string path = dir.Write("file", "");
  EXPECT_EQ(OsiFileDelete(path.c_str()), 0);
  EXPECT_FALSE(OsiFileExists(path.c_str()));
  EXPECT_EQ(OsiFileDelete(path.c_str()), -1);
  EXPECT_EQ(OsiFileDelete(nullptr), -1);
}

TEST(OsiDirCreate, MakesADirectoryWithThePermissions) {
  TempDir dir;
  const std::string path = dir.Path("icons");
  EXPECT_EQ(OsiDirCreate(path.c_str(), 0700), path.c_str());
  struct stat status;
  ASSERT_EQ(stat(path.c_str(), &status), 0);
  EXPECT_TRUE(S_ISDIR(status.st_mode));
  EXPECT_EQ(status.st_mode & 0777, 0700U);
}

TEST(OsiDirCreate, IsContentWithWhatIsThere) {
  TempDir dir;
  const std::string path = dir.Mkdir("icons");
  EXPECT_EQ(OsiDirCreate(path.c_str(), 0755), path.c_str());
}

TEST(OsiDirCreate, GivesNullWhenItCannot) {
  TempDir dir;
  EXPECT_EQ(OsiDirCreate(dir.Path("gone/icons").c_str(), 0755), nullptr);
  EXPECT_EQ(OsiDirCreate("", 0755), nullptr);
  EXPECT_EQ(OsiDirCreate(nullptr, 0755), nullptr);
}

TEST(OsiTmpNam, NamesANewFileInTheTemporaryDirectory) {
  char* name = OsiTmpNam();
  char* other = OsiTmpNam();
  ASSERT_NE(name, nullptr);
  ASSERT_NE(other, nullptr);
  EXPECT_STRNE(name, other);
  EXPECT_EQ(std::string(name).rfind(P_tmpdir "/", 0), 0U) << name;
  EXPECT_LT(std::strlen(name), 25U);
  EXPECT_FALSE(OsiFileExists(name));
  name[24] = '\0';  // the block has 25 bytes: the sanitizer would notice fewer
  OsiFree(name);
  OsiFree(other);
}

TEST(OsiTmpNam, PassesOverNamesThatAreTaken) {
  char* taken = OsiTmpNam();
  close(open(taken, O_CREAT | O_EXCL | O_WRONLY, 0600));
  const auto number =
      static_cast<uint32_t>(std::strtoul(taken + std::strlen(taken) - 8, nullptr, 16));
  chosen_numbers = {number + 1, number, number};
  char* name = OsiTmpNam();
  EXPECT_EQ(chosen_numbers.size(), 0U);
  EXPECT_STRNE(name, taken);
  EXPECT_FALSE(OsiFileExists(name));
  unlink(taken);
  OsiFree(name);
  OsiFree(taken);
}

// Runs in a child: ends with status 0 when a name is had without file descriptors.
[[noreturn]] void ExpectTmpNamWithoutFiles() {
  rlimit limit;
  getrlimit(RLIMIT_NOFILE, &limit);
  const rlimit none = {0, limit.rlim_max};
  setrlimit(RLIMIT_NOFILE, &none);
  const char* name = OsiTmpNam();
  setrlimit(RLIMIT_NOFILE, &limit);
  std::exit(name ? 0 : 1);
}

TEST(OsiTmpNamDeathTest, NamesAFileWhereNoneCanBeMade) {
  EXPECT_EXIT(ExpectTmpNamWithoutFiles(), testing::ExitedWithCode(0), "");
}

TEST(OsiTmpFile, IsOpenForWritingAndReading) {
  FILE* file = OsiTmpFile();
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(std::fputs("text", file), 1);
  std::rewind(file);
  char text[10] = "";
  EXPECT_STREQ(std::fgets(text, sizeof text, file), "text");
  std::fclose(file);
}

}  // namespace
