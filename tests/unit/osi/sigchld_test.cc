// SPDX-License-Identifier: MIT
#include "osi/sigchld.h"
#include "osi/sigchld_testing.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "unit/osi/children.h"

namespace {

// What the handlers saw, in a form that a signal handler may write.
volatile sig_atomic_t call_count;
volatile sig_atomic_t calls[8];
volatile sig_atomic_t last_signal;
volatile sig_atomic_t was_blocked;

void Note(char name, int signal) {
  if (call_count < 8) calls[call_count] = name;
  call_count = call_count + 1;
  last_signal = signal;
}

void HandlerA(int signal) { Note('a', signal); }
void HandlerB(int signal) { Note('b', signal); }

void RemoveItself(int signal) {
  Note('r', signal);
  OsiSigchld(RemoveItself, false);
}

void LookAtMask(int signal) {
  sigset_t mask;
  sigprocmask(SIG_SETMASK, nullptr, &mask);
  was_blocked = sigismember(&mask, SIGCHLD);
  Note('m', signal);
}

void SpoilErrno(int signal) {
  Note('e', signal);
  errno = EDOM;
}

class OsiSigchldTest : public testing::Test {
 protected:
  OsiSigchldTest() {
    OsiSigchldReset();
    Forget();
  }
  ~OsiSigchldTest() override { OsiSigchldReset(); }

  static void Forget() {
    call_count = 0;
    last_signal = 0;
    was_blocked = 0;
  }

  // The names of the handlers that one signal calls, in their order.
  static std::string Called() {
    Forget();
    raise(SIGCHLD);  // returns when the handlers are done
    std::string names;
    for (int i = 0; i < call_count && i < 8; ++i) names += static_cast<char>(calls[i]);
    return names;
  }

  static bool IsDefaultAction() {
    struct sigaction action;
    sigaction(SIGCHLD, nullptr, &action);
    return action.sa_handler == SIG_DFL;
  }
};

TEST_F(OsiSigchldTest, CallsTheHandlerWhenAChildEnds) {
  EXPECT_TRUE(OsiSigchld(HandlerA, true));
  pid_t pid = fork();
  if (pid == 0) _exit(5);
  ASSERT_GT(pid, 0);
  EXPECT_EQ(ExitStatusOf(pid), 5);
  EXPECT_TRUE(WaitUntil([] { return call_count > 0; }));
  EXPECT_EQ(call_count, 1);
  EXPECT_EQ(last_signal, SIGCHLD);
}

TEST_F(OsiSigchldTest, LetsAReadThatItInterruptedGoOn) {
  OsiSigchld(HandlerA, true);
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const pid_t pid = fork();
  if (pid == 0) {
    usleep(50000);  // the parent waits in its read by now
    kill(getppid(), SIGCHLD);
    usleep(50000);
    _exit(write(ends[1], "x", 1) == 1 ? 0 : 1);
  }
  ASSERT_GT(pid, 0);
  char byte = 0;
  EXPECT_EQ(read(ends[0], &byte, 1), 1);
  EXPECT_EQ(byte, 'x');
  EXPECT_EQ(ExitStatusOf(pid), 0);
  close(ends[0]);
  close(ends[1]);
}

TEST_F(OsiSigchldTest, InstallsTheActionWithTheFirstHandler) {
  EXPECT_TRUE(IsDefaultAction());
  OsiSigchld(HandlerA, true);
  EXPECT_FALSE(IsDefaultAction());
}

TEST_F(OsiSigchldTest, CallsAllHandlersInTheirOrder) {
  OsiSigchld(HandlerA, true);
  OsiSigchld(HandlerB, true);
  OsiSigchld(LookAtMask, true);
  EXPECT_EQ(Called(), "abm");
}

TEST_F(OsiSigchldTest, BlocksTheSignalWhileItIsHandled) {
  OsiSigchld(LookAtMask, true);
  EXPECT_EQ(Called(), "m");
  EXPECT_EQ(was_blocked, 1);
}

TEST_F(OsiSigchldTest, RemovesOneHandlerAtATime) {
  OsiSigchld(HandlerA, true);
  OsiSigchld(HandlerB, true);
  OsiSigchld(HandlerA, true);
  EXPECT_EQ(Called(), "aba");
  EXPECT_TRUE(OsiSigchld(HandlerA, false));
  EXPECT_EQ(Called(), "ba");
  EXPECT_TRUE(OsiSigchld(HandlerA, false));
  EXPECT_EQ(Called(), "b");
  EXPECT_FALSE(OsiSigchld(HandlerA, false));
  EXPECT_EQ(Called(), "b");
}

TEST_F(OsiSigchldTest, SurvivesASignalWithAnEmptyList) {
  OsiSigchld(HandlerA, true);
  EXPECT_TRUE(OsiSigchld(HandlerA, false));
  EXPECT_FALSE(IsDefaultAction());
  EXPECT_EQ(Called(), "");
  EXPECT_TRUE(OsiSigchld(HandlerB, true));
  EXPECT_EQ(Called(), "b");
}

TEST_F(OsiSigchldTest, RemovesNothingFromNothing) {
  EXPECT_FALSE(OsiSigchld(HandlerA, false));
  EXPECT_FALSE(OsiSigchld(nullptr, true));
  EXPECT_FALSE(OsiSigchld(nullptr, false));
  EXPECT_TRUE(IsDefaultAction());
}

TEST_F(OsiSigchldTest, CallsTheNextWhenAHandlerRemovesItself) {
  OsiSigchld(HandlerA, true);
  OsiSigchld(RemoveItself, true);
  OsiSigchld(HandlerB, true);
  EXPECT_EQ(Called(), "arb");
  EXPECT_EQ(Called(), "ab");
}

TEST_F(OsiSigchldTest, KeepsTheErrnoOfWhatWasInterrupted) {
  OsiSigchld(SpoilErrno, true);
  errno = 0;
  EXPECT_EQ(Called(), "e");
  EXPECT_EQ(errno, 0);
}

TEST_F(OsiSigchldTest, LeavesTheSignalMaskAsItWas) {
  sigset_t blocked;
  sigset_t former;
  sigset_t after;
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGCHLD);
  sigprocmask(SIG_BLOCK, &blocked, &former);
  OsiSigchld(HandlerA, true);
  sigprocmask(SIG_SETMASK, &former, &after);
  EXPECT_EQ(sigismember(&after, SIGCHLD), 1);
  OsiSigchld(HandlerB, true);
  sigprocmask(SIG_SETMASK, nullptr, &after);
  EXPECT_EQ(sigismember(&after, SIGCHLD), 0);
}

// A child keeps sending the signal while the list grows, moves and shrinks.
TEST_F(OsiSigchldTest, MayBeChangedWhileSignalsArrive) {
  OsiSigchld(HandlerA, true);
  pid_t parent = getpid();
  pid_t pid = fork();
  if (pid == 0) {
    alarm(20);  // ends it should the parent fail
    while (getppid() == parent) kill(parent, SIGCHLD);
    _exit(0);
  }
  ASSERT_GT(pid, 0);
  EXPECT_TRUE(WaitUntil([] { return call_count > 0; }));
  for (int round = 0; round < 50; ++round) {
    for (int i = 0; i < 100; ++i) ASSERT_TRUE(OsiSigchld(HandlerB, true));
    for (int i = 0; i < 100; ++i) ASSERT_TRUE(OsiSigchld(HandlerB, false));
    OsiSigchldReset();
    ASSERT_TRUE(OsiSigchld(HandlerA, true));
  }
  kill(pid, SIGKILL);
  OsiSigchldReset();
  waitpid(pid, nullptr, 0);
}

TEST_F(OsiSigchldTest, ResetPutsTheFormerActionBack) {
  OsiSigchld(HandlerA, true);
  OsiSigchldReset();
  EXPECT_TRUE(IsDefaultAction());
  EXPECT_EQ(Called(), "");
  EXPECT_FALSE(OsiSigchld(HandlerA, false));
}

}  // namespace
