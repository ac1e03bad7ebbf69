// SPDX-License-Identifier: MIT
// Where the scanner is in the file, for messages.
#ifndef PANDREL_GIL_POSITION_H
#define PANDREL_GIL_POSITION_H

#include <cstddef>
#include <cstdint>

// The current token as it is in the file; not NUL-terminated, empty at the end of input, valid
// until the next call of yylex.
extern const char* yytext;
extern std::size_t yyleng;

// The line of the last byte that belongs to a token, from 1, counted through all files of a
// project.
extern int32_t yylineno;

// Reports `message` with the current line and token on standard error and returns.
void yyerror(const char* message);

// Back to the first line.
void ResetPosition();

#endif
