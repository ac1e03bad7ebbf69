// SPDX-License-Identifier: MIT
#include "osi/sigchld.h"

#include <signal.h>

#include <cerrno>
#include <cstddef>

#include "osi/memory.h"
#include "osi/sigchld_testing.h"

namespace {

// Null-terminated; null before the first addition. A removal does not free the block: a handler may
// remove itself, and a signal handler must not free memory.
OsiSignalHandler* handlers = nullptr;
bool is_installed = false;
struct sigaction former_action;

// Blocks SIGCHLD as long as it lives.
class SigchldBlock {
 public:
  SigchldBlock() {
    sigset_t blocked;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGCHLD);
    sigprocmask(SIG_BLOCK, &blocked, &former_mask_);
  }
  ~SigchldBlock() { sigprocmask(SIG_SETMASK, &former_mask_, nullptr); }
  SigchldBlock(const SigchldBlock&) = delete;
  SigchldBlock& operator=(const SigchldBlock&) = delete;

 private:
  sigset_t former_mask_;
};

void CallHandlers(int signal) {
  int interrupted_errno = errno;
  std::size_t i = 0;
  while (handlers && handlers[i]) {
    OsiSignalHandler handler = handlers[i];
    handler(signal);
    // A handler that removed itself has its successor in its place now.
    if (handlers && handlers[i] == handler) ++i;
  }
  errno = interrupted_errno;
}

bool Install() {
  struct sigaction action = {};
  action.sa_handler = CallHandlers;
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  sigaddset(&action.sa_mask, SIGCHLD);
  return sigaction(SIGCHLD, &action, &former_action) == 0;
}

void Append(OsiSignalHandler handler) {
  std::size_t count = 0;
  while (handlers && handlers[count]) ++count;
  handlers = static_cast<OsiSignalHandler*>(OsiRealloc(handlers, (count + 2) * sizeof *handlers));
  handlers[count] = handler;
  handlers[count + 1] = nullptr;
}

bool Remove(OsiSignalHandler handler) {
  if (!handlers) return false;
  std::size_t i = 0;
  while (handlers[i] && handlers[i] != handler) ++i;
  if (!handlers[i]) return false;
  for (; handlers[i]; ++i) handlers[i] = handlers[i + 1];
  return true;
}

}  // namespace

bool OsiSigchld(OsiSignalHandler handler, bool add) {
  if (!handler) return false;
  SigchldBlock block;
  if (!add) return Remove(handler);
  if (!is_installed) is_installed = Install();
  if (!is_installed) return false;
  Append(handler);
  return true;
}

void OsiSigchldReset() {
  SigchldBlock block;
  if (is_installed) sigaction(SIGCHLD, &former_action, nullptr);
  is_installed = false;
  OsiFree(handlers);
  handlers = nullptr;
}
