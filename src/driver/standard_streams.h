// SPDX-License-Identifier: MIT
// The standard streams that the program was started with.
#ifndef PANDREL_DRIVER_STANDARD_STREAMS_H
#define PANDREL_DRIVER_STANDARD_STREAMS_H

// Opens /dev/null in the place of standard streams that whoever started the program closed, so that
// the next file opened does not get their numbers and notes do not go into the module. Using such a
// stream fails as it would have. Ends the run with status -1 when /dev/null cannot be opened.
void HoldStandardStreams();

// With `verbose` set, writes the notice on standard error when standard input is a terminal: the
// user there may not know what is expected.
void TellIfInputIsTerminal(const char* notice);

#endif
