// SPDX-License-Identifier: MIT
#include "driver/command_line.h"

#include <string>
#include <vector>

#include "flags/flags.h"
#include "unit/support/session_fixture.h"

class CommandLineTest : public SessionFixture {
 protected:
  // Parses "pandrel" and these arguments, which outlive the call.
  Outcome Parse(std::vector<std::string> words) {
    arguments = std::move(words);
    std::vector<char*> argv = {program};
    for (std::string& argument : arguments) argv.push_back(argument.data());
    return Run([&argv] { ParseCommandLine(static_cast<int>(argv.size()), argv.data()); });
  }

  char program[9] = "-motif12";  // the program's own name is no argument, whatever it is
  std::vector<std::string> arguments;
};

// A flag as each of its options leaves it.
struct FlagCase {
  const char* option;
  int32_t* flag;
  int32_t value;
  int32_t default_value;
};

static const FlagCase kFlags[] = {
    {"-motif", &motif_l_and_f, 1, 1},
    {"-openlook", &motif_l_and_f, 0, 1},
    {"-reposition", &reposition, 1, 1},
    {"-noreposition", &reposition, 0, 1},
    {"-converticons", &auto_convert_icons, 1, 1},
    {"-noconverticons", &auto_convert_icons, 0, 1},
    {"-verbose", &verbose, 1, 1},
    {"-quiet", &verbose, 0, 1},
    {"-ignoregroups", &ignore_groups, 1, 0},
    {"-convertgroups", &ignore_groups, 0, 0},
    {"-motif11", &motif12, 0, 0},
    {"-motif12", &motif12, 1, 0},
    {"-mapall", &map_all, 1, 0},
    {"-nomapall", &map_all, 0, 0},
    {"-nogrouplabels", &group_labels, 0, 1},
    {"-group_labels", &group_labels, 1, 1},
    {"-dont_rename", &dont_rename, 1, 0},
    {"-zo25", &zo25, 1, 1},
    {"-zo30", &zo25, 0, 1},
    {"-nozo", &usezo, 0, 1},
    {"-genzocallbacks", &gen_zo_callbacks, 1, 0},
    {"-nocomments", &nocomments, 1, 0},
};

static const char kUsage[] =
    "Usage: pandrel \n\t[-zo25/-zo30]\n\t[-nozo]\n\t[-D<icon_direc_name>]  \n\t[-motif/-openlook] "
    "\n"
    "\t[-reposition/-noreposition] \n\t[-converticons/-noconverticons]\n\t[-motif12/-motif11]  \n"
    "\t[-convertgroups/-ignoregroups] \n\t[-verbose/-quiet] \n\t[-mapall/-nomapall]\n"
    " < {gilfile} [{uilfile}]\n";

static void ExpectDefaults() {
  for (const FlagCase& flag : kFlags) EXPECT_EQ(*flag.flag, flag.default_value) << flag.option;
  EXPECT_EQ(icon_dir_name, nullptr);
  EXPECT_EQ(outfile, nullptr);
}

TEST_F(CommandLineTest, NoArgumentsLeaveTheDefaults) {
  const Outcome outcome = Parse({});
  ExpectDefaults();
  EXPECT_EQ(outcome.out + outcome.err, "");
}

TEST_F(CommandLineTest, EachOptionSetsItsFlag) {
  for (const FlagCase& flag : kFlags) {
    *flag.flag = 7;
    const Outcome outcome = Parse({flag.option});
    EXPECT_EQ(*flag.flag, flag.value) << flag.option;
    EXPECT_EQ(outcome.out + outcome.err, "") << flag.option;
  }
}

TEST_F(CommandLineTest, EachOptionSetsNothingElse) {
  for (const FlagCase& flag : kFlags) {
    ResetFlags();
    Parse({flag.option});
    *flag.flag = flag.default_value;
    ExpectDefaults();
  }
}

TEST_F(CommandLineTest, ResetRestoresTheDefaults) {
  for (const FlagCase& flag : kFlags) *flag.flag = 7;
  icon_dir_name = outfile = "x";
  ResetFlags();
  ExpectDefaults();
}

TEST_F(CommandLineTest, OfTwoOptionsForAFlagTheFirstCounts) {
  Parse({"-motif", "-openlook", "-quiet", "-verbose", "-zo30", "-zo25", "-zo25"});
  EXPECT_EQ(motif_l_and_f, 1);
  EXPECT_EQ(verbose, 0);
  EXPECT_EQ(zo25, 0);
}

TEST_F(CommandLineTest, FirstOperandNamesTheOutput) {
  const Outcome outcome = Parse({"a.uil", "-quiet", "b.uil"});
  EXPECT_STREQ(outfile, "a.uil");
  EXPECT_EQ(outfile, arguments[0].c_str());
  EXPECT_EQ(outcome.out + outcome.err, "");
}

TEST_F(CommandLineTest, EmptyOperandIsAName) {
  Parse({""});
  EXPECT_STREQ(outfile, "");
}

TEST_F(CommandLineTest, BadOptionsAreReportedFromTheLastAndSkipped) {
  const Outcome outcome =
      Parse({"-bad", "-quiet", "-", "-motif12x", "-MOTIF12", "--help", "-nozo30"});
  EXPECT_EQ(outcome.out,
            "Bad option: -nozo30  Ignoring...\n"
            "Bad option: --help  Ignoring...\n"
            "Bad option: -MOTIF12  Ignoring...\n"
            "Bad option: -motif12x  Ignoring...\n"
            "Bad option: -  Ignoring...\n"
            "Bad option: -bad  Ignoring...\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, std::nullopt);
  EXPECT_EQ(verbose, 0);
  verbose = 1;
  ExpectDefaults();
}

TEST_F(CommandLineTest, HelpWritesTheUsageAndEndsTheRun) {
  for (const char* help : {"-help", "-grammer"}) {
    const Outcome outcome = Parse({help});
    EXPECT_EQ(outcome.status, 0) << help;
    EXPECT_EQ(outcome.out, kUsage) << help;
    EXPECT_EQ(outcome.err, "") << help;
  }
}

TEST_F(CommandLineTest, RightlySpeltGrammarIsABadOption) {
  const Outcome outcome = Parse({"-grammar"});
  EXPECT_EQ(outcome.out, "Bad option: -grammar  Ignoring...\n");
  EXPECT_EQ(outcome.status, std::nullopt);
}

TEST_F(CommandLineTest, BadOptionBehindHelpIsReportedFirst) {
  EXPECT_EQ(Parse({"-help", "-bad"}).out, std::string("Bad option: -bad  Ignoring...\n") + kUsage);
}

TEST_F(CommandLineTest, ArgumentsBeforeHelpAreNeverLookedAt) {
  EXPECT_EQ(Parse({"-bad", "-quiet", "-help"}).out, kUsage);
  EXPECT_EQ(verbose, 1);
}

TEST_F(CommandLineTest, IconDirectoryGetsASlash) {
  Parse({"-Dicons"});
  EXPECT_STREQ(icon_dir_name, "icons/");
  EXPECT_EQ(arguments[0], "-Dicons");
}

TEST_F(CommandLineTest, IconDirectoryWithASlashPointsIntoTheArgument) {
  Parse({"-Dicons/"});
  EXPECT_EQ(icon_dir_name, arguments[0].c_str() + 2);
  EXPECT_STREQ(icon_dir_name, "icons/");
}

TEST_F(CommandLineTest, IconDirectoryWithoutAnyTextIsTheRoot) {
  Parse({"-D"});
  EXPECT_STREQ(icon_dir_name, "/");
}

TEST_F(CommandLineTest, IconDirectoryIsTakenAsItIs) {
  Parse({"-D/"});
  EXPECT_STREQ(icon_dir_name, "/");
  Parse({"-D-quiet"});
  EXPECT_STREQ(icon_dir_name, "-quiet/");
  EXPECT_EQ(verbose, 1);
  EXPECT_EQ(Parse({"-d"}).out, "Bad option: -d  Ignoring...\n");
}

TEST_F(CommandLineTest, IconDirectoryTakesNoSeparateArgument) {
  Parse({"-D", "icons"});
  EXPECT_STREQ(icon_dir_name, "/");
  EXPECT_STREQ(outfile, "icons");
}

TEST_F(CommandLineTest, FirstIconDirectoryCounts) {
  Parse({"-Da", "-Db"});
  EXPECT_STREQ(icon_dir_name, "a/");
}

TEST_F(CommandLineTest, IconDirectoryWithoutMemoryEndsTheRun) {
  char argument[] = "-Dicons";
  char* argv[] = {program, argument};
  const Outcome outcome = RunOutOfMemory(0, [&argv] { ParseCommandLine(2, argv); });
  EXPECT_EQ(outcome.status, -1);
  EXPECT_EQ(outcome.err, "Error: Out of memory in MergeStrings\n");
}
