// SPDX-License-Identifier: MIT
#include "gil/scanner.h"

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "gil/position.h"
#include "gil/tokens.h"
#include "gil/version.h"
#include "gil/words.h"
#include "unit/support/session_fixture.h"

using std::string_literals::operator""s;

using Tokens = std::vector<std::pair<int32_t, std::string>>;

class ScannerTest : public SessionFixture {
 protected:
  // The tokens of `input` with their texts; how the scan ended is in `outcome`.
  Tokens Scan(std::string_view input) {
    Tokens tokens;
    outcome = Run(
        [&tokens] {
          while (const int32_t token = yylex())
            tokens.emplace_back(token, std::string(yytext, yyleng));
        },
        input);
    return tokens;
  }

  // What the only token of `input` carries.
  const Value* Carried(std::string_view input) {
    EXPECT_EQ(Scan(input).size(), 1U) << input;
    return yylval;
  }

  void ExpectTooLong(std::string_view input) {
    Scan(input);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "Input string too long, limit 10000\n");
    EXPECT_EQ(outcome.err, "");
  }

  Outcome outcome;
};

static std::string Repeat(std::size_t count, char c) { return std::string(count, c); }

static std::string Quoted(std::size_t length) {
  return std::string("\"").append(length - 2, 'a').append("\"");
}

TEST_F(ScannerTest, EmptyInputHasNoToken) {
  EXPECT_EQ(Scan(""), Tokens());
  EXPECT_EQ(yyleng, 0U);
}

TEST_F(ScannerTest, EndOfInputIsGivenAgainAndAgain) {
  Scan("(");
  EXPECT_EQ(yylex(), END_OF_INPUT);
  EXPECT_EQ(yylex(), END_OF_INPUT);
}

TEST_F(ScannerTest, Parentheses) {
  EXPECT_EQ(Scan("()("), (Tokens{{LPAREN, "("}, {RPAREN, ")"}, {LPAREN, "("}}));
}

TEST_F(ScannerTest, BlanksTabsAndNewlinesAreSkipped) {
  EXPECT_EQ(Scan(" \t\n ( \n\n\t)\n"), (Tokens{{LPAREN, "("}, {RPAREN, ")"}}));
  EXPECT_EQ(outcome.err, "");
}

TEST_F(ScannerTest, TokensBehindLongRunsOfBlanksAreWhole) {
  // Around the size of the scanner's buffer and twice that, byte by byte.
  for (const std::size_t size : {32U * 1024U, 64U * 1024U}) {
    for (std::size_t blanks = size - 20; blanks < size + 20; ++blanks) {
      EXPECT_EQ(Scan("(" + Repeat(blanks, ' ') + "longmembername)"),
                (Tokens{{LPAREN, "("}, {IDENTIFIER, "longmembername"}, {RPAREN, ")"}}))
          << blanks;
    }
  }
}

TEST_F(ScannerTest, NumberBehindMegabytesOfBlankLinesIsWhole) {
  EXPECT_EQ(Carried(Repeat(8U << 20, '\n') + "-5")->ival, -5);
  EXPECT_EQ(yylineno, (8 << 20) + 1);
  EXPECT_EQ(outcome.err, "");
}

// Headers and comments

TEST_F(ScannerTest, VersionHeaderTakesTheRestOfItsLine) {
  EXPECT_EQ(Scan(";GIL-3 any text\n("),
            (Tokens{{GIL_VERSION_3, ";GIL-3 any text"}, {LPAREN, "("}}));
}

TEST_F(ScannerTest, VersionHeaderNeedsNothingBehindIt) {
  EXPECT_EQ(Scan(";GIL-3"), (Tokens{{GIL_VERSION_3, ";GIL-3"}}));
  EXPECT_EQ(Scan(";GIL-31x"), (Tokens{{GIL_VERSION_3, ";GIL-31x"}}));
}

TEST_F(ScannerTest, VersionHeaderIsOneOnAnyLine) {
  EXPECT_EQ(Scan("(\n ;GIL-3\n"), (Tokens{{LPAREN, "("}, {GIL_VERSION_3, ";GIL-3"}}));
}

TEST_F(ScannerTest, HeaderWithABlankInFrontIsAComment) { EXPECT_EQ(Scan("; GIL-3\n"), Tokens()); }

TEST_F(ScannerTest, HeaderOfAnotherVersionIsAComment) {
  EXPECT_EQ(Scan(";GIL-4\n;gil-3\n;GIL-\n"), Tokens());
  EXPECT_EQ(outcome.err, "");
}

TEST_F(ScannerTest, CommentEndsWithItsLine) {
  EXPECT_EQ(Scan("( ; ) \"\n) ;"), (Tokens{{LPAREN, "("}, {RPAREN, ")"}}));
}

TEST_F(ScannerTest, VersionTwoEndsTheRun) {
  EXPECT_EQ(Scan("(\n;GIL-2 any text\n)"), (Tokens{{LPAREN, "("}}));
  EXPECT_EQ(outcome.status, -1);
  EXPECT_EQ(outcome.err,
            "Error: GIL file is GIL version 2\n"
            "    Import GIL and Pandrel only handle GIL version 3\n"
            "    Read the GIL file into Devguide version 3 and resave to be able to convert it\n");
  EXPECT_EQ(GetVersion(), 2);
}

// Keywords

TEST_F(ScannerTest, EveryKeywordGivesItsToken) {
  for (const Word* keyword = kFirstWord; keyword <= kLastWord; ++keyword) {
    if (!keyword->text || keyword->token == CALL_FUNCTION) continue;
    const std::string text = ":"s + keyword->text;
    EXPECT_EQ(Scan(text), (Tokens{{keyword->token, text}}));
    EXPECT_EQ(outcome.err, "") << text;
  }
}

TEST_F(ScannerTest, KeywordWithACapitalIsNeverFound) {
  EXPECT_EQ(Scan(":CallFunction"), (Tokens{{IDENTIFIER, "CallFunction"}}));
  EXPECT_EQ(outcome.err, "Illegal character: :\n");
  EXPECT_EQ(Scan(":Name"), (Tokens{{IDENTIFIER, "Name"}}));
  EXPECT_EQ(outcome.err, "Illegal character: :\n");
}

TEST_F(ScannerTest, KeywordEndsBeforeADigit) {
  EXPECT_EQ(Scan(":name2"), (Tokens{{NAME, ":name"}, {INTEGER_VALUE, "2"}}));
}

TEST_F(ScannerTest, KeywordEndsBeforeACapital) {
  EXPECT_EQ(Scan(":nameX"), (Tokens{{NAME, ":name"}, {IDENTIFIER, "X"}}));
}

TEST_F(ScannerTest, UnknownKeywordIsReportedAndDropped) {
  EXPECT_EQ(Scan("(\n:nosuch )"), (Tokens{{LPAREN, "("}, {RPAREN, ")"}}));
  EXPECT_EQ(outcome.err, "\n*** 2: Illegal keyword at :nosuch\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, std::nullopt);
}

TEST_F(ScannerTest, KeywordIsComparedWhole) {
  EXPECT_EQ(Scan(":nam :name- :na_me :-"), Tokens());
  EXPECT_EQ(outcome.err,
            "\n*** 1: Illegal keyword at :nam\n\n*** 1: Illegal keyword at :name-\n"
            "\n*** 1: Illegal keyword at :na_me\n\n*** 1: Illegal keyword at :-\n");
}

TEST_F(ScannerTest, ColonAloneIsIllegal) {
  EXPECT_EQ(Scan(": name"), (Tokens{{IDENTIFIER, "name"}}));
  EXPECT_EQ(outcome.err, "Illegal character: :\n");
}

// Identifiers

TEST_F(ScannerTest, IdentifierHoldsLettersDigitsUnderscoresAndDots) {
  EXPECT_EQ(Scan("abc.def_1 A9 z..__"),
            (Tokens{{IDENTIFIER, "abc.def_1"}, {IDENTIFIER, "A9"}, {IDENTIFIER, "z..__"}}));
}

TEST_F(ScannerTest, IdentifierStartsWithALetter) {
  EXPECT_EQ(Scan("_a .b"), (Tokens{{IDENTIFIER, "a"}, {IDENTIFIER, "b"}}));
  EXPECT_EQ(outcome.err, "Illegal character: _\nIllegal character: .\n");
}

TEST_F(ScannerTest, DashSplitsIdentifiers) {
  EXPECT_EQ(Scan("a-b"), (Tokens{{IDENTIFIER, "a"}, {IDENTIFIER, "b"}}));
  EXPECT_EQ(outcome.err, "Illegal character: -\n");
}

TEST_F(ScannerTest, IdentifierCarriesAString) {
  const Value* value = Carried("window1");
  EXPECT_EQ(value->kind, kStringValue);
  EXPECT_STREQ(value->sval, "window1");
}

TEST_F(ScannerTest, NilAndTAreWordsOfTheirOwn) {
  EXPECT_EQ(Scan("nil t"), (Tokens{{NIL, "nil"}, {T, "t"}}));
}

TEST_F(ScannerTest, NilAndTAreExact) {
  EXPECT_EQ(Scan("NIL T nil1 t. tt"), (Tokens{{IDENTIFIER, "NIL"},
                                              {IDENTIFIER, "T"},
                                              {IDENTIFIER, "nil1"},
                                              {IDENTIFIER, "t."},
                                              {IDENTIFIER, "tt"}}));
}

// Integers

struct IntegerCase {
  const char* text;
  int32_t number;
};

TEST_F(ScannerTest, IntegerCarriesItsNumber) {
  for (const auto& [text, number] : {IntegerCase{"0", 0},
                                     {"42", 42},
                                     {"-5", -5},
                                     {"007", 7},
                                     {"-0", 0},
                                     {"--5", 0},
                                     {"---12", 0},
                                     {"999999999", 999999999},
                                     {"2147483647", 2147483647},
                                     {"-2147483648", INT32_MIN},
                                     {"0000000000000000012", 12}}) {
    const Value* value = Carried(text);
    EXPECT_EQ(value->kind, kIntegerValue) << text;
    EXPECT_EQ(value->ival, number) << text;
    EXPECT_EQ(value->sval, nullptr) << text;
  }
}

TEST_F(ScannerTest, IntegersBeyondTheirRangeKeepTheLow32BitsOfTheNumberRead) {
  for (const auto& [text, number] : {IntegerCase{"2147483648", INT32_MIN},
                                     {"4294967295", -1},
                                     {"4294967296", 0},
                                     {"4294967301", 5},
                                     {"-2147483649", INT32_MAX},
                                     {"-4294967301", -5},
                                     {"9223372036854775807", -1},
                                     // A number read stops at 64 bits.
                                     {"12345678901234567890", -1},
                                     {"99999999999999999999", -1},
                                     {"-99999999999999999999", 0}}) {
    EXPECT_EQ(Carried(text)->ival, number) << text;
  }
}

TEST_F(ScannerTest, IntegerEndsBeforeWhatIsNoDigit) {
  EXPECT_EQ(Scan("5a 0x10 7-8"), (Tokens{{INTEGER_VALUE, "5"},
                                         {IDENTIFIER, "a"},
                                         {INTEGER_VALUE, "0"},
                                         {IDENTIFIER, "x10"},
                                         {INTEGER_VALUE, "7"},
                                         {INTEGER_VALUE, "-8"}}));
}

TEST_F(ScannerTest, PlusSignIsIllegal) {
  EXPECT_EQ(Scan("+5"), (Tokens{{INTEGER_VALUE, "5"}}));
  EXPECT_EQ(outcome.err, "Illegal character: +\n");
}

TEST_F(ScannerTest, DashesWithoutADigitAreIllegal) {
  EXPECT_EQ(Scan("-- 5 -"), (Tokens{{INTEGER_VALUE, "5"}}));
  EXPECT_EQ(outcome.err, "Illegal character: -\nIllegal character: -\nIllegal character: -\n");
}

TEST_F(ScannerTest, RunOfDashesIsNoTokenHoweverLong) {
  for (const std::size_t count : {10000U, 10001U, 10002U, 32768U, 100000U}) {
    EXPECT_EQ(Scan("(" + Repeat(count, '-') + ")"), (Tokens{{LPAREN, "("}, {RPAREN, ")"}}));
    EXPECT_EQ(outcome.status, std::nullopt);
    EXPECT_EQ(outcome.out, "");
    std::string reports;
    for (std::size_t i = 0; i < count; ++i) reports += "Illegal character: -\n";
    EXPECT_TRUE(outcome.err == reports) << count;
  }
}

TEST_F(ScannerTest, RunOfDashesAtTheEndOfTheInputIsNoToken) {
  EXPECT_EQ(Scan(Repeat(10001, '-')), Tokens());
  EXPECT_EQ(outcome.status, std::nullopt);
  EXPECT_EQ(outcome.err.size(), 10001 * std::string("Illegal character: -\n").size());
}

TEST_F(ScannerTest, DigitMakesARunOfDashesATokenWithALimit) {
  EXPECT_EQ(Carried(Repeat(9999, '-') + "5")->ival, 0);
  EXPECT_EQ(outcome.err, "");
  ExpectTooLong(Repeat(10000, '-') + "5");
  ExpectTooLong(Repeat(10001, '-') + "5");
  ExpectTooLong(Repeat(100000, '-') + "5");
}

// Strings

TEST_F(ScannerTest, StringKeepsItsQuotes) {
  const Value* value = Carried("\"Save as...\"");
  EXPECT_EQ(value->kind, kStringValue);
  EXPECT_STREQ(value->sval, "\"Save as...\"");
}

TEST_F(ScannerTest, EmptyStringIsTwoQuotes) { EXPECT_STREQ(Carried("\"\"")->sval, "\"\""); }

TEST_F(ScannerTest, EscapedQuoteIsPartOfTheString) {
  EXPECT_STREQ(Carried(R"("a\"b")")->sval, R"("a\"b")");
}

TEST_F(ScannerTest, EscapedBackslashDoesNotEscapeTheQuote) {
  EXPECT_EQ(Scan(R"("a\\"b)"), (Tokens{{STRING_VALUE, R"("a\\")"}, {IDENTIFIER, "b"}}));
}

TEST_F(ScannerTest, StringMayHoldNewlinesAndSemicolons) {
  EXPECT_EQ(Scan("\"a;\n:b\\\n)\""), (Tokens{{STRING_VALUE, "\"a;\n:b\\\n)\""}}));
}

TEST_F(ScannerTest, UnterminatedStringIsAnIllegalQuoteAndOrdinaryTokens) {
  EXPECT_EQ(Scan("\"abc :name\n5"),
            (Tokens{{IDENTIFIER, "abc"}, {NAME, ":name"}, {INTEGER_VALUE, "5"}}));
  EXPECT_EQ(outcome.err, "Illegal character: \"\n");
}

TEST_F(ScannerTest, StringWhoseLastQuoteIsEscapedIsUnterminated) {
  EXPECT_EQ(Scan(R"("a\")"), (Tokens{{IDENTIFIER, "a"}}));
  EXPECT_EQ(outcome.err, "Illegal character: \"\nIllegal character: \\\nIllegal character: \"\n");
}

TEST_F(ScannerTest, QuoteAndBackslashAtTheEndAreUnterminated) {
  EXPECT_EQ(Scan("\"\\"), Tokens());
  EXPECT_EQ(outcome.err, "Illegal character: \"\nIllegal character: \\\n");
}

TEST_F(ScannerTest, TextEndsAtItsFirstNul) {
  EXPECT_STREQ(Carried("\"ab\0cd\""s)->sval, "\"ab");
  EXPECT_EQ(outcome.err, "");
}

TEST_F(ScannerTest, StringValueKeywordRepeatsTheValueBefore) {
  EXPECT_EQ(Scan("\"text\" :string-value").back(), std::make_pair(+STRING_VALUE, ":string-value"s));
  EXPECT_EQ(yylval->kind, kStringValue);
  EXPECT_STREQ(yylval->sval, "\"text\"");
}

TEST_F(ScannerTest, StringValueKeywordSharesTheTextInARecordOfItsOwn) {
  const Value* first = Carried("\"text\"");
  const Value* again = Carried(":string-value");
  EXPECT_NE(again, first);
  EXPECT_EQ(again->sval, first->sval);
}

TEST_F(ScannerTest, StringValueKeywordRepeatsANumber) {
  const Value* first = Carried("12");
  const Value* again = Carried(":string-value");
  EXPECT_NE(again, first);
  EXPECT_EQ(again->kind, kIntegerValue);
  EXPECT_EQ(again->ival, 12);
}

TEST_F(ScannerTest, StringValueKeywordAtTheStartHasNoText) {
  const Value* value = Carried(":string-value");
  EXPECT_EQ(value->kind, kStringValue);
  EXPECT_EQ(value->sval, nullptr);
}

// Illegal characters

TEST_F(ScannerTest, CarriageReturnsAreReportedLineByLine) {
  EXPECT_EQ(Scan("(\r\n)\r\n"), (Tokens{{LPAREN, "("}, {RPAREN, ")"}}));
  EXPECT_EQ(outcome.err, "Illegal character: \r\nIllegal character: \r\n");
  EXPECT_EQ(yylineno, 3);
}

TEST_F(ScannerTest, IllegalCharactersAreReportedAndSkipped) {
  EXPECT_EQ(Scan("(\f\v#'\x7f\xe4)"), (Tokens{{LPAREN, "("}, {RPAREN, ")"}}));
  EXPECT_EQ(outcome.err,
            "Illegal character: \f\nIllegal character: \v\nIllegal character: #\n"
            "Illegal character: '\nIllegal character: \x7f\nIllegal character: \xe4\n");
  EXPECT_EQ(outcome.out, "");
}

TEST_F(ScannerTest, NulIsAnIllegalCharacterLikeAnyOther) {
  EXPECT_EQ(Scan("(\0)"s), (Tokens{{LPAREN, "("}, {RPAREN, ")"}}));
  EXPECT_EQ(outcome.err, "Illegal character: \0\n"s);
}

// Line numbers

TEST_F(ScannerTest, LinesCountFromOne) {
  EXPECT_EQ(yylineno, 1);
  Scan("()");
  EXPECT_EQ(yylineno, 1);
}

TEST_F(ScannerTest, NewlinesCountWhereverTheyStand) {
  Scan("\n;comment\n\"a\nb\\\nc\"\n(");
  EXPECT_EQ(yylineno, 6);
}

TEST_F(ScannerTest, LinesGoOnInTheNextFile) {
  Scan("(\n\n");
  Scan("\n)");
  EXPECT_EQ(yylineno, 4);
}

TEST_F(ScannerTest, LinesOfAnUnterminatedStringCountOnce) {
  Scan("\"a\nb\n:nosuch");
  EXPECT_EQ(outcome.err, "Illegal character: \"\n\n*** 3: Illegal keyword at :nosuch\n");
}

TEST_F(ScannerTest, ResetStartsTheLinesAnew) {
  Scan("(\n\n");
  ResetPosition();
  EXPECT_EQ(yylineno, 1);
  EXPECT_EQ(yyleng, 0U);
  EXPECT_STREQ(yytext, "");
}

// The limit

TEST_F(ScannerTest, TokensUpToTheLimitAreRead) {
  for (const std::string& text :
       {Repeat(10000, 'a'), Repeat(10000, '5'), Quoted(10000), ";GIL-3" + Repeat(9994, ' ')}) {
    EXPECT_EQ(Scan(text).size(), 1U) << text.substr(0, 10);
    EXPECT_EQ(yyleng, 0U);
    EXPECT_EQ(outcome.status, std::nullopt) << text.substr(0, 10);
  }
}

TEST_F(ScannerTest, LongestTokensAreReadWhereverTheBufferEnds) {
  // The scanner holds 32 KB of the file: of some of these tokens only a byte or two are missing.
  for (std::size_t held = 9990; held <= 10010; ++held) {
    const std::string blanks = Repeat(std::size_t{32} * 1024 - held, ' ');
    const std::string text = Repeat(10000, 'a');
    EXPECT_EQ(Scan(blanks + text + " (").size(), 2U) << held;
    EXPECT_EQ(Scan(blanks + Quoted(10000) + " (").size(), 2U) << held;
    ExpectTooLong(blanks + text + "a");
  }
}

TEST_F(ScannerTest, TokensOverTheLimitEndTheRun) {
  ExpectTooLong(Repeat(10001, 'a'));
  ExpectTooLong(Repeat(10001, '5'));
  ExpectTooLong("-" + Repeat(10000, '5'));
  ExpectTooLong(Quoted(10001));
  ExpectTooLong(";" + Repeat(10000, 'c'));
}

TEST_F(ScannerTest, LimitComesBeforeWhatTheTokenDoes) {
  ExpectTooLong(":" + Repeat(10000, 'a'));
  ExpectTooLong(";GIL-2" + Repeat(9995, ' '));
  EXPECT_EQ(GetVersion(), 0);
}

TEST_F(ScannerTest, LongestCommentIsSkipped) {
  EXPECT_EQ(Scan(";" + Repeat(9999, 'c') + "\n("), (Tokens{{LPAREN, "("}}));
}

TEST_F(ScannerTest, LongestUnknownKeywordIsReported) {
  const std::string text = ":" + Repeat(9999, 'a');
  EXPECT_EQ(Scan(text), Tokens());
  EXPECT_EQ(outcome.err, "\n*** 1: Illegal keyword at "s.append(text).append("\n"));
}

TEST_F(ScannerTest, UnterminatedStringOverTheLimitEndsTheRun) {
  ExpectTooLong("\"" + Repeat(10001, ')'));
  ExpectTooLong("\"" + Repeat(10001, '\n'));
}

TEST_F(ScannerTest, UnterminatedStringUpToTheLimitIsAnIllegalQuote) {
  EXPECT_EQ(Scan("\"" + Repeat(10000, ')')), Tokens(10000, {RPAREN, ")"}));
  EXPECT_EQ(outcome.err, "Illegal character: \"\n");
  EXPECT_EQ(outcome.status, std::nullopt);
}

TEST_F(ScannerTest, QuoteBehindTheLimitDoesNotTerminateAString) {
  ExpectTooLong(std::string("\"").append(20000, ' ').append("\""));
}

// Input

TEST_F(ScannerTest, InputOfAnySizeIsReadWithoutASeam) {
  std::string input;
  for (int i = 0; i < 30000; ++i) input += "name.17 ";
  EXPECT_EQ(Scan(input), Tokens(30000, {IDENTIFIER, "name.17"}));
  EXPECT_EQ(outcome.err, "");
}

TEST_F(ScannerTest, LongStringsAreReadWithoutASeam) {
  std::string input;
  for (int i = 0; i < 30; ++i) input += Quoted(9990) + "\n";
  EXPECT_EQ(Scan(input), Tokens(30, {STRING_VALUE, Quoted(9990)}));
  EXPECT_EQ(yylineno, 31);
}

TEST_F(ScannerTest, RestartForgetsWhatWasReadAhead) {
  SetInput("( ( (");
  EXPECT_EQ(yylex(), LPAREN);
  EXPECT_EQ(Scan(")"), (Tokens{{RPAREN, ")"}}));
}

TEST_F(ScannerTest, DirectoryReadsAsEmpty) {
  ASSERT_NE(std::freopen("/", "r", stdin), nullptr);
  yyrestart();
  EXPECT_EQ(yylex(), END_OF_INPUT);
}

// Messages

TEST_F(ScannerTest, ErrorNamesLineMessageAndToken) {
  SetInput("\n\n \"some text\" (");
  yylex();
  const Outcome reported = Run([] { yyerror("Something"); });
  EXPECT_EQ(reported.err, "\n*** 3: Something at \"some text\"\n");
  EXPECT_EQ(reported.out, "");
  EXPECT_EQ(reported.status, std::nullopt);
}

TEST_F(ScannerTest, ErrorAtTheEndOfInputHasNoToken) {
  Scan("(\n");
  EXPECT_EQ(Run([] { yyerror("Something"); }).err, "\n*** 2: Something at \n");
}

TEST_F(ScannerTest, TokenInAMessageEndsAtItsFirstNul) {
  SetInput("\"ab\0cd\""s);
  yylex();
  EXPECT_EQ(Run([] { yyerror("Something"); }).err, "\n*** 1: Something at \"ab\n");
}

TEST_F(ScannerTest, ValueWithoutMemoryEndsTheRun) {
  for (const char* input : {"abc", "\"abc\"", "1234", ":string-value"}) {
    SetInput(input);
    outcome = RunOutOfMemory(0, [] { yylex(); });
    EXPECT_EQ(outcome.status, -1) << input;
    EXPECT_EQ(outcome.err, "\n*** 1: Out of memory allocating a Value at "s + input + "\n");
  }
}

TEST_F(ScannerTest, TextOfAValueWithoutMemoryEndsTheRun) {
  SetInput("abc");
  outcome = RunOutOfMemory(1, [] { yylex(); });
  EXPECT_EQ(outcome.status, -1);
  EXPECT_EQ(outcome.err, "\n*** 1: Out of memory allocating a Value at abc\n");
}
