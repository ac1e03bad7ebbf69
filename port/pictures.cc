// SPDX-License-Identifier: MIT
#include "port/pictures.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <sstream>

#include "port/generate.h"
#include "uilfix/module_files.h"

namespace port {
namespace {

namespace fs = std::filesystem;

// How long the viewer may take for one interface, and a server to start.
constexpr const char* kViewerLimit = "60";
constexpr int kServerLimitMs = 10000;

// Runs a program to its end, its standard output and error going to files, in that working folder.
// Returns its exit status, -1 when it could not be run.
int Run(const std::vector<std::string>& arguments, const fs::path& folder, const fs::path& output,
        const fs::path& errors) {
  std::vector<char*> argv;
  for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
  argv.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addchdir_np(&actions, folder.c_str());
  posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 1, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
  posix_spawn_file_actions_addopen(&actions, 2, errors.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
  pid_t pid = -1;
  const int failed = posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (failed != 0) return -1;
  int status = 0;
  if (waitpid(pid, &status, 0) != pid || !WIFEXITED(status)) return -1;
  return WEXITSTATUS(status);
}

// The colours that the viewer complained of: window w: colour "x" is not known, or the toolkit's
// own words.
std::vector<std::string> ColorsIn(const std::string& errors) {
  std::vector<std::string> colors;
  std::istringstream text(errors);
  for (std::string line; std::getline(text, line);) {
    const bool ours = line.find("is not known") != std::string::npos;
    if (!ours && line.find("olor") == std::string::npos) continue;
    const std::size_t begin = line.find('"');
    const std::size_t end = begin == std::string::npos ? begin : line.find('"', begin + 1);
    if (end != std::string::npos) colors.push_back(line.substr(begin + 1, end - begin - 1));
  }
  return colors;
}

std::string ReadText(const fs::path& file) { return uilfix::ReadFile(file.string()).value_or(""); }

}  // namespace

fs::path FindProgram(const std::string& name) {
  std::error_code error;
  const fs::path here = fs::read_symlink("/proc/self/exe", error).parent_path();
  // In a build tree each program has a folder of its own.
  for (const fs::path& file : {here / name, here / ".." / "view" / name}) {
    if (access(file.c_str(), X_OK) == 0) return file;
  }
  const char* path = std::getenv("PATH");
  std::istringstream folders(path ? path : "");
  for (std::string folder; std::getline(folders, folder, ':');) {
    const fs::path file = fs::path(folder.empty() ? "." : folder) / name;
    if (access(file.c_str(), X_OK) == 0 && fs::is_regular_file(file, error)) return file;
  }
  return {};
}

Pictures TakePictures(const Model& model, const fs::path& folder, const fs::path& pictures,
                      const std::string& display) {
  Pictures result;
  const fs::path viewer = FindProgram("pandrel-view");
  if (viewer.empty()) {
    result.missing = "pandrel-view is not installed";
    return result;
  }
  if (FindProgram("uil").empty()) {
    result.missing = "the UIL compiler is not installed";
    return result;
  }
  if (display.empty() && FindProgram("Xvfb").empty()) {
    result.missing = "Xvfb is not installed";
    return result;
  }
  const std::string uil = model.name + ".uil";
  const std::string resources = ClassName(model) + ".ad";
  const auto view = [&](const std::vector<std::string>& options, const fs::path& output,
                        const fs::path& errors) {
    std::vector<std::string> arguments = {"timeout", kViewerLimit, viewer.string()};
    arguments.insert(arguments.end(), options.begin(), options.end());
    arguments.insert(arguments.end(), {"--no-fix", "--resources", resources, uil});
    if (!display.empty()) arguments.insert(arguments.end(), {"-display", display});
    return Run(arguments, folder, output, errors);
  };
  std::error_code error;
  fs::create_directories(pictures, error);
  const fs::path output = pictures / "output";
  const fs::path errors = pictures / "errors";
  // Its status also says whether it found faults.
  const int status = view({"--screenshot", pictures.string(), "--check=tab"}, output, errors);
  for (const PortWindow& window : model.windows) {
    const fs::path file = pictures / (window.shell + ".png");
    if (window.object >= 0 && fs::exists(file, error)) result.files[window.object] = file;
  }
  result.missing_colors = ColorsIn(ReadText(errors));
  if (result.files.empty() || (status != 0 && status != 1)) {
    result.missing = "pandrel-view could not show the windows: " + ReadText(errors);
    while (result.missing.back() == '\n') result.missing.pop_back();
    return result;
  }
  result.faults = ParseLayoutFaults(ReadText(output));
  result.checked = true;
  return result;
}

std::string Server::Start() {
  int ends[2];
  if (FindProgram("Xvfb").empty() || pipe(ends) != 0) return "";
  const std::string number = std::to_string(ends[1]);
  pid_ = fork();
  if (pid_ == 0) {
    close(ends[0]);
    const int null = open("/dev/null", O_RDWR);
    dup2(null, 0);
    dup2(null, 1);
    dup2(null, 2);
    setsid();
    execlp("Xvfb", "Xvfb", "-displayfd", number.c_str(), "-screen", "0", "1600x1200x24", "-noreset",
           "-nolisten", "tcp", nullptr);
    _exit(127);
  }
  close(ends[1]);
  std::string text;
  pollfd wait = {ends[0], POLLIN, 0};
  char c = 0;
  while (poll(&wait, 1, kServerLimitMs) > 0 && read(ends[0], &c, 1) == 1 && c != '\n') text += c;
  close(ends[0]);
  return text.empty() ? "" : ":" + text;
}

Server::~Server() {
  if (pid_ <= 0) return;
  kill(pid_, SIGTERM);
  waitpid(pid_, nullptr, 0);
}

}  // namespace port
