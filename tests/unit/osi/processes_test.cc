// SPDX-License-Identifier: MIT
#include "osi/processes.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cstdio>
#include <string>

#include "unit/osi/children.h"
#include "unit/osi/surroundings.h"

namespace {

TEST(OsiSystem, RunsACommandAndGivesItsWaitStatus) {
  int status = OsiSystem("exit 7");
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 7);
}

TEST(OsiSystem, TakesNullAsTheEmptyCommand) {
  EXPECT_EQ(OsiSystem(nullptr), 0);
  EXPECT_EQ(OsiSystem(""), 0);
}

class OsiProcExecTest : public testing::Test {
 protected:
  // The name and the arguments with which a script started by OsiProcExec sees itself, one a line.
  std::string Arguments(const char* arguments) {
    const std::string out = dir_.Path("out");
    const std::string script =
        dir_.Write("script", "#!/bin/sh\nprintf '%s\\n' \"$0\" \"$@\" > '" + out + "'\n", 0755);
    pid_t pid = OsiProcExec(script.c_str(), arguments);
    if (pid <= 0) return "(not started)";
    EXPECT_EQ(ExitStatusOf(pid), 0);
    return ReadWhole(out);
  }

  TempDir dir_;
};

TEST_F(OsiProcExecTest, GivesThePathAndTheWords) {
  EXPECT_EQ(Arguments("one two"), dir_.Path("script") + "\none\ntwo\n");
}

TEST_F(OsiProcExecTest, SplitsAtBlanksOnly) {
  EXPECT_EQ(Arguments("  one   two\tthree 'four five' "),
            dir_.Path("script") + "\none\ntwo\tthree\n'four\nfive'\n");
}

TEST_F(OsiProcExecTest, AllowsNoArguments) {
  EXPECT_EQ(Arguments(nullptr), dir_.Path("script") + "\n");
  EXPECT_EQ(Arguments(""), dir_.Path("script") + "\n");
  EXPECT_EQ(Arguments("  "), dir_.Path("script") + "\n");
}

TEST_F(OsiProcExecTest, PassesTwentyFourWordsAtMost) {
  std::string words;
  std::string expected = dir_.Path("script") + "\n";
  for (int i = 1; i <= 30; ++i) {
    const std::string word = std::to_string(i);
    words.append(word).append(" ");
    if (i <= 24) expected.append(word).append("\n");
  }
  EXPECT_EQ(Arguments(words.c_str()), expected);
}

TEST_F(OsiProcExecTest, DoesNotWait) {
  const std::string script = dir_.Write("sleeper", "#!/bin/sh\nexec sleep 1000\n", 0755);
  pid_t pid = OsiProcExec(script.c_str(), nullptr);
  ASSERT_GT(pid, 0);
  EXPECT_EQ(OsiProcKill(pid, 0), 0);
  EXPECT_EQ(OsiProcKill(pid, SIGTERM), 0);
  int status = WaitFor(pid);
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGTERM);
}

TEST_F(OsiProcExecTest, ReportsAFileThatIsNotThere) {
  const std::string gone = dir_.Path("gone");
  testing::internal::CaptureStderr();
  EXPECT_EQ(OsiProcExec(gone.c_str(), "one"), 0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "OsiProcExec: File " + gone + " not found\n");
}

TEST_F(OsiProcExecTest, ReportsAMissingPath) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(OsiProcExec(nullptr, nullptr), 0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "OsiProcExec: File  not found\n");
}

TEST_F(OsiProcExecTest, EndsTheChildWhenTheFileCannotBeExecuted) {
  const std::string file = dir_.Write("data", "no program", 0644);
  testing::internal::CaptureStderr();
  pid_t pid = OsiProcExec(file.c_str(), "one");
  ASSERT_GT(pid, 0);
  EXPECT_EQ(ExitStatusOf(pid), 127);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "OsiProcExec: Failed to exec " + file + "\n");
}

TEST_F(OsiProcExecTest, WritesBufferedOutputOnceWhenTheChildFails) {
  const std::string file = dir_.Write("data", "no program", 0644);
  const std::string out = dir_.Path("out");
  FILE* stream = std::fopen(out.c_str(), "w");
  ASSERT_NE(stream, nullptr);
  std::fputs("once", stream);
  testing::internal::CaptureStderr();
  pid_t pid = OsiProcExec(file.c_str(), nullptr);
  EXPECT_EQ(ExitStatusOf(pid), 127);
  testing::internal::GetCapturedStderr();
  std::fclose(stream);
  EXPECT_EQ(ReadWhole(out), "once");
}

// Runs in a child: ends with status 0 when a process that cannot be made is reported as -1. The
// superuser is not held to the limit, so the child becomes nobody first.
[[noreturn]] void ExpectNoFork() {
  const rlimit none = {0, 0};
  bool is_limited = setrlimit(RLIMIT_NPROC, &none) == 0 && (getuid() != 0 || setuid(65534) == 0);
  _exit(is_limited && OsiProcExec("/bin/true", "one") == -1 ? 0 : 1);
}

TEST(OsiProcExecDeathTest, GivesMinusOneWhenNoProcessCanBeMade) {
  EXPECT_EXIT(ExpectNoFork(), testing::ExitedWithCode(0), "");
}

TEST(OsiProcKill, FailsForAProcessThatIsNotThere) {
  pid_t pid = fork();
  if (pid == 0) _exit(0);
  ASSERT_GT(pid, 0);
  WaitFor(pid);
  EXPECT_EQ(OsiProcKill(pid, 0), -1);
}

}  // namespace
