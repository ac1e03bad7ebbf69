// SPDX-License-Identifier: MIT
#include "port/port_index.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace port {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

static IndexInput Input() {
  IndexInput input;
  input.tree = "/home/<user>";
  input.version = "1.2";
  std::ifstream stream(PANDREL_PORT_TEMPLATES "/index.html.mustache");
  input.page_template = {std::istreambuf_iterator<char>(stream), {}};
  return input;
}

static IndexEntry Entry(const std::string& name, int actions) {
  IndexEntry entry;
  entry.name = name;
  entry.report = name + "/report.html";
  entry.totals.actions = actions;
  entry.totals.overlaps = 1;
  entry.totals.cut_texts = 2;
  entry.totals.outside = 4;
  entry.totals.missing_icons = 8;
  entry.totals.missing_colors = 16;
  return entry;
}

TEST(IndexTest, HasARowForEachProgramAndOneForAll) {
  IndexInput input = Input();
  input.entries = {Entry("one", 3), Entry("two", 4)};
  input.entries[1].failure = "uil: 3 <errors>";
  const std::string page = MakeIndex(input);
  EXPECT_THAT(page,
              HasSubstr("<a href=\"one/report.html\">one</a></th><td class=\"thumbnail\"></td>"
                        "<td>done</td><td class=\"number\">3</td>"));
  EXPECT_THAT(page, HasSubstr("<td class=\"failed\">uil: 3 &lt;errors&gt;</td>"
                              "<td class=\"number\">4</td>"));
  EXPECT_THAT(page, HasSubstr("<th scope=\"row\">All</th><td></td><td>1 failed</td>"
                              "<td class=\"number\">7</td>"));
  EXPECT_THAT(page, HasSubstr("<td class=\"number\">7</td><td class=\"number\">24</td>"
                              "<td class=\"number\">0</td></tr>"));
  EXPECT_THAT(page, HasSubstr("Programs: 2, failures: 1. 7 actions: "));
  EXPECT_THAT(page, HasSubstr("<h1>/home/&lt;user&gt;</h1>"));
}

TEST(IndexTest, ShowsThePictureOrElseTheSketch) {
  const std::string file = testing::TempDir() + "index-picture.png";
  std::ofstream(file, std::ios::binary) << "\x89PNG\r\n";
  IndexInput input = Input();
  input.entries = {Entry("one", 0), Entry("two", 0)};
  input.entries[0].picture = file;
  input.entries[0].sketch = "<svg>1</svg>";
  input.entries[1].picture = "no-such-file.png";
  input.entries[1].sketch = "<svg>2</svg>";
  EXPECT_THAT(MakeIndex(input), AllOf(HasSubstr("<img src=\"data:image/png;base64,iVBORw0K\" "
                                                "alt=\"Motif window of one\">"),
                                      Not(HasSubstr("<svg>1")), HasSubstr("<svg>2</svg>"),
                                      Not(HasSubstr("window of two"))));
}

TEST(IndexTest, SaysThatATreeIsEmpty) {
  EXPECT_THAT(MakeIndex(Input()), HasSubstr("There is no interface in the tree."));
}

TEST(IndexTest, WritesPathsAsLinks) {
  EXPECT_EQ(RelativeUrl("a-b_c.d~/E9"), "a-b_c.d~/E9");
  EXPECT_EQ(RelativeUrl("javascript:\"a b\"?#%\xE9"), "javascript%3A%22a%20b%22%3F%23%25%E9");
  EXPECT_EQ(RelativeUrl(std::string("\0", 1)), "%00");
  IndexInput input = Input();
  input.entries = {Entry("", 0)};
  input.entries[0].report = "";
  input.entries[0].name = "<one>";
  EXPECT_THAT(MakeIndex(input),
              AllOf(HasSubstr("<th scope=\"row\">&lt;one&gt;</th>"), Not(HasSubstr("<a "))));
}

TEST(IndexTest, RefusesABrokenTemplate) {
  IndexInput input = Input();
  input.page_template = "{{/closed}}";
  EXPECT_THROW(MakeIndex(input), std::runtime_error);
}

TEST(IndexTest, IsValidForTidy) {
  IndexInput input = Input();
  input.entries = {Entry("</script>\"'&<b>\x01\xE9", 3), Entry("two", 4)};
  input.entries[1].failure = input.entries[0].name;
  const std::string page = MakeIndex(input);
  EXPECT_THAT(page, AllOf(Not(HasSubstr("</script>")), Not(HasSubstr("<b>"))));
  const std::string file = testing::TempDir() + "index.html";
  std::ofstream(file) << page;
  if (std::system("command -v tidy > /dev/null") != 0) GTEST_SKIP() << "tidy is not installed";
  EXPECT_EQ(std::system(("tidy -quiet -errors " + file).c_str()), 0);
}

}  // namespace port
