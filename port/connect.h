// SPDX-License-Identifier: MIT
// What becomes of each connection: what the module says of it, and what connections.c has to do.
#ifndef PANDREL_PORT_CONNECT_H
#define PANDREL_PORT_CONNECT_H

#include "port/port_session.h"

namespace port {

// Plans connections.c: for each action that the module does not have, the widgets and events that
// bring it about. An event that calls several things keeps the file's order, so what the module
// says behind such an action is planned for connections.c, too, and leaves the links.
void Connect(Session& session);

// Fills the fates of the model's connections, once every widget has its last name.
void SettleConnections(Session& session);

}  // namespace port

#endif
