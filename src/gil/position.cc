// SPDX-License-Identifier: MIT
#include "gil/position.h"

#include <cstdio>

const char* yytext = "";
std::size_t yyleng = 0;
int32_t yylineno = 1;

void yyerror(const char* message) {
  // Like all texts, a message ends at the first NUL byte of the token.
  std::fprintf(stderr, "\n*** %d: %s at %.*s\n", static_cast<int>(yylineno), message,
               static_cast<int>(yyleng), yytext);
}

void ResetPosition() {
  yytext = "";
  yyleng = 0;
  yylineno = 1;
}
