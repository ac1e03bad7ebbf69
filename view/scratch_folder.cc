// SPDX-License-Identifier: MIT
#include "scratch_folder.h"

#include <fcntl.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <string>

namespace view {

namespace fs = std::filesystem;
namespace {

void RemoveFolder(const fs::path& folder) {
  std::error_code error;
  if (!folder.empty()) fs::remove_all(folder, error);
}

// Runs in a process of its own: removes the folder when the other end of the pipe `ends` is closed
// everywhere. The process has its own session, so that it gets no signals of the terminal; no
// stream on which others may wait; and another name than the viewer, so that nobody kills both by
// name.
[[noreturn]] void KeepWatch(const fs::path& folder, const int (&ends)[2]) {
  setsid();
  prctl(PR_SET_NAME, "view-cleaner");
  close(ends[1]);
  const int nowhere = open("/dev/null", O_RDWR);
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nowhere, stream);
  char byte = 0;
  while (read(ends[0], &byte, 1) < 0 && errno == EINTR) {
  }
  RemoveFolder(folder);
  _exit(0);
}

}  // namespace

ScratchFolder::ScratchFolder() {
  std::error_code error;
  const fs::path parent = fs::temp_directory_path(error);
  if (error) {
    errno = error.value();
    return;
  }
  // Absolute, since programs in other folders write there.
  std::string name = fs::absolute(parent / "pandrel-view-XXXXXX").string();
  int ends[2];
  if (!mkdtemp(name.data())) return;
  path_ = name;
  // Every process that this one starts has the second end, and may write to the folder as long.
  if (pipe(ends) != 0) return;
  cleaner_ = fork();
  if (cleaner_ == 0) KeepWatch(path_, ends);
  close(ends[0]);
}

ScratchFolder::~ScratchFolder() {
  Remove();
  if (cleaner_ <= 0) return;
  kill(cleaner_, SIGKILL);
  while (waitpid(cleaner_, nullptr, 0) < 0 && errno == EINTR) {
  }
}

void ScratchFolder::Remove() { RemoveFolder(path_); }

}  // namespace view
