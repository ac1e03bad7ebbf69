// SPDX-License-Identifier: MIT
// measure: runs one program and tells what it took, as one line of JSON on standard output:
//   {"wall": 0.0123, "user": 0.0100, "system": 0.0020, "peak_kib": 5120, "status": 0,
//    "timed_out": false}
// Times are in seconds; `status` is the exit status, or 128 plus the signal. The peak resident size
// of a child counts what its parent had resident when it was started, so this launcher is a small
// program of its own and not a line in the script that uses it.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace {

volatile std::sig_atomic_t timed_out = 0;
volatile pid_t child = 0;

void OnAlarm(int) {
  timed_out = 1;
  if (child > 0) kill(child, SIGKILL);
}

[[noreturn]] void Refuse(const char* why, const char* what) {
  std::fprintf(stderr, "measure: %s %s\n", why, what);
  std::exit(2);
}

double Now() {
  timespec now;
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

int Open(const char* path, int flags) {
  const int fd = open(path, flags | O_CLOEXEC, 0666);
  if (fd < 0) Refuse("cannot open", path);
  return fd;
}

// A function of its own, since vfork may spoil the variables of the one that calls it.
pid_t Start(char** command, int in, int out, int err) {
  const pid_t pid = vfork();
  if (pid == 0) {
    dup2(in, STDIN_FILENO);
    dup2(out, STDOUT_FILENO);
    dup2(err, STDERR_FILENO);
    execvp(command[0], command);
    _exit(127);
  }
  return pid;
}

}  // namespace

int main(int argc, char** argv) {
  const char* input = "/dev/null";
  const char* output = "/dev/null";
  const char* errors = nullptr;
  unsigned limit = 600;  // seconds
  int i = 1;
  for (; i + 1 < argc && std::strcmp(argv[i], "--") != 0; i += 2) {
    if (std::strcmp(argv[i], "--stdin") == 0) {
      input = argv[i + 1];
    } else if (std::strcmp(argv[i], "--stdout") == 0) {
      output = argv[i + 1];
    } else if (std::strcmp(argv[i], "--stderr") == 0) {
      errors = argv[i + 1];
    } else if (std::strcmp(argv[i], "--limit") == 0) {
      limit = static_cast<unsigned>(std::atoi(argv[i + 1]));
    } else if (std::strcmp(argv[i], "--directory") == 0) {
      if (chdir(argv[i + 1]) != 0) Refuse("cannot go to", argv[i + 1]);
    } else {
      Refuse("unknown option", argv[i]);
    }
  }
  if (i + 1 >= argc) {
    Refuse("usage: measure [--stdin F] [--stdout F] [--stderr F] [--directory D] [--limit S]",
           "-- program [argument...]");
  }
  char** command = argv + i + 1;
  const int in = Open(input, O_RDONLY);
  const int out = Open(output, O_WRONLY | O_CREAT | O_TRUNC);
  const int err = Open(errors != nullptr ? errors : "/dev/null", O_WRONLY | O_CREAT | O_TRUNC);

  struct sigaction action = {};
  action.sa_handler = OnAlarm;
  sigaction(SIGALRM, &action, nullptr);

  const double start = Now();
  const pid_t pid = Start(command, in, out, err);
  if (pid < 0) Refuse("cannot start", command[0]);
  child = pid;
  alarm(limit);
  int status = 0;
  rusage usage = {};
  while (wait4(pid, &status, 0, &usage) < 0 && errno == EINTR) {
  }
  const double wall = Now() - start;
  std::printf(
      "{\"wall\": %.6f, \"user\": %.6f, \"system\": %.6f, \"peak_kib\": %ld, \"status\": %d, "
      "\"timed_out\": %s}\n",
      wall, Seconds(usage.ru_utime), Seconds(usage.ru_stime), usage.ru_maxrss,
      WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status),
      timed_out != 0 ? "true" : "false");
  return 0;
}
