// SPDX-License-Identifier: MIT
#include "supervisor.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <optional>

#include "failure.h"
#include "file_watch.h"
#include "input.h"
#include "private_server.h"
#include "process.h"
#include "scratch_folder.h"
#include "signals.h"
#include "view_session.h"

namespace view {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;

// Longer than reading any module takes. The resource manager may loop on a damaged one.
constexpr milliseconds kLoadLimit{60'000};
// For a process to end after it was asked to.
constexpr milliseconds kWorkerEndLimit{2'000};
// Editors write a file in several steps; this is how long it has to stay as it is.
constexpr milliseconds kUnchanged{150};

// A process that shows the interface.
struct Worker {
  pid_t process = -1;
  int ready = -1;       // gets a byte when the windows are made, and ends with the process
  bool loaded = false;  // that byte has come
};

enum class Event { kEnded, kTooSlow, kChanged, kStopped };

class Supervisor {
 public:
  explicit Supervisor(const Options& options) : options_(options) {}

  int Run() {
    if (scratch_.Path().empty()) {
      return Fail(std::string("cannot make a temporary folder: ") + std::strerror(errno));
    }
    if (options_.watch) watch_.emplace(fs::absolute(options_.file));
    if (watch_ && watch_->Descriptor() < 0) return Fail(options_.file + ": cannot be watched");
    std::optional<Interface> interface = Prepare();
    if (StopSignal() != 0) return kFailure;
    if (!interface && !watch_) return kFailure;
    if (const std::string failure = ChooseServer(); !failure.empty()) return Fail(failure);
    if (interface) Start(*interface);
    return Watch();
  }

  ~Supervisor() { StopWorker(SIGTERM); }

 private:
  // The interface, in a new folder; nothing after a message.
  std::optional<Interface> Prepare() {
    const fs::path folder = scratch_.Path() / std::to_string(++generation_);
    std::error_code error;
    fs::create_directory(folder, error);
    Interface interface = PrepareInterface(options_, folder);
    if (interface.error.empty()) return interface;
    if (StopSignal() == 0) Fail(interface.error);
    return std::nullopt;
  }

  // A run that ends by itself uses a server of its own, since the user's display may show windows
  // of other programs. Returns an error message, or the empty text.
  std::string ChooseServer() {
    const auto& given = options_.toolkit_options;
    const bool named = std::find(given.begin(), given.end(), "-display") != given.end();
    if (!options_.IsBatch() || named) return "";
    const std::string failure = server_.Start(scratch_.Path());
    if (failure.empty()) {
      own_server_ = true;
      setenv("DISPLAY", server_.Display().c_str(), 1);
      setenv("XAUTHORITY", server_.Authority().c_str(), 1);
      return "";
    }
    const char* display = std::getenv("DISPLAY");
    return display && *display ? "" : failure + ", and there is no other display";
  }

  void Start(const Interface& interface) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return;
    std::cout << std::flush;
    worker_ = {fork(), ends[0], false};
    if (worker_.process == 0) {
      ReleaseSignalsInChild(SIGTERM);
      std::signal(SIGUSR1, SIG_IGN);  // until there are windows to list
      close(ends[0]);
      Work(interface, ends[1]);
    }
    close(ends[1]);
  }

  [[noreturn]] void Work(const Interface& interface, int ready) {
    std::error_code error;
    // Bitmaps are named relative to the folder of the interface.
    fs::current_path(interface.folder, error);
    const int status =
        RunSession(options_, interface, {ready, own_server_, scratch_.Path() / "places"});
    // Leave the supervisor's objects alone: it removes the folder and the server itself.
    std::exit(status);
  }

  Event WaitForEvent() {
    for (;;) {
      pollfd descriptors[] = {{worker_.ready, POLLIN, 0},
                              {watch_ ? watch_->Descriptor() : -1, POLLIN, 0}};
      const bool loading = worker_.process > 0 && !worker_.loaded;
      const int count = WaitFor(descriptors, loading ? kLoadLimit : milliseconds(-1));
      if (StopSignal() != 0) return Event::kStopped;
      if (TakeListRequest()) {
        if (worker_.process > 0) kill(worker_.process, SIGUSR1);
        continue;
      }
      if (count == 0) {
        if (loading) return Event::kTooSlow;
        continue;
      }
      if (descriptors[0].revents != 0) {
        char byte = 0;
        if (read(worker_.ready, &byte, 1) <= 0) return Event::kEnded;
        worker_.loaded = true;
        // All has been read that was to be; the sooner it is gone, the less can stay behind.
        if (!watch_ && !own_server_) scratch_.Remove();
      }
      if (descriptors[1].revents != 0 && watch_->TakeNews()) return Event::kChanged;
    }
  }

  int Watch() {
    for (;;) {
      switch (WaitForEvent()) {
        case Event::kStopped:
          return kFailure;
        case Event::kTooSlow:
          StopWorker(SIGKILL);
          return Fail(options_.file + ": could not be read within a minute; it may be damaged");
        case Event::kChanged:
          Reload();
          break;
        case Event::kEnded: {
          const int status = EndChild(TakeWorker(), kWorkerEndLimit, SIGKILL);
          if (WIFEXITED(status)) return WEXITSTATUS(status);
          TellCrash(WTERMSIG(status));
          if (!watch_) return kFailure;
          break;
        }
      }
    }
  }

  // Shows the file as it is now; as it was, when it cannot be.
  void Reload() {
    pollfd news[] = {{watch_->Descriptor(), POLLIN, 0}};
    while (WaitFor(news, kUnchanged) > 0) watch_->TakeNews();
    const std::optional<Interface> interface = Prepare();
    if (!interface || StopSignal() != 0) return;
    StopWorker(SIGUSR2);
    Start(*interface);
  }

  void TellCrash(int signal) const {
    if (signal == SIGPIPE || signal == SIGTERM || signal == SIGKILL) return;
    const bool compiled = fs::path(options_.file).extension() == ".uid";
    Fail(options_.file + (compiled
                              ? ": damaged: the resource manager crashed on it"
                              : ": the toolkit crashed (" + std::string(strsignal(signal)) + ")"));
  }

  // The worker's process, which is nobody's any more.
  pid_t TakeWorker() {
    const pid_t process = worker_.process;
    if (worker_.ready >= 0) close(worker_.ready);
    worker_ = {};
    return process;
  }

  void StopWorker(int signal) {
    const pid_t process = TakeWorker();
    if (process <= 0) return;
    kill(process, signal);
    EndChild(process, kWorkerEndLimit, SIGKILL);
  }

  const Options& options_;
  ScratchFolder scratch_;
  PrivateServer server_;  // ends before its folder does
  bool own_server_ = false;
  std::optional<FileWatch> watch_;
  Worker worker_;
  int generation_ = 0;
};

// The working directory changes before file names are used.
void MakeAbsolute(std::string& file) {
  if (!file.empty()) file = fs::absolute(file).string();
}

// A standard stream that is closed would become the first file or pipe that is opened here.
void OpenClosedStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (fcntl(stream, F_GETFD) < 0) open("/dev/null", O_RDWR);
  }
}

}  // namespace

int Supervise(Options options) {
  OpenClosedStreams();
  MakeAbsolute(options.picture);
  MakeAbsolute(options.picture_folder);
  for (std::string& file : options.resource_files) MakeAbsolute(file);
  HoldSignals();
  const int status = [&] { return Supervisor(options).Run(); }();
  if (StopSignal() != 0) EndBySignal(StopSignal());
  return status;
}

}  // namespace view
