// SPDX-License-Identifier: MIT
#include "widget/callbacks.h"

#include "osi/strings.h"
#include "widget/procedures.h"
#include "widget/tree.h"

static bool AreSame(const Callback& a, const Callback& b) {
  return OsiStrcmp(a.callback_name, b.callback_name) == 0 &&
         OsiStrcmp(a.procedure, b.procedure) == 0 && OsiStrcmp(a.argument, b.argument) == 0;
}

void AddCallback(Widg* widg, const char* callback_name, char* procedure, const char* argument) {
  // Declare the procedure even when the widget has the callback already.
  InsertProcedure(procedure);
  const Callback wanted = {nullptr, callback_name, procedure, argument};
  Callback** link = &widg->callbacks;
  for (; *link; link = &(*link)->next) {
    if (AreSame(**link, wanted)) return;
  }
  *link = MakeCallback(callback_name, procedure, argument);
}

void MoveCallback(Widg* from, Widg* to, const char* callback_name) {
  if (!from || !to) return;
  for (Callback** link = &from->callbacks; *link;) {
    Callback* callback = *link;
    if (OsiStrcmp(callback->callback_name, callback_name) != 0) {
      link = &callback->next;
      continue;
    }
    // Add it before unlinking it: if the two widgets share a list, it is there already.
    AddCallback(to, callback->callback_name, callback->procedure, callback->argument);
    *link = callback->next;
  }
}
