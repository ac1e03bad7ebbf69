// SPDX-License-Identifier: MIT
// The one place where the program ends before its time. Every fatal condition (a parse error, an
// unopenable output, exhausted memory, the usage text) comes through OsiExit after its message is
// written, so that a test or a fuzzer can run many conversions in one process.
#ifndef PANDREL_OSI_FATAL_H
#define PANDREL_OSI_FATAL_H

// Called, instead of ending the process, with the exit status. It must not return: it throws or
// jumps.
using OsiExitHandler = void (*)(int status);

// Ends the run with `status` (negative ones as the shell sees them, modulo 256): through the
// handler when one is set, else at once, with the open streams flushed and no destructor run.
[[noreturn]] void OsiExit(int status);

// Writes "Error: <message>" on standard error and ends the run with status -1 (255 to the shell).
[[noreturn]] void Error(const char* message);

// Reports a fatal system error on standard error and ends the run with status 1. To be installed
// where a signal must end it with a message.
[[noreturn]] void SystemErrorHandler();

// Sets the handler (null: none) and returns the one before it.
OsiExitHandler OsiSetExitHandler(OsiExitHandler handler);

// Makes every `new` that finds no memory, the library's own included, say so on standard error and
// end the run with status -1. For a main program, before anything else.
void OsiEndOnExhaustedMemory();

#endif
