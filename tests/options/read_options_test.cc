// SPDX-License-Identifier: MIT
#include "options/read_options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "options/converter_options.h"

namespace options {
namespace {

using ::testing::ElementsAre;

struct Given {
  bool quiet = false;
  bool pictures = true;
  std::string output;
  std::vector<std::string> checks;
  std::vector<std::string> converter;
  std::vector<std::string> operands;
  std::string error;
};

Given Read(const std::vector<std::string_view>& arguments) {
  Given given;
  std::vector<Option> table = {Flag("quiet", 'q', given.quiet),
                               Flag("no-pictures", 0, given.pictures, false),
                               Text("output", 'o', given.output),
                               {"check", 0, Value::kOptional, [&](const std::string& value) {
                                  given.checks.push_back(value);
                                  return value == "bad" ? "bad check" : "";
                                }}};
  AddConverterOptions(table, given.converter);
  given.error = ReadOptions(arguments, table, [&](const std::string& operand) {
    given.operands.push_back(operand);
    return std::string();
  });
  return given;
}

TEST(ReadOptions, TakesLettersAndWords) {
  for (const char* option : {"-q", "--quiet"}) EXPECT_TRUE(Read({option}).quiet) << option;
  EXPECT_FALSE(Read({"--no-pictures"}).pictures);
  EXPECT_FALSE(Read({"a"}).quiet);
}

TEST(ReadOptions, TakesValues) {
  EXPECT_EQ(Read({"-o", "x"}).output, "x");
  EXPECT_EQ(Read({"-ox"}).output, "x");
  EXPECT_EQ(Read({"--output", "x"}).output, "x");
  EXPECT_EQ(Read({"--output=x"}).output, "x");
  EXPECT_THAT(Read({"--check", "--check=tab"}).checks, ElementsAre("", "tab"));
}

TEST(ReadOptions, TakesTheConvertersOptionsAsTheyAre) {
  EXPECT_THAT(Read({"-nozo", "-Dicons", "-zo30"}).converter,
              ElementsAre("-nozo", "-Dicons", "-zo30"));
}

TEST(ReadOptions, TakesOperandsAnywhere) {
  const Given given = Read({"a", "-q", "-", "--", "-o"});
  EXPECT_TRUE(given.quiet);
  EXPECT_EQ(given.error, "");
  EXPECT_THAT(given.operands, ElementsAre("a", "-", "-o"));
}

TEST(ReadOptions, TellsMistakes) {
  EXPECT_EQ(Read({"a", "--nonsense"}).error, "unknown option: --nonsense");
  EXPECT_EQ(Read({"-x"}).error, "unknown option: -x");
  EXPECT_EQ(Read({"a", "-o"}).error, "-o needs a value");
  EXPECT_EQ(Read({"--output="}).error, "--output= needs a value");
  EXPECT_EQ(Read({"--output"}).error, "--output needs a value");
  EXPECT_EQ(Read({"--check=bad", "--nonsense"}).error, "bad check");
}

TEST(ReadOptions, StartsOver) {
  Read({"--nonsense", "a"});
  EXPECT_EQ(Read({"-qo", "x"}).output, "x");
}

}  // namespace
}  // namespace options
