// SPDX-License-Identifier: MIT
// Signals that end the program, held back so that it can clean up first.
//
// HoldSignals() blocks them. They are let through while WaitFor() waits, and nowhere else, so no
// code of the program is ever interrupted; whoever waits asks StopSignal() afterwards.
#ifndef PANDREL_VIEW_SIGNALS_H
#define PANDREL_VIEW_SIGNALS_H

#include <poll.h>

#include <chrono>
#include <span>

namespace view {

// From here on SIGHUP, SIGINT, SIGQUIT and SIGTERM are held (one that was ignored at the start
// stays so), and SIGUSR1, which asks for a listing.
void HoldSignals();

// The signal that wants the program to end; 0 when none has come.
int StopSignal();

// Whether SIGUSR1 has come since the last call.
bool TakeListRequest();

// poll() that ends early when a signal comes. Returns how many descriptors are ready, 0 when the
// time is over or a signal came. A negative time is without end.
int WaitFor(std::span<pollfd> descriptors, std::chrono::milliseconds time);

// In a child process: signals are again what they were before HoldSignals(), and the child gets
// `at_parents_end` when this program ends in whatever way.
void ReleaseSignalsInChild(int at_parents_end);

// Ends the program by the signal, as if it had never been held.
[[noreturn]] void EndBySignal(int signal);

}  // namespace view

#endif
