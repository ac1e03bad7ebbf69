// SPDX-License-Identifier: MIT
#include "port/code.h"

#include <gtest/gtest.h>

using namespace port;

TEST(PlaceOfCode, TakesCallsOfTheLibraryAsTheyAre) {
  EXPECT_EQ(PlaceOfCode("exit(0);"), CodePlace::kLive);
  EXPECT_EQ(PlaceOfCode("\texit(0);\t/* do it */"), CodePlace::kLive);
  EXPECT_EQ(PlaceOfCode("puts(\"You \\\"win\\\"\"); exit(1);"), CodePlace::kLive);
}

TEST(PlaceOfCode, SetsAsideWhatMayNotCompile) {
  EXPECT_EQ(PlaceOfCode("exit(status);"), CodePlace::kDead);
  EXPECT_EQ(PlaceOfCode("puts(0);"), CodePlace::kDead);
  EXPECT_EQ(PlaceOfCode("puts(\"a\")"), CodePlace::kDead);
  EXPECT_EQ(PlaceOfCode("xv_set(frame, 'x', \"/*\"); // it is\n{ f(); }"), CodePlace::kDead);
}

TEST(PlaceOfCode, KeepsInACommentWhatCouldEndItsBlock) {
  for (const char* code :
       {"#endif", "a();\n  # endif", "%:endif", "?\?=endif", "/* open", "it's", "\"open\n\"",
        "a(); \\\n b();", "a(); \\", "// /* warns", "/* a /* b */", "\f", "caf\xe9"}) {
    EXPECT_EQ(PlaceOfCode(code), CodePlace::kComment) << code;
  }
}

TEST(CommentLines, AreOnePerLineAndCannotEndTheComment) {
  EXPECT_EQ(CommentLines("a */\nb\n"), (std::vector<std::string>{"a * /", "b", ""}));
}
