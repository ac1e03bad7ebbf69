// SPDX-License-Identifier: MIT
#include "unit/support/session_fixture.h"
#include "osi/arena_testing.h"

#include <stdlib.h>
#include <unistd.h>

#include <cstdio>

#include "driver/session.h"
#include "gil/scanner.h"
#include "osi/arena.h"
#include "osi/fatal.h"
#include "unit/support/stream_capture.h"

static void ThrowExitStatus(int status) { throw ExitStatus{status}; }

SessionFixture::SessionFixture() {
  OsiSetExitHandler(ThrowExitStatus);
  ArenaFailAfter(-1);
  ResetSession();
  SetInput("");
}

SessionFixture::~SessionFixture() {
  ArenaFailAfter(-1);
  ResetSession();
  OsiSetExitHandler(nullptr);
}

void SessionFixture::SetInput(std::string_view text) {
  std::string name = testing::TempDir() + "pandrel-input-XXXXXX";
  const int fd = mkstemp(name.data());
  const bool written =
      fd >= 0 && write(fd, text.data(), text.size()) == static_cast<ssize_t>(text.size());
  if (!written || !std::freopen(name.c_str(), "r", stdin)) {
    ADD_FAILURE() << "cannot read from " << name;
  }
  close(fd);
  unlink(name.c_str());
  yyrestart();
}

Outcome SessionFixture::Run(const std::function<void()>& body) { return RunOutOfMemory(-1, body); }

Outcome SessionFixture::Run(const std::function<void()>& body, std::string_view input) {
  SetInput(input);
  return Run(body);
}

Outcome SessionFixture::RunOutOfMemory(long requests, const std::function<void()>& body) {
  Outcome outcome;
  StreamCapture out(stdout);
  StreamCapture err(stderr);
  try {
    ArenaFailAfter(requests);
    body();
  } catch (const ExitStatus& ended) {
    outcome.status = ended.status;
  }
  ArenaFailAfter(-1);
  outcome.out = out.Take();
  outcome.err = err.Take();
  return outcome;
}
