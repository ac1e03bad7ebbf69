// SPDX-License-Identifier: MIT
// The words are handed to the real shell, which must pass on exactly the name that was asked for.
#include "glyph/shell_words.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "unit/osi/surroundings.h"

namespace {

// What a shell command writes.
std::string OutputOf(const std::string& command) {
  std::string output;
  std::FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) {
    ADD_FAILURE() << "cannot run the shell";
    return output;
  }
  for (int c = std::getc(pipe); c != EOF; c = std::getc(pipe)) output += static_cast<char>(c);
  EXPECT_EQ(pclose(pipe), 0) << command;
  return output;
}

// The operands that the shell makes of the word, each between angle brackets.
std::string Operands(const std::string& word) {
  return OutputOf("for operand in " + word + "; do printf '<%s>' \"$operand\"; done");
}

std::string OneOperand(const std::string& name) {
  return std::string("<").append(name).append(">");
}

std::vector<std::string> HostileNames() {
  return {"face icon",
          " ",
          "$HOME",
          "`date`",
          "$(date)",
          "a;echo b",
          "a|b",
          "a&b",
          "a>b",
          "a<b",
          "it's",
          "''",
          "'",
          "\"quoted\"",
          "a\\b",
          "\\",
          "a\nb",
          "a\tb",
          "*",
          "?",
          "[a-z]*",
          "~",
          "~root",
          "#comment",
          "!",
          "{a,b}",
          "a'; echo b; '",
          "'$(echo b)'",
          "%s",
          "a=b",
          "caf\xc3\xa9",
          "\xff\xfe",
          "\x01\x7f",
          "icons/face.icon"};
}

TEST(ShellWords, PlainNamesStandAsTheyAre) {
  for (const char* name : {"face.icon", "icons/face.icon", "/usr/share/a_b-c+1,2:3@4%5=6"}) {
    EXPECT_EQ(ShellWord(name), name);
  }
}

TEST(ShellWords, EmptyNameStaysNothing) { EXPECT_EQ(ShellWord(""), ""); }

TEST(ShellWords, LeadingDashIsNoOption) {
  EXPECT_EQ(ShellWord("-e"), "./-e");
  EXPECT_EQ(ShellWord("--help me"), "'./--help me'");
  EXPECT_EQ(ShellWord("a-b"), "a-b");
}

TEST(ShellWords, EveryPrintableCharacterReachesTheProgram) {
  for (int c = ' '; c <= '~'; ++c) {
    const std::string name = std::string("a") + static_cast<char>(c) + "b";
    EXPECT_EQ(Operands(ShellWord(name)), OneOperand(name)) << name;
  }
}

TEST(ShellWords, EveryPrintableCharacterMayStandAlone) {
  for (int c = ' '; c <= '~'; ++c) {
    const std::string name(1, static_cast<char>(c));
    EXPECT_EQ(Operands(ShellWord(name)), OneOperand(c == '-' ? "./-" : name)) << name;
  }
}

TEST(ShellWords, AllBytesReachTheProgram) {
  std::string name;
  for (int c = 1; c < 256; ++c) name += static_cast<char>(c);
  EXPECT_EQ(Operands(ShellWord(name)), OneOperand(name));
}

TEST(ShellWords, HostileNamesAreData) {
  const TempDir dir;
  dir.Write("file-that-patterns-match", "");
  const ScopedCwd cwd(dir.Path());
  for (const std::string& name : HostileNames()) {
    EXPECT_EQ(Operands(ShellWord(name)), OneOperand(name)) << name;
  }
}

TEST(ShellWords, NameThatClosesTheQuotesRunsNothing) {
  const TempDir dir;
  const ScopedCwd cwd(dir.Path());
  for (const char* name : {"'; touch ran; '", "`touch ran`", "$(touch ran)", "a;touch ran",
                           "a\ntouch ran\n", "a|touch ran", "a&touch ran"}) {
    Operands(ShellWord(name));
    EXPECT_FALSE(std::filesystem::exists(dir.Path("ran"))) << name;
  }
}

// What sed makes of the word "noname".
std::string Replaced(const std::string& text) {
  return OutputOf("printf 'xnonamey' | sed -e 's/noname/" + QuotedSedReplacement(text) + "/'");
}

TEST(SedReplacements, PlainTextsStandAsTheyAre) {
  EXPECT_EQ(QuotedSedReplacement("face_1"), "face_1");
}

TEST(SedReplacements, EveryPrintableCharacterStandsForItself) {
  for (int c = ' '; c <= '~'; ++c) {
    const std::string text = std::string("a") + static_cast<char>(c) + "b";
    EXPECT_EQ(Replaced(text), std::string("x").append(text).append("y"));
  }
}

TEST(SedReplacements, HostileTextsStandForThemselves) {
  for (const char* text : {"a/b", "&", "\\1", "\\", "\\n", "a\nb", "'", "';date;'", "$(date)"}) {
    EXPECT_EQ(Replaced(text), std::string("x").append(text).append("y"));
  }
}

}  // namespace
