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
  EXPECT_EQ(options.action, Action::kRun);
  EXPECT_FALSE(options.IsBatch());
  EXPECT_EQ(options.file, "a.G");
  EXPECT_TRUE(options.verbose);
  EXPECT_TRUE(options.fix);
  EXPECT_THAT(options.converter_options, ElementsAre("-openlook", "-Dicons", "-zo30"));
  EXPECT_THAT(options.toolkit_options,
              ElementsAre("-display", ":1", "-xrm", "*x: -o", "-geometry", "10x10"));
  EXPECT_TRUE(options.off.contains("lines"));
}

TEST(ViewOptions, Actions) {
  EXPECT_TRUE(ParseOptions({"--list", "a"}).list);
  EXPECT_EQ(ParseOptions({"-o", "b.png", "a"}).picture, "b.png");
  EXPECT_EQ(ParseOptions({"--screenshot", "dir", "a"}).picture_folder, "dir");
  EXPECT_TRUE(ParseOptions({"--screenshot", "dir", "a"}).TakesPictures());
  EXPECT_EQ(ParseOptions({"--check", "a"}).check, Options::Check::kSentences);
  EXPECT_EQ(ParseOptions({"--check=tab", "a"}).check, Options::Check::kTabs);
  for (const auto option : {"--list", "--check", "--check=tab"}) {
    EXPECT_TRUE(ParseOptions({option, "a"}).IsBatch()) << option;
  }
  EXPECT_TRUE(ParseOptions({"-o", "b.png", "a"}).IsBatch());
  EXPECT_TRUE(ParseOptions({"--all", "a"}).all);
  EXPECT_TRUE(ParseOptions({"--watch", "a"}).watch);
  EXPECT_TRUE(ParseOptions({"--compact", "a"}).compact);
  EXPECT_THAT(ParseOptions({"--resources", "x", "a", "--resources", "y"}).resource_files,
              ElementsAre("x", "y"));
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
  EXPECT_EQ(ParseOptions({"a", "--watch", "--list"}).error, "--watch is for windows that stay");
  EXPECT_EQ(ParseOptions({"a", "--resources"}).error, "--resources needs a value");
}

}  // namespace
}  // namespace view
