// SPDX-License-Identifier: MIT
// The event table: which callback of which class answers to an event of OPEN LOOK.
#ifndef PANDREL_CONVERT_EVENTS_H
#define PANDREL_CONVERT_EVENTS_H

struct Widg;

// The callback for the event on a widget of this class; null when there is none. Case counts in
// `when`. With `verbose` set, a note on standard error names an event that users may miss.
const char* MapActionToCallback(const Widg* widg, const char* when);

#endif
