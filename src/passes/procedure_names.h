// SPDX-License-Identifier: MIT
// Keeps the names of procedures apart from those of widgets, since UIL has one name space for both.
#ifndef PANDREL_PASSES_PROCEDURE_NAMES_H
#define PANDREL_PASSES_PROCEDURE_NAMES_H

// Gives each procedure that has the name of a widget a capital first letter, in place, so that
// calls show it too, and says so on standard error. Does not check the new name. Does nothing when
// the module is meant for the builder, which resolves such clashes by itself.
void FixProcedureNames();

#endif
