// SPDX-License-Identifier: MIT
// The command line: turns the arguments into option flags.
#ifndef PANDREL_DRIVER_COMMAND_LINE_H
#define PANDREL_DRIVER_COMMAND_LINE_H

// Sets the flags from argv[1] to argv[argc-1]; texts are kept by pointer, not copied. "-help"
// writes the usage text on standard output and ends the run with status 0. Reports an unknown
// option on standard output and skips it. Cannot fail.
void ParseCommandLine(int argc, char** argv);

#endif
