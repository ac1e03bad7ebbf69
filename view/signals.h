// SPDX-License-Identifier: MIT
// Signals that end the program, blocked so that it can clean up first.
//
// HoldSignals() blocks them. They arrive only while WaitFor() waits, so no other code of the
// program is ever interrupted; whoever waits asks StopSignal() afterwards.
#ifndef PANDREL_VIEW_SIGNALS_H
#define PANDREL_VIEW_SIGNALS_H

#include <poll.h>

#include <chrono>
#include <span>

namespace view {

// From now on blocks SIGHUP, SIGINT, SIGQUIT and SIGTERM (one that was ignored at the start stays
// so), and SIGUSR1, which asks for a listing.
void HoldSignals();

// The signal that wants the program to end; 0 when none has come.
int StopSignal();

// Whether SIGUSR1 has come since the last call.
bool TakeListRequest();

// poll() that ends early when a signal comes. Returns how many descriptors are ready, 0 when the
// time is over or a signal came. A negative time is no limit.
int WaitFor(std::span<pollfd> descriptors, std::chrono::milliseconds time);

// In a child process: restores the signals as they were before HoldSignals(). The child will get
// `at_parents_end` when this program ends in any way.
void ReleaseSignalsInChild(int at_parents_end);

// Ends the program by the signal, as if it were not blocked.
[[noreturn]] void EndBySignal(int signal);

}  // namespace view

#endif
