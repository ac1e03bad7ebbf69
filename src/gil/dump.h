// SPDX-License-Identifier: MIT
// Prints a parsed file, to show what the reader made of it. Changes no record.
#ifndef PANDREL_GIL_DUMP_H
#define PANDREL_GIL_DUMP_H

#include <cstdint>

struct Obj;

// Prints the objects of a sibling list and their children on standard error, indented by tabs.
void generate(const Obj* objects);

// The text of the keyword with that token, without its colon. When the table has none, reports it
// through yyerror and returns null.
const char* KeywordName(int32_t token);

#endif
