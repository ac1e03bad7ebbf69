// SPDX-License-Identifier: MIT
// The state of one conversion. The program runs one and ends; tests, fuzzers and benchmarks run
// many.
#ifndef PANDREL_DRIVER_SESSION_H
#define PANDREL_DRIVER_SESSION_H

// Makes everything as it was when the process started: flags, reader, tree, names, procedures,
// serial numbers. Every record and text of the conversion before is freed.
void ResetSession();

#endif
