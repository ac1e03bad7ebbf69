// SPDX-License-Identifier: MIT
// Sub-menus, which the conversion puts on the wrong items, and leaves out of the copies of a menu
// that is both pulled down and popped up.
#ifndef PANDREL_PORT_MEND_MENUS_H
#define PANDREL_PORT_MEND_MENUS_H

#include "port/port_session.h"

namespace port {

// Puts each sub-menu on the items that name it, in every copy of a menu. Widgets that lose their
// place by it leave the session's list; those that are made are to be linked (LinkWidgets).
void MendMenus(Session& session);

}  // namespace port

#endif
