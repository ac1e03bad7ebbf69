// SPDX-License-Identifier: MIT
// Settings: a set of choices becomes a row-column of toggle buttons or an option menu.
#ifndef PANDREL_CONVERT_SETTINGS_H
#define PANDREL_CONVERT_SETTINGS_H

#include <cstdint>

struct Obj;
struct Widg;

// Expands the setting's row-column; returns the widget that stands for the setting: the row-column,
// the one around it and its label, or an option menu in its place.
Widg* SpecProcSetting(Obj* obj, Widg* widg);

// Fills the box with a toggle button for each choice; returns it. `settingType` is EXCLUSIVE,
// NONEXCLUSIVE or CHECK. A setting without choices ends the run.
Widg* CreateSettingToggleBox(Obj* obj, Widg* box, int32_t settingType);

// Returns a new option menu that replaces the row-column, which is dropped with its size and
// colours.
Widg* SpecProcStackSetting(Obj* obj, Widg* widg);

#endif
