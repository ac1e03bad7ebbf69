// SPDX-License-Identifier: MIT
#include "port/page_text.h"

#include <gtest/gtest.h>

#include <string>

namespace port {

TEST(PageTextTest, KeepsUtf8) {
  EXPECT_EQ(PageText("Gr\u00f6\u00dfe \u20ac \U0001F600"), "Gr\u00f6\u00dfe \u20ac \U0001F600");
}

TEST(PageTextTest, ReadsAnythingElseAsLatin1) {
  EXPECT_EQ(PageText("Gr\xF6\xDF"
                     "e"),
            "Gr\u00f6\u00dfe");
}

TEST(PageTextTest, ReadsTheWholeTextAsLatin1WhenPartIsNotUtf8) {
  EXPECT_EQ(PageText("\xC3\xA9 \xE9"), "\u00c3\u00a9 \u00e9");
}

TEST(PageTextTest, TakesNoUtf8ThatIsNotInItsShortestForm) {
  EXPECT_EQ(PageText("\xC0\xAF"), "\u00c0\u00af");                      // "/" in two bytes
  EXPECT_EQ(PageText("\xED\xA0\xB0"), "\u00ed\u00a0\u00b0");            // a surrogate
  EXPECT_EQ(PageText("\xF5\xA0\xA0\xA0"), "\u00f5\u00a0\u00a0\u00a0");  // beyond Unicode
  EXPECT_EQ(PageText("\xE2\xA2"), "\u00e2\u00a2");                      // cut short
}

TEST(PageTextTest, ShowsControlCharacters) {
  EXPECT_EQ(PageText(std::string("a\0\x1B\x7F", 4)), "a\u2400\u241b\u2421");
  EXPECT_EQ(PageText("\r"), "\u240d");
  EXPECT_EQ(PageText("a\tb\nc"), "a\tb\nc");
}

TEST(PageTextTest, ReplacesWhatPagesForbid) {
  EXPECT_EQ(PageText("\x85"), "\uFFFD");              // a control character of Latin-1
  EXPECT_EQ(PageText("\xC2\x85"), "\uFFFD");          // the same in UTF-8
  EXPECT_EQ(PageText("\xEF\xBF\xBF"), "\uFFFD");      // no character
  EXPECT_EQ(PageText("\xEF\xB7\x90"), "\uFFFD");      // neither
  EXPECT_EQ(PageText("\xF0\x9F\xBF\xBE"), "\uFFFD");  // nor at the end of another plane
}

TEST(EscapeMarkupTest, EscapesWhatEndsElementsAndAttributes) {
  EXPECT_EQ(EscapeMarkup("</script> & \"a\" 'b'"),
            "&lt;/script&gt; &amp; &quot;a&quot; &#39;b&#39;");
}

}  // namespace port
