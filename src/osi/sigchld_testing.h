// SPDX-License-Identifier: MIT
// For tests that begin without handlers.
#ifndef PANDREL_OSI_SIGCHLD_TESTING_H
#define PANDREL_OSI_SIGCHLD_TESTING_H

// Empties the list and restores the signal action that the first addition replaced.
void OsiSigchldReset();

#endif
