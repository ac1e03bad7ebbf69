// SPDX-License-Identifier: MIT
// The event table: which callback of which class answers to an event of OPEN LOOK.
#ifndef PANDREL_CONVERT_EVENTS_H
#define PANDREL_CONVERT_EVENTS_H

struct Widg;

// The callback for the event, which is compared as it stands, on a widget of this class; null when
// there is none. With `verbose` set, what users may miss is noted on standard error.
const char* MapActionToCallback(const Widg* widg, const char* when);

#endif
