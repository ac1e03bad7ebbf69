// SPDX-License-Identifier: MIT
#include "private_server.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/random.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string_view>

#include "process.h"
#include "signals.h"
#include "uilfix/module_files.h"

namespace view {
namespace {

constexpr char kScreen[] = "1280x1024x24";
constexpr std::chrono::seconds kStartLimit{30};
constexpr std::chrono::seconds kEndLimit{5};

// A field of an authority file: its length in two bytes, high byte first, then its bytes.
std::string Field(std::string_view bytes) {
  std::string field;
  field += static_cast<char>(bytes.size() >> 8);
  field += static_cast<char>(bytes.size() & 0xFF);
  return field.append(bytes);
}

// One entry that fits any address and display number: family, address, number, name, secret.
std::string AuthorityEntry(std::string_view secret) {
  constexpr std::string_view kAnyFamily = "\xFF\xFF";
  return std::string(kAnyFamily) + Field("") + Field("") + Field("MIT-MAGIC-COOKIE-1") +
         Field(secret);
}

// The line that the server writes when it is ready: its display number.
std::string ReadNumber(int stream) {
  const auto end = std::chrono::steady_clock::now() + kStartLimit;
  std::string text;
  while (!text.ends_with('\n')) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
        end - std::chrono::steady_clock::now());
    pollfd ready[] = {{stream, POLLIN, 0}};
    if (left.count() <= 0 || (WaitFor(ready, left) == 0 && StopSignal() != 0)) return "";
    char byte = 0;
    if (ready[0].revents != 0 && read(stream, &byte, 1) <= 0) return "";
    if (byte != 0) text += byte;
  }
  text.pop_back();
  return text;
}

}  // namespace

std::string PrivateServer::Start(const std::filesystem::path& scratch) {
  const auto program = FindProgram("Xvfb");
  if (!program) return "Xvfb is not installed";
  char secret[16];
  if (getrandom(secret, sizeof secret, 0) != sizeof secret) return "no random numbers";
  authority_ = (scratch / "authority").string();
  if (!uilfix::WriteFile(authority_, AuthorityEntry({secret, sizeof secret}))) {
    return authority_ + ": " + std::strerror(errno);
  }
  int ends[2];
  if (pipe(ends) != 0) return std::strerror(errno);
  fcntl(ends[0], F_SETFD, FD_CLOEXEC);
  Command command;
  // Without -noreset the server would restart when its last client leaves.
  command.arguments = {program->string(), "-displayfd", std::to_string(ends[1]),
                       "-screen",         "0",          kScreen,
                       "-nolisten",       "tcp",        "-noreset",
                       "-auth",           authority_};
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  process_ = fork();
  if (process_ == 0) Become(command, nowhere, SIGTERM);
  setpgid(process_, process_);
  close(nowhere);
  close(ends[1]);
  const std::string number = process_ > 0 ? ReadNumber(ends[0]) : "";
  close(ends[0]);
  if (number.empty()) return "Xvfb does not start";
  display_ = ":" + number;
  return "";
}

PrivateServer::~PrivateServer() {
  if (process_ <= 0) return;
  // On SIGTERM it removes its socket and lock. While it starts it may have programs of its own.
  kill(-process_, SIGTERM);
  EndChild(process_, kEndLimit, SIGKILL);
}

}  // namespace view
