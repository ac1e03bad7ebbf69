// SPDX-License-Identifier: MIT
// Waiting with a limit, so that a child that hangs fails its test instead of holding up all others.
#ifndef PANDREL_TESTS_UNIT_OSI_CHILDREN_H
#define PANDREL_TESTS_UNIT_OSI_CHILDREN_H

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

// Asks again and again for at most 20 seconds; false when the answer stays false.
template <typename Question>
bool WaitUntil(Question question) {
  for (int i = 0; i < 4000; ++i) {
    if (question()) return true;
    usleep(5000);
  }
  return question();
}

// The wait status of the child `pid`; one that does not end in time is killed and fails the test.
inline int WaitFor(pid_t pid) {
  int status = -1;
  if (!WaitUntil([&] { return waitpid(pid, &status, WNOHANG) == pid; })) {
    ADD_FAILURE() << "process " << pid << " did not end";
    kill(pid, SIGKILL);
    waitpid(pid, &status, 0);
  }
  return status;
}

// As WaitFor, for a child that is to end by itself: its exit status, -1 when a signal ended it.
inline int ExitStatusOf(pid_t pid) {
  int status = WaitFor(pid);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

#endif
