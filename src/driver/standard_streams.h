// SPDX-License-Identifier: MIT
// What a program owes the streams that it was started with.
#ifndef PANDREL_DRIVER_STANDARD_STREAMS_H
#define PANDREL_DRIVER_STANDARD_STREAMS_H

// Puts something in the place of standard streams that were closed by whoever started us: else the
// next file opened would get their numbers, and notes would go into the module. Reading from what
// replaces standard input finds nothing; writing to what replaces the others fails.
void HoldStandardStreams();

// Writes the notice on standard error when standard input is a terminal, where a person may not know
// what is expected; not when `verbose` is cleared.
void TellIfInputIsTerminal(const char* notice);

#endif
