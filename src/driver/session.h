// SPDX-License-Identifier: MIT
// The state of one conversion. The program runs one and ends; tests, fuzzers and benchmarks run
// many.
#ifndef PANDREL_DRIVER_SESSION_H
#define PANDREL_DRIVER_SESSION_H

// Sets all state back to what it was when the process started: flags, reader, tree, names,
// procedures, serial numbers. Frees every record and text of the conversion before.
void ResetSession();

#endif
