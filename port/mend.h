// SPDX-License-Identifier: MIT
// Mends that need the GIL file; the others are the rewrites of uilfix.
#ifndef PANDREL_PORT_MEND_H
#define PANDREL_PORT_MEND_H

#include <string>

#include "port/port_session.h"

namespace port {

// Before the actions are converted: puts sub-menus on the items that name them and list items into
// the file's order, since the conversion reverses both, and restores groups that it dropped.
void MendTree(Session& session);

// Before the module is written: gives lists the callback of their policy, and arguments the names
// of the widgets that they mean.
void MendCallbacks(Session& session);

// The module as text, mended, goes to the model; the names that widgets and procedures end up with
// go to the session.
void MendModule(Session& session, const std::string& text);

}  // namespace port

#endif
