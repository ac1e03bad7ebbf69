// SPDX-License-Identifier: MIT
#include "gil/scanner.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "gil/keywords.h"
#include "gil/tokens.h"
#include "gil/version.h"
#include "osi/fatal.h"
#include "osi/io_buffer.h"

const char* yytext = "";
std::size_t yyleng = 0;
int32_t yylineno = 1;
Value* yylval = nullptr;
bool texts_are_repeated = false;

namespace {

// Enough to tell a token that is one byte too long from one that just fits.
constexpr std::size_t kLookAhead = kTokenLimit + 2;
constexpr std::size_t kBufferSize = kIoBufferSize;
static_assert(kBufferSize > 2 * kLookAhead);

// A window on standard input. A NUL stands behind the last byte read, so that loops over a class of
// characters without NUL need not test for the end.
constexpr char kBlanks[] = "        ";

// Room behind the NUL for a look at a run of blanks or a keyword.
static_assert(kIoBufferMargin > kLongestKeyword && kIoBufferMargin > sizeof kBlanks);
char* const buffer = io_buffer;

struct Input {
  const char* cursor = buffer;
  const char* end = buffer;
  bool at_end = false;
  // Behind the last "-" of a run that no digit follows. Known once per run, so that a file of
  // dashes is not searched again from each of them.
  const char* bare_dashes_end = nullptr;
};

Input input;

enum CharClass : uint8_t {
  kLetter = 1,      // A-Z a-z
  kDigit = 2,       // 0-9
  kIdentifier = 4,  // what may follow the first letter of an identifier
  kKeyword = 8,     // what may follow the colon of a keyword
  kStringEnd = 16,  // what a scan through a string must look at: quotes, backslashes, newlines, NUL
};

constexpr std::array<uint8_t, 256> BuildClasses() {
  std::array<uint8_t, 256> classes{};
  for (int c = 'a'; c <= 'z'; ++c) classes[c] = kLetter | kIdentifier | kKeyword;
  for (int c = 'A'; c <= 'Z'; ++c) classes[c] = kLetter | kIdentifier;
  for (int c = '0'; c <= '9'; ++c) classes[c] = kDigit | kIdentifier;
  classes['_'] = kIdentifier | kKeyword;
  classes['.'] = kIdentifier;
  classes['-'] = kKeyword;
  for (unsigned char c : {'"', '\\', '\n', '\0'}) classes[c] = kStringEnd;
  return classes;
}

constexpr std::array<uint8_t, 256> kClasses = BuildClasses();

bool Is(char c, uint8_t char_class) { return kClasses[static_cast<unsigned char>(c)] & char_class; }

// Moves what is left to the front and fills the rest of the buffer.
void Refill() {
  const auto left = static_cast<std::size_t>(input.end - input.cursor);
  if (input.bare_dashes_end) input.bare_dashes_end -= input.cursor - buffer;
  std::memmove(buffer, input.cursor, left);
  input.cursor = buffer;
  char* end = buffer + left;
  while (end < buffer + kBufferSize && !input.at_end) {
    const auto room = static_cast<std::size_t>(buffer + kBufferSize - end);
    const std::size_t got = std::fread(end, 1, room, stdin);
    input.at_end = got < room;
    end += got;
  }
  *end = '\0';
  input.end = end;
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

void AcceptIllegalCharacter() {
  Accept(input.cursor + 1);
  std::fprintf(stderr, "Illegal character: %c\n", *yytext);
}

// The end of the line that the cursor stands in, or a place that makes the token too long.
const char* LineEnd() {
  const auto length = std::min(static_cast<std::size_t>(input.end - input.cursor), kTokenLimit + 1);
  const void* newline = std::memchr(input.cursor, '\n', length);
  return newline ? static_cast<const char*>(newline) : input.cursor + length;
}

// Behind the run of characters of that class that starts at `from`.
const char* SkipClass(const char* from, uint8_t char_class) {
  while (Is(*from, char_class)) ++from;
  return from;
}

// A ";" starts the version header or a comment, both up to the end of the line. 0 for a comment.
int32_t ScanSemicolon() {
  Accept(LineEnd());
  if (yyleng >= 6 && std::memcmp(yytext, ";GIL-2", 6) == 0) {
    SetVersion(2);  // ends the run
    return GIL_VERSION_2;
  }
  if (yyleng >= 6 && std::memcmp(yytext, ";GIL-3", 6) == 0) return GIL_VERSION_3;
  return 0;
}

// The same kind, number and shared text as the value before, as a Value of its own: the keyword
// string-value delivers a string token that no text of the file backs.
Value* RepeatedValue() {
  texts_are_repeated = true;
  const Value* previous = yylval;
  Value* value = createValue(previous ? previous->kind : static_cast<int32_t>(kStringValue));
  if (previous) {
    value->ival = previous->ival;
    value->sval = previous->sval;
  }
  return value;
}

// By keyword, the one that came behind it the last time. The editor writes an object's attributes
// always in the same order, so it mostly comes again.
std::array<const Keyword*, kLastToken - kFirstToken + 1> followers;

// Whether the keyword is what stands behind the colon at the cursor.
bool IsNext(const Keyword* keyword) {
  const char* text = input.cursor + 1;
  return std::memcmp(text, keyword->text, static_cast<std::size_t>(keyword->length)) == 0 &&
         !Is(text[keyword->length], kKeyword);
}

// 0 for a keyword that the table lacks and for a colon that starts none.
int32_t ScanColon() {
  static int32_t previous = kFirstToken;
  const Keyword*& expected = followers[static_cast<std::size_t>(previous - kFirstToken)];
  if (expected && IsNext(expected)) {
    Accept(input.cursor + 1 + expected->length);
  } else {
    const char* token_end = SkipClass(input.cursor + 1, kKeyword);
    if (token_end == input.cursor + 1) {
      AcceptIllegalCharacter();
      return 0;
    }
    Accept(token_end);
    const Keyword* keyword = FindKeyword(yytext + 1, yyleng - 1);
    if (!keyword) {
      yyerror("Illegal keyword");
      return 0;
    }
    expected = keyword;
  }
  previous = expected->token;
  if (previous == STRING_VALUE) yylval = RepeatedValue();
  return previous;
}

int32_t ScanIdentifier() {
  Accept(SkipClass(input.cursor, kIdentifier));
  if (yyleng == 1 && *yytext == 't') return T;
  if (yyleng == 3 && std::memcmp(yytext, "nil", 3) == 0) return NIL;
  yylval = stringValue(3, yytext, yyleng);
  return IDENTIFIER;
}

// Converts as atoi does: a second "-" ends the number, which is then 0.
int32_t NumberOfToken() {
  if (yyleng <= 9) {
    const bool negative = *yytext == '-';
    int32_t number = 0;
    for (const char* c = yytext + negative; c < yytext + yyleng; ++c) {
      if (*c == '-') return 0;
      number = number * 10 + (*c - '0');
    }
    return negative ? -number : number;
  }
  return static_cast<int32_t>(std::strtol(yytext, nullptr, 10));
}

// 0 for dashes that no digit follows: the first of them is an illegal character.
int32_t ScanNumber() {
  const char* digits = input.cursor;
  if (input.cursor < input.bare_dashes_end) {
    AcceptIllegalCharacter();
    return 0;
  }
  while (*digits == '-') ++digits;
  if (static_cast<std::size_t>(digits - input.cursor) > kTokenLimit) TokenTooLong();
  if (!Is(*digits, kDigit)) {
    input.bare_dashes_end = digits;
    AcceptIllegalCharacter();
    return 0;
  }
  Accept(SkipClass(digits, kDigit));
  yylval = intValue(NumberOfToken());
  return INTEGER_VALUE;
}

// 0 for a quote that no other closes: it is an illegal character, and what follows is scanned anew.
int32_t ScanString() {
  const char* limit = std::min(input.end, input.cursor + kLookAhead);
  int32_t lines = 0;
  const char* c = input.cursor + 1;
  for (;; ++c) {
    while (!Is(*c, kStringEnd)) ++c;
    if (c >= limit || *c == '"') break;
    lines += *c == '\n';
    if (*c == '\\' && c + 1 < limit) lines += *++c == '\n';
  }
  if (c >= limit) {
    if (static_cast<std::size_t>(input.end - input.cursor) > kTokenLimit + 1) TokenTooLong();
    AcceptIllegalCharacter();
    return 0;
  }
  Accept(c + 1);
  yylineno += lines;
  yylval = stringValue(1, yytext, yyleng);
  return STRING_VALUE;
}

int32_t AcceptParenthesis(int32_t token) {
  Accept(input.cursor + 1);
  return token;
}

// One token, or 0 for whatever the parser does not see.
int32_t ScanOne() {
  const char first = *input.cursor;
  switch (first) {
    case '(':
      return AcceptParenthesis(LPAREN);
    case ')':
      return AcceptParenthesis(RPAREN);
    case ';':
      return ScanSemicolon();
    case ':':
      return ScanColon();
    case '"':
      return ScanString();
    default:
      if (Is(first, kLetter)) return ScanIdentifier();
      if (first == '-' || Is(first, kDigit)) return ScanNumber();
      AcceptIllegalCharacter();
      return 0;
  }
}

}  // namespace

// Blanks, tabs and newlines, of which there are more than of anything else.
static void SkipBlanks() {
  const char* c = input.cursor;
  while (static_cast<unsigned char>(*c) <= ' ') {
    if (*c == '\n') {
      ++yylineno;
      ++c;
    } else if (*c == '\t') {
      ++c;
    } else if (*c == ' ') {
      // Values are aligned in columns, so blanks come in runs.
      while (std::memcmp(c, kBlanks, sizeof kBlanks - 1) == 0) c += sizeof kBlanks - 1;
      while (*c == ' ') ++c;
    } else {
      break;
    }
  }
  input.cursor = c;
}

int32_t yylex() {
  for (;;) {
    SkipBlanks();
    while (static_cast<std::size_t>(input.end - input.cursor) < kLookAhead && !input.at_end) {
      Refill();
      SkipBlanks();
    }
    if (input.cursor == input.end) {
      yytext = "";
      yyleng = 0;
      return END_OF_INPUT;
    }
    if (const int32_t token = ScanOne()) return token;
  }
}

void yyrestart() {
  input.cursor = input.end = buffer;
  buffer[0] = '\0';
  input.at_end = false;
  input.bare_dashes_end = nullptr;
  std::clearerr(stdin);
}

void yyerror(const char* message) {
  // A message ends at the first NUL byte of the token, as all texts do.
  std::fprintf(stderr, "\n*** %d: %s at %.*s\n", static_cast<int>(yylineno), message,
               static_cast<int>(yyleng), yytext);
}

void ResetScanner() {
  yyrestart();
  yytext = "";
  yyleng = 0;
  yylineno = 1;
  yylval = nullptr;
  texts_are_repeated = false;
}
