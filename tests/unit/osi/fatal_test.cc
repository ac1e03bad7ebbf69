// SPDX-License-Identifier: MIT
#include "osi/fatal.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <cstdio>
#include <new>
#include <string>

#include "unit/osi/surroundings.h"

namespace {

struct Ended {
  int status;
};

void Throw(int status) { throw Ended{status}; }

void Return(int) {}

class ScopedExitHandler {
 public:
  explicit ScopedExitHandler(OsiExitHandler handler) : former_(OsiSetExitHandler(handler)) {}
  ~ScopedExitHandler() { OsiSetExitHandler(former_); }
  ScopedExitHandler(const ScopedExitHandler&) = delete;
  ScopedExitHandler& operator=(const ScopedExitHandler&) = delete;

 private:
  OsiExitHandler former_;
};

TEST(OsiExitDeathTest, EndsWithTheStatusAsTheShellSeesIt) {
  EXPECT_EXIT(OsiExit(0), testing::ExitedWithCode(0), "");
  EXPECT_EXIT(OsiExit(1), testing::ExitedWithCode(1), "");
  EXPECT_EXIT(OsiExit(-1), testing::ExitedWithCode(255), "");
}

TEST(OsiExitDeathTest, FlushesTheOpenStreams) {
  TempDir dir;
  const std::string path = dir.Path("written");
  EXPECT_EXIT(
      {
        FILE* file = std::fopen(path.c_str(), "w");
        std::fputs("kept", file);
        OsiExit(3);
      },
      testing::ExitedWithCode(3), "");
  EXPECT_EQ(ReadWhole(path), "kept");
}

TEST(OsiEndOnExhaustedMemoryDeathTest, WritesOneLineToTheLastByte) {
  TempDir dir;
  const std::string path = dir.Path("written");
  EXPECT_EXIT(
      {
        dup2(open(path.c_str(), O_CREAT | O_WRONLY, 0600), STDERR_FILENO);
        OsiEndOnExhaustedMemory();
        std::get_new_handler()();
      },
      testing::ExitedWithCode(255), "");
  EXPECT_EQ(ReadWhole(path), "Error: Out of memory\n");
}

TEST(OsiExit, GoesThroughTheHandler) {
  ScopedExitHandler handler(Throw);
  try {
    OsiExit(-1);
  } catch (const Ended& ended) {
    EXPECT_EQ(ended.status, -1);
  }
}

TEST(OsiExitDeathTest, DoesNotGoOnWhenTheHandlerReturns) {
  ScopedExitHandler handler(Return);
  EXPECT_EXIT(OsiExit(0), testing::KilledBySignal(SIGABRT), "");
}

TEST(OsiSetExitHandler, GivesTheHandlerBefore) {
  OsiExitHandler original = OsiSetExitHandler(Throw);
  EXPECT_EQ(OsiSetExitHandler(nullptr), &Throw);
  EXPECT_EQ(OsiSetExitHandler(original), nullptr);
}

}  // namespace
