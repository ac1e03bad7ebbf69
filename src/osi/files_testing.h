// SPDX-License-Identifier: MIT
// For tests that change their user.
#ifndef PANDREL_OSI_FILES_TESTING_H
#define PANDREL_OSI_FILES_TESTING_H

// Makes the next OsiFileAccess read the user and the groups again.
void OsiFileAccessForgetUser();

#endif
