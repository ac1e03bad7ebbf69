// SPDX-License-Identifier: MIT
// The windows and dialogs of the program.
#ifndef PANDREL_PORT_PORT_WINDOWS_H
#define PANDREL_PORT_PORT_WINDOWS_H

#include "port/port_session.h"

namespace port {

// Fills the model's windows from the shells of the tree. The program needs them even where the
// module has none.
void FindWindows(Session& session);

}  // namespace port

#endif
