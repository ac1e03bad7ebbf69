// SPDX-License-Identifier: MIT
// The list of functions to call when a child process ends or stops. Normal code changes it and the
// signal handler reads it; the signal is blocked during a change.
#ifndef PANDREL_OSI_SIGCHLD_H
#define PANDREL_OSI_SIGCHLD_H

// Called from the signal handler with the signal number, SIGCHLD blocked: only async-signal-safe
// functions are allowed in it. It may remove itself with OsiSigchld, but not add any.
using OsiSignalHandler = void (*)(int signal);

// Adds `handler` to the end of the list, or removes its first occurrence. The first addition
// installs the signal action, which stays when the list becomes empty. Interrupted system calls are
// restarted. False when there is nothing to remove, for a null handler, or when the signal action
// cannot be installed.
bool OsiSigchld(OsiSignalHandler handler, bool add);

#endif
