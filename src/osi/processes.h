// SPDX-License-Identifier: MIT
// Running other programs and sending them signals. Hearing of their end is in sigchld.h.
#ifndef PANDREL_OSI_PROCESSES_H
#define PANDREL_OSI_PROCESSES_H

#include <sys/types.h>

// Runs `command` (null: the empty one) through the shell and waits for it. Returns its wait status
// as system(3) does; -1 when no process could be made.
int OsiSystem(const char* command);

// Starts the program `path` (no search along PATH) with at most 24 arguments: the words of
// `arguments` between blanks, which may be null; any further words are dropped. Does not wait.
// Returns the child's process id; 0, after the message "OsiProcExec: File %s not found\n" on
// standard error, when there is no such file; -1 when no process could be made. A file that cannot
// be executed is noticed only by the child: it writes "OsiProcExec: Failed to exec %s\n" on
// standard error and ends with status 127, as a shell does.
pid_t OsiProcExec(const char* path, const char* arguments);

// Sends `signal` to the process `pid`. Returns 0; -1 on failure.
int OsiProcKill(pid_t pid, int signal);

#endif
