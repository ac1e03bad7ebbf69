// SPDX-License-Identifier: MIT
// The scanner: turns the characters of standard input into tokens. It reads ahead no further than
// one token may be long, so a file of any size takes the same memory.
#ifndef PANDREL_GIL_SCANNER_H
#define PANDREL_GIL_SCANNER_H

#include <cstddef>
#include <cstdint>

#include "gil/object.h"

// The longest token, in bytes.
constexpr std::size_t kTokenLimit = 10000;

// The current token as it stands in the file; not NUL-terminated, empty at the end of input, valid
// until the next token is asked for.
extern const char* yytext;
extern std::size_t yyleng;

// The line of the last byte that belongs to a token, from 1. It goes on counting across the files
// of a project.
extern int32_t yylineno;

// What the last IDENTIFIER, STRING_VALUE or INTEGER_VALUE carries.
extern Value* yylval;

// The next token, or 0 at the end of input. Unknown keywords and illegal characters are reported on
// standard error and skipped; a token over the limit is reported on standard output and ends the
// run with status 1. A directory or a read error reads as the end of input.
int32_t yylex();

// Starts reading standard input anew, after it was reopened on another file.
void yyrestart();

// Reports `message` with the current line and token on standard error and returns.
void yyerror(const char* message);

// Forgets the line count, the last value and whatever was read ahead.
void ResetScanner();

#endif
