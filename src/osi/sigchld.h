// SPDX-License-Identifier: MIT
// The list of functions that are called when a child process ends or stops. It is changed from
// normal code and read by the signal handler; a signal that comes during a change is held back
// until the change is whole.
#ifndef PANDREL_OSI_SIGCHLD_H
#define PANDREL_OSI_SIGCHLD_H

// Called from the signal handler with the signal number, SIGCHLD blocked: only async-signal-safe
// functions are allowed in it. It may remove itself with OsiSigchld, but not add any.
using OsiSignalHandler = void (*)(int signal);

// Adds `handler` to the end of the list, or removes its first occurrence. The first addition
// installs the signal action, which stays when the list is empty again. System calls that a signal
// interrupts go on by themselves. False when there is nothing to remove, for a null handler, or
// when the signal action cannot be installed.
bool OsiSigchld(OsiSignalHandler handler, bool add);

// Empties the list and puts back the signal action that the first addition replaced.
void OsiSigchldReset();

#endif
