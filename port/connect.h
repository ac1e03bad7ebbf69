// SPDX-License-Identifier: MIT
// What becomes of each connection: its part in the module, and its part in connections.c.
#ifndef PANDREL_PORT_CONNECT_H
#define PANDREL_PORT_CONNECT_H

#include "port/port_session.h"

namespace port {

// Plans connections.c: for each action that the module does not have, the widgets and events that
// cause it. An event that causes several actions keeps the file's order, so the module's actions
// behind such an action move to connections.c, too, and leave the links.
void Connect(Session& session);

// Fills the fates of the model's connections, once every widget has its last name.
void SettleConnections(Session& session);

}  // namespace port

#endif
