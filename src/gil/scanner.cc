// SPDX-License-Identifier: MIT
#include "gil/scanner.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "gil/position.h"
#include "gil/tokens.h"
#include "gil/version.h"
#include "gil/words.h"
#include "osi/fatal.h"
#include "text/uil_text.h"

Value* yylval = nullptr;

namespace {

// Enough to tell a token that is one byte too long from one that fits exactly.
constexpr std::size_t kLookAhead = kTokenLimit + 2;
constexpr std::size_t kBufferSize = 32 * 1024;
static_assert(kBufferSize > 2 * kLookAhead);

// A window on standard input. A NUL follows the last byte read, so that loops over a class of
// characters without NUL need not test for the end.
char buffer[kBufferSize + 1];

struct InputWindow {
  const char* cursor = buffer;
  const char* end = buffer;
  bool at_end = false;
};

InputWindow input;

enum CharClass : uint8_t {
  kLetter = 1,
  kDigit = 2,
  kOfIdentifier = 4,  // what may follow the first letter of an identifier
  kOfKeyword = 8,     // what may follow the colon of a keyword
  kDash = 16,
  kBlank = 32,
};

constexpr std::array<uint8_t, 256> kClasses = [] {
  std::array<uint8_t, 256> classes{};
  for (int c = 'a'; c <= 'z'; ++c) classes[c] = kLetter | kOfIdentifier | kOfKeyword;
  for (int c = 'A'; c <= 'Z'; ++c) classes[c] = kLetter | kOfIdentifier;
  for (int c = '0'; c <= '9'; ++c) classes[c] = kDigit | kOfIdentifier;
  classes[' '] = classes['\t'] = kBlank;
  classes['_'] = kOfIdentifier | kOfKeyword;
  classes['.'] = kOfIdentifier;
  classes['-'] = kOfKeyword | kDash;
  return classes;
}();

bool Is(char c, CharClass wanted) { return kClasses[static_cast<unsigned char>(c)] & wanted; }

std::size_t Left() { return static_cast<std::size_t>(input.end - input.cursor); }

// Moves what is left to the front and fills the rest of the buffer.
void Refill() {
  const std::size_t left = Left();
  std::memmove(buffer, input.cursor, left);
  char* end = buffer + left;
  while (end < buffer + kBufferSize && !input.at_end) {
    const auto room = static_cast<std::size_t>(buffer + kBufferSize - end);
    const std::size_t got = std::fread(end, 1, room, stdin);
    input.at_end = got < room;
    end += got;
  }
  *end = '\0';
  input.cursor = buffer;
  input.end = end;
}

// Makes sure that the buffer has the whole token at the cursor, of the greatest length.
void Fetch() {
  if (Left() < kLookAhead && !input.at_end) Refill();
}

[[noreturn]] void TokenTooLong() {
  std::printf("Input string too long, limit %d\n", static_cast<int>(kTokenLimit));
  OsiExit(1);
}

// Makes the bytes from the cursor up to `token_end` the current token.
void Accept(const char* token_end) {
  yytext = input.cursor;
  yyleng = static_cast<std::size_t>(token_end - input.cursor);
  if (yyleng > kTokenLimit) TokenTooLong();
  input.cursor = token_end;
}

// Behind the run of characters of that class that starts at `from`.
const char* Skip(const char* from, CharClass wanted) {
  while (Is(*from, wanted)) ++from;
  return from;
}

// Blanks, tabs and newlines.
void SkipBlanks() {
  for (;;) {
    input.cursor = Skip(input.cursor, kBlank);
    if (*input.cursor == '\n') {
      ++input.cursor;
      ++yylineno;
    } else if (input.cursor != input.end || input.at_end) {
      return;
    } else {
      Refill();
    }
  }
}

// The rules. Each reads what begins at the cursor and returns its token, 0 for what is skipped.

int32_t ScanIllegalCharacter() {
  Accept(input.cursor + 1);
  std::fprintf(stderr, "Illegal character: %c\n", *yytext);
  return 0;
}

int32_t ScanParenthesis(int32_t token) {
  Accept(input.cursor + 1);
  return token;
}

// The version header, or a comment; both end with the line.
int32_t ScanSemicolon() {
  Accept(std::find(input.cursor, input.end, '\n'));
  const std::string_view line(yytext, yyleng);
  if (line.starts_with(";GIL-2")) {
    SetVersion(2);  // ends the run
    return GIL_VERSION_2;
  }
  return line.starts_with(";GIL-3") ? GIL_VERSION_3 : 0;
}

// The keyword string-value is a string token without a string in the file. Its Value is a copy of
// the value before: the same kind and number, and the same text, shared.
int32_t RepeatValue() {
  const Value* previous = yylval;
  Value* value = createValue(previous ? previous->kind : static_cast<int32_t>(kStringValue));
  if (previous) {
    value->ival = previous->ival;
    value->sval = previous->sval;
  }
  yylval = value;
  return STRING_VALUE;
}

int32_t ScanKeyword() {
  const char* text = input.cursor + 1;
  const char* text_end = Skip(text, kOfKeyword);
  if (text_end == text) return ScanIllegalCharacter();
  Accept(text_end);
  const Word* word = FindKeyword(text, static_cast<std::size_t>(text_end - text));
  if (!word) {
    yyerror("Illegal keyword");
    return 0;
  }
  return word->token == STRING_VALUE ? RepeatValue() : word->token;
}

int32_t ScanIdentifier() {
  Accept(Skip(input.cursor, kOfIdentifier));
  const std::string_view text(yytext, yyleng);
  if (text == "nil") return NIL;
  if (text == "t") return T;
  yylval = stringValue(3, yytext, yyleng);
  return IDENTIFIER;
}

int32_t ScanInteger(const char* first_digit) {
  Accept(Skip(first_digit, kDigit));
  // A second "-" ends the number, which is then 0.
  yylval = intValue(ReadInt({yytext, yyleng}));
  return INTEGER_VALUE;
}

// A number, or dashes that no digit follows: each of those is an illegal character. Only a token
// has a limit, so the run of dashes may be longer than a token and than the buffer.
int32_t ScanDash() {
  const char* behind = Skip(input.cursor, kDash);
  if (Is(*behind, kDigit)) return ScanInteger(behind);
  std::size_t dashes = 0;
  for (; *input.cursor == '-'; ++dashes) {
    if (++input.cursor == input.end) Fetch();
  }
  if (Is(*input.cursor, kDigit)) TokenTooLong();
  for (; dashes > 0; --dashes) std::fputs("Illegal character: -\n", stderr);
  return 0;
}

// The quote that ends the string at the cursor; the end of the buffer when there is none.
const char* ClosingQuote() {
  const char* c = input.cursor + 1;
  while (c < input.end && *c != '"') c += *c == '\\' ? 2 : 1;
  return std::min(c, input.end);
}

// A quote without a closing one is an illegal character; scanning goes on behind it.
int32_t ScanString() {
  const char* quote = ClosingQuote();
  if (quote == input.end) {
    if (Left() > kTokenLimit + 1) TokenTooLong();
    return ScanIllegalCharacter();
  }
  Accept(quote + 1);
  yylineno += static_cast<int32_t>(std::count(yytext, quote, '\n'));
  yylval = stringValue(1, yytext, yyleng);
  return STRING_VALUE;
}

int32_t ScanOne() {
  const char first = *input.cursor;
  switch (first) {
    case '(':
      return ScanParenthesis(LPAREN);
    case ')':
      return ScanParenthesis(RPAREN);
    case ';':
      return ScanSemicolon();
    case ':':
      return ScanKeyword();
    case '"':
      return ScanString();
    case '-':
      return ScanDash();
    default:
      if (Is(first, kLetter)) return ScanIdentifier();
      return Is(first, kDigit) ? ScanInteger(input.cursor) : ScanIllegalCharacter();
  }
}

}  // namespace

int32_t yylex() {
  for (;;) {
    SkipBlanks();
    Fetch();
    if (input.cursor == input.end) {
      yytext = "";
      yyleng = 0;
      return END_OF_INPUT;
    }
    if (const int32_t token = ScanOne()) return token;
  }
}

void yyrestart() {
  input = InputWindow();
  buffer[0] = '\0';
  std::clearerr(stdin);
}

void ResetScanner() {
  yyrestart();
  yylval = nullptr;
}
