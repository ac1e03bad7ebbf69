// SPDX-License-Identifier: MIT
// Mends sub-menus: the conversion puts them on the wrong items, and leaves them out of the copies
// of a menu that is both pulled down and popped up.
#ifndef PANDREL_PORT_MEND_MENUS_H
#define PANDREL_PORT_MEND_MENUS_H

#include "port/port_session.h"

namespace port {

// Puts each sub-menu on the items that name it, in every copy of a menu. Removes widgets that lose
// their place from the session's list; the caller links new ones (LinkWidgets).
void MendMenus(Session& session);

}  // namespace port

#endif
