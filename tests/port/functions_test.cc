// SPDX-License-Identifier: MIT
#include "port/functions.h"

#include <gtest/gtest.h>

using namespace port;

TEST(CWord, MakesAWordOfAnyText) {
  EXPECT_EQ(CWord("open_file"), "open_file");
  EXPECT_EQ(CWord("a.b-c d"), "a_b_c_d");
  EXPECT_EQ(CWord("3d"), "f_3d");
  EXPECT_EQ(CWord(""), "f_");
}

TEST(IsTaken, KnowsTheLanguageTheLibrariesAndOurOwnNames) {
  for (const char* word :
       {"int", "class", "exit", "main", "XtManageChild", "XmCreateLabel", "XFlush", "strange",
        "memo", "_x", "ZoShow", "AddConnections", "plans"}) {
    EXPECT_TRUE(IsTaken(word)) << word;
  }
}

TEST(IsTaken, LeavesTheUsersNames) {
  for (const char* word : {"quit", "openFile", "Xtra", "Xmas", "Zone", "str_max", "save"}) {
    EXPECT_FALSE(IsTaken(word)) << word;
  }
}

TEST(ProgramName, IsTheFilesUnlessTheMakefileNeedsIt) {
  EXPECT_EQ(ProgramName("/x/weather.G"), "weather");
  EXPECT_EQ(ProgramName("run.G"), "run_app");
  EXPECT_EQ(ProgramName("main.P"), "main_app");
}
