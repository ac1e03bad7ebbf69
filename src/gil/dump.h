// SPDX-License-Identifier: MIT
// Printing a parsed file, to see what the reader made of it. Changes no record.
#ifndef PANDREL_GIL_DUMP_H
#define PANDREL_GIL_DUMP_H

#include <cstdint>

struct Obj;

// Prints the objects of a sibling list and their children on standard error, indented by tabs.
void generate(const Obj* objects);

// The text of the keyword with that token, without its colon. When the table has none: a report
// through yyerror, and null.
const char* KeywordName(int32_t token);

#endif
