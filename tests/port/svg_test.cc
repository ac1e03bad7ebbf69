// SPDX-License-Identifier: MIT
#include "port/svg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "port/bitmap.h"

namespace port {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

TEST(DrawingTest, WritesShapes) {
  Drawing drawing;
  drawing.Rect({1, 2, 30, -4}, "fill:#fff", 5);
  drawing.Path("M0 0h9", "stroke:#000");
  const std::string svg = drawing.Finish(100, 50, "A window");
  EXPECT_THAT(svg, StartsWith("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"101\" "
                              "height=\"51\" viewBox=\"-0.5 -0.5 101 51\" role=\"img\" "
                              "aria-label=\"A window\" "));
  EXPECT_THAT(svg, HasSubstr("<rect x=\"1\" y=\"2\" width=\"30\" height=\"0\" rx=\"5\" "
                             "style=\"fill:#fff\"/>\n"));
  EXPECT_THAT(svg, HasSubstr("<path d=\"M0 0h9\" style=\"stroke:#000\"/>\n"));
  EXPECT_THAT(svg, EndsWith("</svg>\n"));
}

TEST(DrawingTest, EscapesTextsTitlesAndStyles) {
  Drawing drawing;
  drawing.Open(3, 0, "a<b", "x\"y");
  drawing.Text(1, 2, "</svg>&");
  drawing.Close();
  EXPECT_THAT(drawing.Finish(1, 1, "\"'"), HasSubstr("aria-label=\"&quot;&#39;\""));
  EXPECT_THAT(drawing.Finish(1, 1, ""),
              HasSubstr("<g transform=\"translate(3 0)\" style=\"x&quot;y\"><title>a&lt;b</title>\n"
                        "<text x=\"1\" y=\"2\">&lt;/svg&gt;&amp;</text>\n</g>\n"));
}

TEST(DrawingTest, PutsLinesBelowEachOther) {
  Drawing drawing;
  drawing.Text(5, 20, "one\n\nthree", true);
  EXPECT_THAT(drawing.Finish(1, 1, ""),
              HasSubstr(">\n<text x=\"5\" y=\"20\" font-weight=\"bold\">one</text>\n"
                        "<text x=\"5\" y=\"50\" font-weight=\"bold\">three</text>\n</svg>"));
}

TEST(DrawingTest, DrawsTheDarkRunsOfABitmap) {
  Drawing drawing;
  drawing.Image(10, 20, {3, 2, {true, true, false, false, false, true}});
  EXPECT_THAT(drawing.Finish(1, 1, ""), HasSubstr("d=\"M10 20h2v1h-2zM12 21h1v1h-1z\""));
}

TEST(TextWidthTest, CountsTheWidestLineInLettersOfTheirWidths) {
  EXPECT_EQ(TextWidth(""), 0);
  EXPECT_EQ(TextWidth("aiM A"), 7 + 4 + 11 + 4 + 8);
  EXPECT_EQ(TextWidth("a\naaa\na"), 21);
  EXPECT_EQ(TextWidth("aa", true), 16);
  EXPECT_EQ(TextWidth("\u00e9"), 7);
}

TEST(FitTextTest, CutsWhereTheWidthEnds) {
  EXPECT_EQ(FitText("aaaa", 28), "aaaa");
  EXPECT_EQ(FitText("aaaa", 27), "aa\u2026");
  EXPECT_EQ(FitText("\u00e9\u00e9\u00e9", 20), "\u00e9\u2026");
  EXPECT_EQ(FitText("one\ntwo", 100), "one");
}

TEST(CssColorTest, TakesNamesOfX) {
  EXPECT_EQ(CssColor("Light Blue"), "lightblue");
  EXPECT_EQ(CssColor("bisque2"), "bisque");
  EXPECT_EQ(CssColor("gray50"), "rgb(50%,50%,50%)");
  EXPECT_EQ(CssColor("grey999"), "rgb(100%,100%,100%)");
}

TEST(CssColorTest, TakesHexadecimalColours) {
  EXPECT_EQ(CssColor("#f80"), "#f80");
  EXPECT_EQ(CssColor("#ff8800"), "#ff8800");
  EXPECT_EQ(CssColor("#ffff88880000"), "#ff8800");
  EXPECT_EQ(CssColor("#ff88001"), "");
  EXPECT_EQ(CssColor("#ggg"), "");
}

TEST(CssColorTest, KnowsTheColoursOfOpenLook) {
  EXPECT_EQ(CssColor("BG1"), "rgb(80%,80%,80%)");
  EXPECT_EQ(CssColor("Highlight"), "white");
}

TEST(CssColorTest, LetsNothingElseThrough) {
  EXPECT_EQ(CssColor(""), "");
  EXPECT_EQ(CssColor("red;background:url(x)"), "");
  EXPECT_EQ(CssColor("red\""), "");
  EXPECT_EQ(CssColor("url(x)"), "");
  EXPECT_EQ(CssColor("12"), "");
  EXPECT_EQ(CssColor("a1b"), "");
}

}  // namespace port
