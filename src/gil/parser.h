// SPDX-License-Identifier: MIT
// The parser: makes records of one GIL file from the scanner. Its result is in one of two globals.
// It does not resolve owners.
#ifndef PANDREL_GIL_PARSER_H
#define PANDREL_GIL_PARSER_H

#include "gil/object.h"

// The object list of the interface file read last, in reverse file order. Not cleared before a
// parse: a project file leaves it as it was.
extern Obj* gilFile;

// The project file read last; its reader clears it.
extern Obj* project;

// Parses standard input to its end. Returns 0 for an interface or a project file. Otherwise reports
// the first token that fits neither through yyerror, leaves both globals alone and returns 1.
int yyparse();

// Clears both results.
void ResetParser();

#endif
