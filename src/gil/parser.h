// SPDX-License-Identifier: MIT
// The parser: one GIL file from the scanner to records. It leaves its result in one of two globals
// and knows nothing of owners.
#ifndef PANDREL_GIL_PARSER_H
#define PANDREL_GIL_PARSER_H

#include "gil/object.h"

// The object list of the interface file read last, in reverse file order. Not cleared before a
// parse: a project file leaves it as it was.
extern Obj* gilFile;

// The project file read last; its reader clears it.
extern Obj* project;

// Parses standard input to its end. 0 when it is an interface or a project file, else 1 after the
// first token that fits neither was reported through yyerror; what was read of the file is then
// without effect on the two globals.
int yyparse();

// Forgets both results.
void ResetParser();

#endif
