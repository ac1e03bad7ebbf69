// SPDX-License-Identifier: MIT
// Runs other programs and sends them signals. sigchld.h tells when they end.
#ifndef PANDREL_OSI_PROCESSES_H
#define PANDREL_OSI_PROCESSES_H

#include <sys/types.h>

// Runs `command` (null: the empty one) through the shell and waits for it. Returns its wait status
// as system(3) does; -1 when no process could be made.
int OsiSystem(const char* command);

// Starts the program `path` (no search along PATH) with the words of `arguments`, which may be
// null, as arguments. Blanks separate words; those behind the 24th are dropped. Does not wait.
// Returns the child's process id; 0, after the message "OsiProcExec: File %s not found\n" on
// standard error, when there is no such file; -1 when no process could be made. If the file cannot
// be executed, the child writes "OsiProcExec: Failed to exec %s\n" on standard error and ends with
// status 127, as a shell does.
pid_t OsiProcExec(const char* path, const char* arguments);

// Sends `signal` to the process `pid`. Returns 0; -1 on failure.
int OsiProcKill(pid_t pid, int signal);

#endif
