// SPDX-License-Identifier: MIT
// The one place where the program ends early. Every fatal condition (a parse error, an unopenable
// output, exhausted memory, the usage text) writes its message and calls OsiExit, so that a test or
// a fuzzer can run many conversions in one process.
#ifndef PANDREL_OSI_FATAL_H
#define PANDREL_OSI_FATAL_H

// OsiExit calls it with the exit status instead of ending the process. It must not return: it
// throws or jumps.
using OsiExitHandler = void (*)(int status);

// Ends the run with `status` (the shell sees it modulo 256): calls the handler if one is set,
// otherwise flushes the open streams and ends the process without running destructors.
[[noreturn]] void OsiExit(int status);

// Writes "Error: <message>" on standard error and ends the run with status -1 (255 to the shell).
[[noreturn]] void Error(const char* message);

// Reports a fatal system error on standard error and ends the run with status 1. For whoever must
// end it on a signal with a message.
[[noreturn]] void SystemErrorHandler();

// Sets the handler (null: none) and returns the former one.
OsiExitHandler OsiSetExitHandler(OsiExitHandler handler);

// From now on, a `new` that finds no memory, also one of the standard library's, says so on
// standard error and ends the run with status -1. A main program calls this first.
void OsiEndOnExhaustedMemory();

#endif
