// SPDX-License-Identifier: MIT
#include "port/port_options.h"

#include <gtest/gtest.h>

using namespace port;

TEST(PortOptions, PortsAFileByDefault) {
  const Options options = ParseOptions({"-o", "out", "-nozo", "-Dicons", "app.G"});
  EXPECT_EQ(options.action, Options::Action::kPort);
  EXPECT_EQ(options.input, "app.G");
  EXPECT_EQ(options.output, "out");
  EXPECT_EQ(options.converter_options, (std::vector<std::string>{"-nozo", "-Dicons"}));
  EXPECT_TRUE(options.pictures);
}

TEST(PortOptions, PortsATree) {
  const Options options = ParseOptions({"-r", "-j4", "--output=out", "tree"});
  EXPECT_EQ(options.action, Options::Action::kTree);
  EXPECT_EQ(options.jobs, 4);
  EXPECT_EQ(options.output, "out");
}

TEST(PortOptions, InformsWhateverElseStandsThere) {
  EXPECT_EQ(ParseOptions({"--help"}).action, Options::Action::kHelp);
  EXPECT_EQ(ParseOptions({"-r", "--version"}).action, Options::Action::kVersion);
}

TEST(PortOptions, TellsMistakes) {
  for (const std::vector<std::string_view>& arguments :
       std::vector<std::vector<std::string_view>>{{},
                                                  {"a", "b"},
                                                  {"-o"},
                                                  {"-r", "tree"},
                                                  {"-j", "0", "a"},
                                                  {"-j", "x", "a"},
                                                  {"--unknown", "a"},
                                                  {"-Q", "a"},
                                                  {"-D", "a"},
                                                  {"--templates=", "a"}}) {
    EXPECT_EQ(ParseOptions(arguments).action, Options::Action::kUsageError);
    EXPECT_NE(ParseOptions(arguments).error, "");
  }
}

TEST(PortOptions, TakesOperandsBehindDashes) { EXPECT_EQ(ParseOptions({"--", "-r"}).input, "-r"); }
