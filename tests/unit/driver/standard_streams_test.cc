// SPDX-License-Identifier: MIT
#include "driver/standard_streams.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdio>

#include "flags/flags.h"
#include "osi/fatal.h"
#include "unit/support/session_fixture.h"

using StandardStreamsTest = SessionFixture;
using StandardStreamsDeathTest = SessionFixture;

static const char kNotice[] =
    "pandrel: reading a GIL file from the terminal; pandrel -help lists the options\n";

// Puts a terminal in the place of standard input until the end of the scope.
class TerminalAsInput {
 public:
  TerminalAsInput() : former_(dup(STDIN_FILENO)), terminal_(posix_openpt(O_RDWR | O_NOCTTY)) {
    EXPECT_GE(dup2(terminal_, STDIN_FILENO), 0);
  }
  ~TerminalAsInput() {
    dup2(former_, STDIN_FILENO);
    close(former_);
    close(terminal_);
  }
  TerminalAsInput(const TerminalAsInput&) = delete;
  TerminalAsInput& operator=(const TerminalAsInput&) = delete;

 private:
  int former_;
  int terminal_;
};

TEST_F(StandardStreamsTest, OpenStreamsStayAsTheyAre) {
  const Outcome outcome = Run([] {
    HoldStandardStreams();
    std::fputs("out", stdout);
    std::fputs("err", stderr);
  });
  EXPECT_EQ(outcome.out, "out");
  EXPECT_EQ(outcome.err, "err");
}

TEST_F(StandardStreamsDeathTest, ClosedStreamsAreHeldAndCannotBeUsed) {
  EXPECT_EXIT(
      {
        close(STDIN_FILENO);
        close(STDOUT_FILENO);
        close(STDERR_FILENO);
        HoldStandardStreams();
        char c = 0;
        const bool held = open("/dev/null", O_RDONLY) > STDERR_FILENO;
        const bool unusable = read(STDIN_FILENO, &c, 1) < 0 && write(STDOUT_FILENO, &c, 1) < 0 &&
                              write(STDERR_FILENO, &c, 1) < 0;
        _exit(held && unusable ? 7 : 8);
      },
      testing::ExitedWithCode(7), "");
}

// Runs in a child whose standard input is closed and which can open no file.
static void HoldWithoutFiles() {
  OsiSetExitHandler(nullptr);
  close(STDIN_FILENO);
  const rlimit none = {0, 0};
  setrlimit(RLIMIT_NOFILE, &none);
  HoldStandardStreams();
  _exit(7);
}

TEST_F(StandardStreamsDeathTest, RunEndsWhereAClosedStreamCannotBeHeld) {
#ifdef PANDREL_SANITIZED
  GTEST_SKIP() << "the sanitizers look for leaks at the end, which takes open files";
#endif
  EXPECT_EXIT(HoldWithoutFiles(), testing::ExitedWithCode(255), "");
}

TEST_F(StandardStreamsTest, TerminalIsTold) {
  TerminalAsInput terminal;
  const Outcome outcome = Run([] { TellIfInputIsTerminal(kNotice); });
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, kNotice);
}

TEST_F(StandardStreamsTest, TerminalIsNotToldWhenQuiet) {
  TerminalAsInput terminal;
  verbose = 0;
  EXPECT_EQ(Run([] { TellIfInputIsTerminal(kNotice); }).err, "");
}

TEST_F(StandardStreamsTest, FileIsNotTold) {
  EXPECT_EQ(Run([] { TellIfInputIsTerminal(kNotice); }, "()").err, "");
}
