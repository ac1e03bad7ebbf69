// SPDX-License-Identifier: MIT
// The ground that unit tests of the reader, the conversion and the writer stand on: each test
// begins with the state of a process that has just started, reads standard input from a text, sees
// what was written on the standard streams, and survives a fatal end.
//
//   using ParserTest = SessionFixture;
//   TEST_F(ParserTest, ReportsAnEmptyFile) {
//     const Outcome outcome = Run([] { ParseGILFile(); }, "");
//     EXPECT_EQ(outcome.status, -1);
//     EXPECT_EQ(outcome.err, "...");
//   }
#ifndef PANDREL_TESTS_UNIT_SUPPORT_SESSION_FIXTURE_H
#define PANDREL_TESTS_UNIT_SUPPORT_SESSION_FIXTURE_H

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

// Thrown in place of the end of the process.
struct ExitStatus {
  int status;
};

// How a piece of code ended and what it wrote.
struct Outcome {
  std::optional<int>
      status;       // of the fatal end, before the shell takes it modulo 256; none: it returned
  std::string out;  // standard output
  std::string err;  // standard error
};

class SessionFixture : public testing::Test {
 protected:
  // Resets the session; standard input is empty. A fatal end outside Run() fails the test as an
  // exception.
  SessionFixture();
  // Resets the session again, so that records still lost are told by the leak checker.
  ~SessionFixture() override;

  // Makes standard input a file that holds `text` (NUL bytes included) and lets the scanner start
  // anew there; line numbers and results of files read before stay.
  static void SetInput(std::string_view text);

  // Calls `body` and tells how it ended.
  static Outcome Run(const std::function<void()>& body);

  // The same with `input` on standard input.
  static Outcome Run(const std::function<void()>& body, std::string_view input);

  // Run() where only the first `requests` requests for storage are served.
  static Outcome RunOutOfMemory(long requests, const std::function<void()>& body);
};

#endif
