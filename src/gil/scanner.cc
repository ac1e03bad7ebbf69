// SPDX-License-Identifier: MIT
#include "gil/scanner.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

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
// characters without NUL need not test for the end. Behind it is room for a look at a word of
// blanks or a keyword.
static_assert(kIoBufferMargin > kKeywordRoom && kIoBufferMargin > sizeof(uint64_t));
constexpr char* buffer = io_buffer;

struct Input {
  const char* cursor = "";
  const char* end = cursor;
  // From here on a token may reach beyond what is in the buffer; at the end of the input the end.
  const char* refill_at = cursor;
  bool at_end = false;
  // Behind the last "-" of a run that no digit follows. Known once per run, so that a file of
  // dashes is not searched again from each of them.
  const char* bare_dashes_end = nullptr;
};

constinit Input input;

enum CharClass : uint8_t {
  kLetter = 1,      // A-Z a-z
  kDigit = 2,       // 0-9
  kIdentifier = 4,  // what may follow the first letter of an identifier
  kKeyword = 8,     // what may follow the colon of a keyword
};

constexpr std::array<uint8_t, 256> BuildClasses() {
  std::array<uint8_t, 256> classes{};
  for (int c = 'a'; c <= 'z'; ++c) classes[c] = kLetter | kIdentifier | kKeyword;
  for (int c = 'A'; c <= 'Z'; ++c) classes[c] = kLetter | kIdentifier;
  for (int c = '0'; c <= '9'; ++c) classes[c] = kDigit | kIdentifier;
  classes['_'] = kIdentifier | kKeyword;
  classes['.'] = kIdentifier;
  classes['-'] = kKeyword;
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
  input.refill_at = input.at_end ? end : end - kLookAhead + 1;
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

// 0, as from all scans of what the parser does not see.
[[gnu::noinline]] int32_t ScanIllegalCharacter() {
  Accept(input.cursor + 1);
  std::fprintf(stderr, "Illegal character: %c\n", *yytext);
  return 0;
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
[[gnu::noinline]] int32_t ScanSemicolon() {
  Accept(LineEnd());
  if (yyleng >= 6 && std::memcmp(yytext, ";GIL-2", 6) == 0) {
    SetVersion(2);  // ends the run
    return GIL_VERSION_2;
  }
  if (yyleng >= 6 && std::memcmp(yytext, ";GIL-3", 6) == 0) return GIL_VERSION_3;
  return 0;
}

// The keyword string-value delivers a string token that no text of the file backs: the same kind,
// number and shared text as the value before, as a Value of its own.
[[gnu::noinline]] int32_t RepeatValue() {
  texts_are_repeated = true;
  const Value* previous = yylval;
  Value* value = createValue(previous ? previous->kind : static_cast<int32_t>(kStringValue));
  if (previous) {
    value->ival = previous->ival;
    value->sval = previous->sval;
  }
  yylval = value;
  return STRING_VALUE;
}

// By keyword, the rows of the two that came behind it last. The editor writes an object's
// attributes always in the same order, so one of them mostly comes again.
using Followers = std::array<uint8_t, 2>;
std::array<Followers, kLastToken - kFirstToken + 1> followers;
Followers* expected = followers.data();  // behind the last keyword

// Makes the keyword, which stands behind the colon at the cursor, the current token.
int32_t AcceptKeyword(const KeywordPattern& keyword) {
  yytext = input.cursor;
  yyleng = 1 + static_cast<std::size_t>(keyword.length);
  input.cursor += yyleng;
  expected = &followers[static_cast<std::size_t>(keyword.token - kFirstToken)];
  return keyword.token == STRING_VALUE ? RepeatValue() : keyword.token;
}

bool KeywordFollows(const KeywordPattern& keyword) {
  const char* text = input.cursor + 1;
  return StandsAt(keyword, text) && !Is(text[keyword.length], kKeyword);
}

// A colon that the keyword expected first does not follow. 0 for a keyword that the table lacks and
// for a colon that starts none.
[[gnu::noinline]] int32_t ScanOtherKeyword() {
  auto& [first, second] = *expected;
  std::swap(first, second);
  if (KeywordFollows(keyword_patterns[first])) return AcceptKeyword(keyword_patterns[first]);
  const char* text = input.cursor + 1;
  const char* text_end = SkipClass(text, kKeyword);
  if (text_end == text) return ScanIllegalCharacter();
  const Keyword* keyword = FindKeyword(text, static_cast<std::size_t>(text_end - text));
  if (!keyword) {
    Accept(text_end);
    yyerror("Illegal keyword");
    return 0;
  }
  first = static_cast<uint8_t>(keyword - keywords);
  return AcceptKeyword(keyword_patterns[first]);
}

int32_t ScanColon() {
  const KeywordPattern& keyword = keyword_patterns[expected->front()];
  return KeywordFollows(keyword) ? AcceptKeyword(keyword) : ScanOtherKeyword();
}

[[gnu::noinline]] int32_t ScanIdentifier() {
  Accept(SkipClass(input.cursor, kIdentifier));
  if (yyleng == 1 && *yytext == 't') return T;
  if (yyleng == 3 && std::memcmp(yytext, "nil", 3) == 0) return NIL;
  yylval = stringValue(3, yytext, yyleng);
  return IDENTIFIER;
}

// A number that begins with a dash or is long. 0 for dashes that no digit follows: the first of
// them is an illegal character.
[[gnu::noinline]] int32_t ScanOtherNumber() {
  const char* digits = input.cursor;
  if (input.cursor < input.bare_dashes_end) return ScanIllegalCharacter();
  while (*digits == '-') ++digits;
  if (static_cast<std::size_t>(digits - input.cursor) > kTokenLimit) TokenTooLong();
  if (!Is(*digits, kDigit)) {
    input.bare_dashes_end = digits;
    return ScanIllegalCharacter();
  }
  Accept(SkipClass(digits, kDigit));
  // Converts as atoi does: a second "-" ends the number, which is then 0.
  yylval = intValue(static_cast<int32_t>(std::strtol(yytext, nullptr, 10)));
  return INTEGER_VALUE;
}

[[gnu::noinline]] int32_t ScanNumber() {
  constexpr std::ptrdiff_t kSafeDigits = 9;
  const char* c = input.cursor;
  int32_t number = 0;
  for (; Is(*c, kDigit) && c - input.cursor < kSafeDigits; ++c) number = number * 10 + (*c - '0');
  if (c == input.cursor || Is(*c, kDigit)) return ScanOtherNumber();
  Accept(c);
  yylval = intValue(number);
  return INTEGER_VALUE;
}

// The first `wanted` from `from` on; `limit` when none stands before that.
const char* FindBefore(const char* limit, const char* from, char wanted) {
  if (from >= limit) return limit;
  const void* found = std::memchr(from, wanted, static_cast<std::size_t>(limit - from));
  return found ? static_cast<const char*>(found) : limit;
}

// The quote that ends the string at the cursor; `limit` when none stands before that.
const char* ClosingQuote(const char* limit) {
  const char* c = input.cursor + 1;
  const char* quote = FindBefore(limit, c, '"');
  while (quote != limit) {
    const char* backslash = FindBefore(quote, c, '\\');
    if (backslash == quote) break;
    c = backslash + 2;
    if (c > quote) quote = FindBefore(limit, c, '"');
  }
  return quote;
}

// 0 for a quote that no other closes: it is an illegal character, and what follows is scanned anew.
[[gnu::noinline]] int32_t ScanString() {
  const char* limit = std::min(input.end, input.cursor + kLookAhead);
  const char* quote = ClosingQuote(limit);
  if (quote == limit) {
    if (static_cast<std::size_t>(input.end - input.cursor) > kTokenLimit + 1) TokenTooLong();
    return ScanIllegalCharacter();
  }
  Accept(quote + 1);
  for (const char* c = yytext; (c = FindBefore(quote, c, '\n')) != quote; ++c) ++yylineno;
  yylval = stringValue(1, yytext, yyleng);
  return STRING_VALUE;
}

int32_t AcceptParenthesis(int32_t token) {
  Accept(input.cursor + 1);
  return token;
}

// One token, or 0 for whatever the parser does not see.
[[gnu::noinline]] int32_t ScanOne() {
  const char first = *input.cursor;
  if (first == ':') return ScanColon();
  switch (first) {
    case '(':
      return AcceptParenthesis(LPAREN);
    case ')':
      return AcceptParenthesis(RPAREN);
    case ';':
      return ScanSemicolon();
    case '"':
      return ScanString();
    default:
      if (Is(first, kLetter)) return ScanIdentifier();
      if (first == '-' || Is(first, kDigit)) return ScanNumber();
      return ScanIllegalCharacter();
  }
}

}  // namespace

// How many blanks stand at `text`, up to a word of them.
static std::size_t LeadingBlanks(const char* text) {
  constexpr uint64_t kBlanks = 0x2020202020202020;
  uint64_t word = 0;
  std::memcpy(&word, text, sizeof word);
  word ^= kBlanks;
  const int zeros =
      std::endian::native == std::endian::little ? std::countr_zero(word) : std::countl_zero(word);
  return static_cast<std::size_t>(zeros) / 8;
}

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
      std::size_t blanks = 0;
      do {
        blanks = LeadingBlanks(c);
        c += blanks;
      } while (blanks == sizeof(uint64_t));
    } else {
      break;
    }
  }
  input.cursor = c;
}

// Makes sure that the next token is in the buffer as a whole; false at the end of the input.
[[gnu::noinline]] static bool FetchToken() {
  while (input.cursor >= input.refill_at && !input.at_end) {
    Refill();
    SkipBlanks();
  }
  return input.cursor < input.end;
}

int32_t yylex() {
  for (;;) {
    SkipBlanks();
    if (input.cursor >= input.refill_at && !FetchToken()) {
      yytext = "";
      yyleng = 0;
      return END_OF_INPUT;
    }
    if (const int32_t token = ScanOne()) return token;
  }
}

void yyrestart() {
  input = Input();
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
