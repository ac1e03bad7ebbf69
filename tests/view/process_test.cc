// SPDX-License-Identifier: MIT
#include "process.h"

#include <gtest/gtest.h>

namespace view {
namespace {

Outcome Shell(const std::string& script) {
  Command command;
  command.arguments = {"/bin/sh", "-c", script};
  return RunCommand(command);
}

TEST(Process, GivesStatusAndBothOutputs) {
  const Outcome outcome = Shell("echo out; echo err >&2; exit 3");
  EXPECT_TRUE(outcome.started);
  EXPECT_FALSE(outcome.timed_out);
  EXPECT_EQ(outcome.status, 3);
  EXPECT_EQ(outcome.output, "out\nerr\n");
}

TEST(Process, InputAndFolder) {
  Command command;
  command.arguments = {"/bin/sh", "-c", "pwd; cat"};
  command.input = "/proc/self/comm";
  command.folder = "/";
  const Outcome outcome = RunCommand(command);
  EXPECT_EQ(outcome.output.substr(0, 2), "/\n");
  EXPECT_GT(outcome.output.size(), 2u);
}

TEST(Process, IsKilledWhenItsTimeIsOver) {
  Command command;
  command.arguments = {"/bin/sleep", "60"};
  command.limit = std::chrono::seconds(1);
  const Outcome outcome = RunCommand(command);
  EXPECT_TRUE(outcome.timed_out);
  EXPECT_EQ(outcome.status, -1);
}

TEST(Process, ProgramThatIsNotThere) {
  Command command;
  command.arguments = {"/no/such/program"};
  EXPECT_FALSE(RunCommand(command).started);
}

TEST(Process, MuchOutputComesWhole) {
  const Outcome outcome = Shell("yes x | head -c 300000");
  EXPECT_EQ(outcome.output.size(), 300000u);
}

TEST(Process, ProgramsAreFoundOnThePath) {
  EXPECT_EQ(FindProgram("no-such-program"), std::nullopt);
  const auto shell = FindProgram("sh");
  ASSERT_TRUE(shell.has_value());
  EXPECT_EQ(shell->filename(), "sh");
}

}  // namespace
}  // namespace view
