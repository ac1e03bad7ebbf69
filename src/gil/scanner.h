// SPDX-License-Identifier: MIT
// The scanner: turns the characters of standard input into tokens. It reads ahead by at most one
// token of the greatest length, so a file of any size needs the same memory.
#ifndef PANDREL_GIL_SCANNER_H
#define PANDREL_GIL_SCANNER_H

#include <cstddef>
#include <cstdint>

#include "gil/object.h"

// The longest token, in bytes.
constexpr std::size_t kTokenLimit = 10000;

// The value of the last IDENTIFIER, STRING_VALUE or INTEGER_VALUE.
extern Value* yylval;

// The next token, or 0 at the end of input; gil/position.h has its text. Reports unknown keywords
// and illegal characters on standard error and skips them. Reports a token over the limit on
// standard output and ends the run with status 1. A directory or a read error counts as the end of
// input.
int32_t yylex();

// Starts again, after standard input was reopened on another file.
void yyrestart();

// Drops the last value and all input that was read ahead.
void ResetScanner();

#endif
