// SPDX-License-Identifier: MIT
#include "uilfix/uilfix_options.h"

#include <gtest/gtest.h>

#include "uilfix/rewrites.h"

namespace uilfix {
namespace {

using Action = Options::Action;

TEST(Options, DefaultsToStandardStreamsAndEveryRewrite) {
  const Options options = ParseOptions({});
  EXPECT_EQ(options.action, Action::kFix);
  EXPECT_EQ(options.input, "");
  EXPECT_EQ(options.output, "");
  EXPECT_FALSE(options.quiet);
  EXPECT_TRUE(options.selection.off.empty());
}

TEST(Options, TakesFilesAndSwitches) {
  const Options options =
      ParseOptions({"-q", "--no-lines", "in.uil", "-o", "out.uil", "--no-names"});
  EXPECT_EQ(options.input, "in.uil");
  EXPECT_EQ(options.output, "out.uil");
  EXPECT_TRUE(options.quiet);
  EXPECT_EQ(options.selection.off, (std::set<std::string, std::less<>>{"lines", "names"}));
  EXPECT_EQ(ParseOptions({"--", "-odd"}).input, "-odd");
  EXPECT_EQ(ParseOptions({"-"}).input, "-");
  EXPECT_EQ(ParseOptions({"--output", "a.uil"}).output, "a.uil");
  EXPECT_EQ(ParseOptions({"--output=b.uil"}).output, "b.uil");
}

TEST(Options, OnlySwitchesTheOthersOff) {
  const Options options = ParseOptions({"--only=lines,names"});
  for (const Rewrite& rewrite : Rewrites()) {
    EXPECT_EQ(options.selection.Has(rewrite), rewrite.name == "lines" || rewrite.name == "names");
  }
  EXPECT_FALSE(options.selection.off.contains("lines"));
  EXPECT_FALSE(options.selection.off.contains("names"));
}

TEST(Options, WithSwitchesOnWhatRunsOnRequest) {
  const Options options = ParseOptions({"--with=order,dialogs", "--no-lines"});
  for (const Rewrite& rewrite : Rewrites()) {
    const bool wanted = rewrite.name == "order" || rewrite.name == "dialogs";
    EXPECT_EQ(options.selection.Has(rewrite), rewrite.on_request ? wanted : rewrite.name != "lines")
        << rewrite.name;
    EXPECT_EQ(ParseOptions({}).selection.Has(rewrite), !rewrite.on_request) << rewrite.name;
  }
  EXPECT_TRUE(ParseOptions({"--only=order"}).selection.Has(*FindRewrite("order")));
  EXPECT_FALSE(ParseOptions({"--with=order", "--no-order"}).selection.Has(*FindRewrite("order")));
}

TEST(Options, StartsNeedTheGilFile) {
  EXPECT_EQ(ParseOptions({"--with=starts"}).error, "starts needs the GIL file, --gil FILE");
  const Options options = ParseOptions({"--with=starts", "--gil", "a.G"});
  EXPECT_EQ(options.action, Action::kFix);
  EXPECT_EQ(options.gil, "a.G");
  EXPECT_EQ(ParseOptions({"--gil=b.G"}).gil, "b.G");
}

TEST(Options, InformativeActions) {
  EXPECT_EQ(ParseOptions({"--help"}).action, Action::kHelp);
  EXPECT_EQ(ParseOptions({"--version"}).action, Action::kVersion);
  EXPECT_EQ(ParseOptions({"--list"}).action, Action::kList);
  for (const Rewrite& rewrite : Rewrites()) {
    EXPECT_NE(HelpText().find("  " + std::string(rewrite.name) + " "), std::string::npos);
  }
}

TEST(Options, Mistakes) {
  EXPECT_EQ(ParseOptions({"--nonsense"}).error, "unknown option: --nonsense");
  EXPECT_EQ(ParseOptions({"--no-such"}).error, "no such rewrite: such");
  EXPECT_EQ(ParseOptions({"--only=lines,such"}).error, "no such rewrite: such");
  EXPECT_EQ(ParseOptions({"a", "b"}).error, "more than one input: b");
  EXPECT_EQ(ParseOptions({"--with=such"}).error, "no such rewrite: such");
  EXPECT_EQ(ParseOptions({"--gil"}).error, "--gil needs a file name");
  EXPECT_EQ(ParseOptions({"-o"}).error, "-o needs a file name");
}

}  // namespace
}  // namespace uilfix
