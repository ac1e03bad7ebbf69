// SPDX-License-Identifier: MIT
// Keeping procedures apart from widgets, which share one name space in UIL.
#ifndef PANDREL_PASSES_PROCEDURE_NAMES_H
#define PANDREL_PASSES_PROCEDURE_NAMES_H

// Gives each procedure that is named like an instance a capital first letter, in place, so that the
// calls show the new name too, and tells so on standard error. The new name is not looked up again.
// Does nothing where the module is meant for the builder, which sorts the names out by itself.
void FixProcedureNames();

#endif
