// SPDX-License-Identifier: MIT
#include "view_options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace view {
namespace {

using Action = Options::Action;
using ::testing::ElementsAre;

TEST(ViewOptions, OptionsGoWhereTheyBelong) {
  const Options options = ParseOptions({"-openlook", "-display", ":1", "-Dicons", "-xrm", "*x: -o",
                                        "-v", "a.G", "-geometry", "10x10", "-zo30", "--no-lines"});
  EXPECT_EQ(options.action, Action::kShow);
  EXPECT_EQ(options.file, "a.G");
  EXPECT_TRUE(options.verbose);
  EXPECT_TRUE(options.fix);
  EXPECT_THAT(options.converter_options, ElementsAre("-openlook", "-Dicons", "-zo30"));
  EXPECT_THAT(options.toolkit_options,
              ElementsAre("-display", ":1", "-xrm", "*x: -o", "-geometry", "10x10"));
  EXPECT_TRUE(options.off.contains("lines"));
}

TEST(ViewOptions, Actions) {
  EXPECT_EQ(ParseOptions({"--list", "a"}).action, Action::kList);
  EXPECT_EQ(ParseOptions({"-o", "b.png", "a"}).picture, "b.png");
  EXPECT_EQ(ParseOptions({"--screenshot", "dir", "a"}).picture_folder, "dir");
  EXPECT_EQ(ParseOptions({"--screenshot", "dir", "a"}).action, Action::kScreenshots);
  EXPECT_EQ(ParseOptions({"--help"}).action, Action::kHelp);
  EXPECT_EQ(ParseOptions({"--version"}).action, Action::kVersion);
  EXPECT_FALSE(ParseOptions({"--no-fix", "a"}).fix);
  EXPECT_EQ(ParseOptions({"--", "-a"}).file, "-a");
}

TEST(ViewOptions, Mistakes) {
  EXPECT_EQ(ParseOptions({}).error, "no file to show");
  EXPECT_EQ(ParseOptions({"a", "b"}).error, "more than one file: b");
  EXPECT_EQ(ParseOptions({"a", "-o"}).error, "-o needs a value");
  EXPECT_EQ(ParseOptions({"a", "-display"}).error, "-display needs a value");
  EXPECT_EQ(ParseOptions({"a", "-nonsense"}).error, "unknown option: -nonsense");
  EXPECT_EQ(ParseOptions({"a", "--no-such"}).error, "no such rewrite: such");
  EXPECT_EQ(ParseOptions({"a", "--no-such"}).action, Action::kUsageError);
}

}  // namespace
}  // namespace view
