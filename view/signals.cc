// SPDX-License-Identifier: MIT
#include "signals.h"

#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace view {
namespace {

constexpr int kStopSignals[] = {SIGHUP, SIGINT, SIGQUIT, SIGTERM};

volatile sig_atomic_t stop_signal = 0;
volatile sig_atomic_t list_request = 0;

bool held = false;
sigset_t former_mask;

extern "C" void NoteStop(int signal) { stop_signal = signal; }
extern "C" void NoteListRequest(int) { list_request = 1; }

void Catch(int signal, void (*handler)(int)) {
  struct sigaction former;
  sigaction(signal, nullptr, &former);
  if (former.sa_handler == SIG_IGN) return;
  struct sigaction action {};
  action.sa_handler = handler;
  sigemptyset(&action.sa_mask);
  sigaction(signal, &action, nullptr);
}

void SetDefault(int signal) {
  struct sigaction former;
  sigaction(signal, nullptr, &former);
  if (former.sa_handler == NoteStop || former.sa_handler == NoteListRequest) {
    ::signal(signal, SIG_DFL);
  }
}

}  // namespace

void HoldSignals() {
  sigset_t set;
  sigemptyset(&set);
  for (int signal : kStopSignals) {
    Catch(signal, NoteStop);
    sigaddset(&set, signal);
  }
  Catch(SIGUSR1, NoteListRequest);
  sigaddset(&set, SIGUSR1);
  sigprocmask(SIG_BLOCK, &set, &former_mask);
  held = true;
}

int StopSignal() {
  if (stop_signal == 0 && held) WaitFor({}, std::chrono::milliseconds(0));
  return stop_signal;
}

bool TakeListRequest() {
  const bool request = list_request != 0;
  list_request = 0;
  return request;
}

int WaitFor(std::span<pollfd> descriptors, std::chrono::milliseconds time) {
  timespec left{};
  left.tv_sec = time.count() / 1000;
  left.tv_nsec = time.count() % 1000 * 1'000'000;
  const int ready = ppoll(descriptors.data(), descriptors.size(),
                          time.count() < 0 ? nullptr : &left, held ? &former_mask : nullptr);
  return ready < 0 ? 0 : ready;
}

void ReleaseSignalsInChild(int at_parents_end) {
  prctl(PR_SET_PDEATHSIG, at_parents_end);
  if (!held) return;
  for (int signal : kStopSignals) SetDefault(signal);
  SetDefault(SIGUSR1);
  sigprocmask(SIG_SETMASK, &former_mask, nullptr);
  held = false;
}

void EndBySignal(int signal) {
  ::signal(signal, SIG_DFL);
  sigset_t set;
  sigemptyset(&set);
  sigaddset(&set, signal);
  sigprocmask(SIG_UNBLOCK, &set, nullptr);
  raise(signal);
  _exit(128 + signal);
}

}  // namespace view
