// SPDX-License-Identifier: MIT
#include "compiler.h"

#include <gtest/gtest.h>

namespace view {
namespace {

TEST(Compiler, MessagesNameTheWidget) {
  const auto module = uilfix::ParseModule(
      "module Pandrel\nprocedure p;\n\nobject\na:XmLabel{\n\tcontrols {\n\t\t};\n\n"
      "object\nb:XmLabel{\n\tcontrols {\n\t\t};\n");
  const auto messages = ReadMessages(
      "\n\t\tXmNvalue = \"a\\qb\";\n\t\t\t              *\n"
      "Error: unknown escape sequence \"\\q\" - \\ ignored\n\t\t line: 11  file: t.uil\n\n"
      "Warning: odd\n\t\t line: 2  file: t.uil\nSevere: internal error - submit a defect report\n"
      "Info: errors: 1  warnings: 0  informationals: 1\n",
      module);
  ASSERT_EQ(messages.size(), 3u);
  EXPECT_EQ(messages[0].severity, "Error");
  EXPECT_EQ(messages[0].text, "unknown escape sequence \"\\q\" - \\ ignored");
  EXPECT_EQ(messages[0].line, 11);
  EXPECT_EQ(messages[0].object, "b");
  EXPECT_EQ(messages[1].severity, "Warning");
  EXPECT_EQ(messages[1].object, "");
  EXPECT_EQ(messages[2].severity, "Severe");
  EXPECT_EQ(messages[2].line, 0);
}

}  // namespace
}  // namespace view
