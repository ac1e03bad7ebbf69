// SPDX-License-Identifier: MIT
// The list of procedures that callbacks name: what the module declares, in order of first use.
#ifndef PANDREL_WIDGET_PROCEDURES_H
#define PANDREL_WIDGET_PROCEDURES_H

#include <cstddef>
#include <string>

// Appends the procedure unless an equal text is in the list. The text is shared, not copied.
void InsertProcedure(char* procedure);

// Whether an equal text is in the list.
bool AlreadyInProcList(const char* procedure);

// Tells the list that a text, perhaps that of a procedure, has changed in place and was `former`,
// so that the list finds it under its new text.
void ProcedureTextChanged(char* text, const std::string& former);

// Stores the address of the first entry in *procedures (valid until the next insertion) and returns
// how many there are.
std::size_t GetProcedures(char*** procedures);

// Empties the list.
void ResetProcedures();

#endif
