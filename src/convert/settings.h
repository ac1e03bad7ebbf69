// SPDX-License-Identifier: MIT
// Settings: a set of choices becomes a row-column of toggle buttons or an option menu.
#ifndef PANDREL_CONVERT_SETTINGS_H
#define PANDREL_CONVERT_SETTINGS_H

struct Obj;
struct Widg;

// Expands the setting's row-column; returns the widget that stands for the setting: the row-column,
// the one around it and its label, or an option menu in its place. A set of buttons without choices
// ends the run.
Widg* SpecProcSetting(Obj* obj, Widg* widg);

#endif
