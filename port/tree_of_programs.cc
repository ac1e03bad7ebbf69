// SPDX-License-Identifier: MIT
#include "port/tree_of_programs.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <map>
#include <set>

#include "port/conversion.h"
#include "port/folder.h"
#include "port/pictures.h"
#include "port/port_index.h"
#include "port/templates.h"

namespace port {
namespace {

namespace fs = std::filesystem;

constexpr char kProgram[] = "pandrel-port";

struct Program {
  fs::path input;
  fs::path folder;  // below the output
  PortResult result;
};

// ---- Results come from processes of their own, through a file that both have open ----

void Put(std::FILE* file, const std::string& text) {
  std::fprintf(file, "%zu\n", text.size());
  std::fwrite(text.data(), 1, text.size(), file);
}

std::string Get(std::FILE* file) {
  std::size_t size = 0;
  if (std::fscanf(file, "%zu", &size) != 1 || std::fgetc(file) != '\n') return "";
  std::string text(size, '\0');
  text.resize(std::fread(text.data(), 1, size, file));
  return text;
}

void PutResult(std::FILE* file, const PortResult& result) {
  static_assert(std::is_trivially_copyable_v<ReportTotals>);
  const int status = static_cast<int>(result.status);
  Put(file, std::string(reinterpret_cast<const char*>(&status), sizeof status));
  Put(file, std::string(reinterpret_cast<const char*>(&result.totals), sizeof result.totals));
  Put(file, result.error);
  Put(file, result.sketch);
  Put(file, result.picture);
  for (const std::string& note : result.notes) Put(file, note);
  std::fflush(file);
}

// False when the process ended before it had written everything.
bool GetResult(std::FILE* file, PortResult& result) {
  std::rewind(file);
  const std::string status = Get(file);
  const std::string totals = Get(file);
  if (status.size() != sizeof(int) || totals.size() != sizeof result.totals) return false;
  int number = 0;
  std::memcpy(&number, status.data(), sizeof number);
  std::memcpy(&result.totals, totals.data(), sizeof result.totals);
  result.status = static_cast<PortStatus>(number);
  result.error = Get(file);
  result.sketch = Get(file);
  result.picture = Get(file);
  for (std::string note = Get(file); !note.empty(); note = Get(file)) result.notes.push_back(note);
  return true;
}

class Workers {
 public:
  Workers(const Job& job, std::vector<Program>& programs) : job_(job), programs_(programs) {}

  void Run(int jobs) {
    for (std::size_t i = 0; i < programs_.size(); ++i) {
      while (static_cast<int>(running_.size()) >= jobs) WaitForOne();
      Start(i);
    }
    while (!running_.empty()) WaitForOne();
    if (isatty(STDERR_FILENO)) std::cerr << "\r\033[K" << std::flush;
  }

 private:
  struct Worker {
    std::size_t program;
    std::FILE* results;
  };

  Job JobOf(const Program& program) const {
    Job job = job_;
    job.input = program.input;
    job.output = job_.output / program.folder;
    return job;
  }

  void Start(std::size_t index) {
    Worker worker = {index, std::tmpfile()};
    const pid_t pid = worker.results ? fork() : -1;
    if (pid == 0) {
      PutResult(worker.results, PortInterface(JobOf(programs_[index])));
      _exit(0);
    }
    if (pid > 0) {
      running_[pid] = worker;
      return;
    }
    programs_[index].result.status = PortStatus::kFailed;
    programs_[index].result.error = std::string("cannot start: ") + std::strerror(errno);
    if (worker.results) std::fclose(worker.results);
  }

  void WaitForOne() {
    int status = 0;
    const pid_t pid = wait(&status);
    const auto found = running_.find(pid);
    if (found == running_.end()) {
      if (pid < 0) running_.clear();
      return;
    }
    Program& program = programs_[found->second.program];
    if (!GetResult(found->second.results, program.result)) {
      program.result.status = PortStatus::kFailed;
      program.result.error = program.input.string() + ": the port ended too early";
    }
    std::fclose(found->second.results);
    running_.erase(found);
    ++done_;
    if (isatty(STDERR_FILENO)) {
      std::cerr << "\r\033[K" << done_ << "/" << programs_.size() << " " << program.folder.string()
                << std::flush;
    }
  }

  const Job& job_;
  std::vector<Program>& programs_;
  std::map<pid_t, Worker> running_;
  std::size_t done_ = 0;
};

// ---- The programs ----

// A folder for each, named after its file. Its name gets a number where an earlier program or a
// folder of the tree has it: there the programs of that folder go.
std::vector<Program> MakePrograms(const fs::path& tree) {
  std::vector<Program> programs;
  const std::vector<fs::path> inputs = FindPrograms(tree);
  std::set<std::string> used;
  for (const fs::path& input : inputs) {
    fs::path above = input.lexically_relative(tree).parent_path();
    for (; !above.empty(); above = above.parent_path()) used.insert(above.string());
  }
  for (const fs::path& input : inputs) {
    fs::path folder = input.lexically_relative(tree).replace_extension();
    const std::string plain = folder.string();
    for (int number = 2; !used.insert(folder.string()).second; ++number) {
      folder = plain + "-" + std::to_string(number);
    }
    programs.push_back({input, folder, {}});
  }
  return programs;
}

std::string FailureText(const PortResult& result) {
  if (!result.error.empty()) return result.error;
  return result.status == PortStatus::kDone || result.notes.empty() ? "" : result.notes.back();
}

void WriteIndex(const Job& job, const std::vector<Program>& programs) {
  Folder folder(job.output);
  if (!folder.Error().empty()) throw TemplateError{folder.Error()};
  IndexInput index;
  index.tree = job.input.string();
  index.version = PANDREL_VERSION;
  index.page_template = Templates(job.templates).Plain("index.html.mustache");
  for (std::size_t i = 0; i < programs.size(); ++i) {
    const Program& program = programs[i];
    IndexEntry entry;
    entry.name = program.folder.string();
    if (program.result.error.empty()) entry.report = (program.folder / "report.html").string();
    entry.sketch = program.result.sketch;
    entry.failure = FailureText(program.result);
    entry.totals = program.result.totals;
    if (!program.result.picture.empty()) {
      entry.picture = folder.Scratch() / (std::to_string(i) + ".png");
      if (std::FILE* file = std::fopen(entry.picture.c_str(), "w")) {
        std::fwrite(program.result.picture.data(), 1, program.result.picture.size(), file);
        std::fclose(file);
      }
    }
    index.entries.push_back(std::move(entry));
  }
  folder.Add("index.html", MakeIndex(index));
  for (const std::string& note : folder.Finish()) std::cerr << kProgram << ": " << note << "\n";
  if (!folder.Error().empty()) throw TemplateError{folder.Error()};
}

// Marks the folder as ours before anything is in it, so that a run that was interrupted can be
// repeated.
std::string Claim(const fs::path& output) {
  Folder folder(output);
  if (folder.Error().empty() && !folder.Former().found) folder.Finish();
  return folder.Error();
}

}  // namespace

std::vector<fs::path> FindPrograms(const fs::path& tree) {
  std::vector<fs::path> projects;
  std::vector<fs::path> interfaces;
  std::error_code error;
  fs::recursive_directory_iterator entries(tree, fs::directory_options::skip_permission_denied,
                                           error);
  for (; !error && entries != fs::recursive_directory_iterator(); entries.increment(error)) {
    const fs::path& file = entries->path();
    if (!entries->is_regular_file(error)) continue;
    if (file.extension() == ".P") projects.push_back(file);
    if (file.extension() == ".G") interfaces.push_back(file);
  }
  std::set<fs::path> members;
  for (const fs::path& project : projects) {
    for (const std::string& name : InterfacesOf(project)) {
      members.insert((project.parent_path() / name).lexically_normal());
    }
  }
  std::vector<fs::path> programs;
  for (const auto* list : {&projects, &interfaces}) {
    for (const fs::path& file : *list) {
      if (!members.contains(file.lexically_normal())) programs.push_back(file);
    }
  }
  std::sort(programs.begin(), programs.end());
  return programs;
}

int PortTree(const Job& job, int jobs) {
  std::error_code error;
  if (!fs::is_directory(job.input, error)) {
    std::cerr << kProgram << ": " << job.input.string() << " is not a folder\n";
    return static_cast<int>(PortStatus::kUsage);
  }
  const std::string refusal = Claim(job.output);
  if (!refusal.empty()) {
    std::cerr << kProgram << ": " << refusal << "\n";
    return static_cast<int>(PortStatus::kUsage);
  }
  std::vector<Program> programs = MakePrograms(job.input);
  Server server;
  Job each = job;
  if (job.pictures && !FindProgram("pandrel-view").empty()) each.display = server.Start();
  Workers(each, programs).Run(jobs);

  ReportTotals totals;
  int failures = 0;
  for (const Program& program : programs) {
    totals += program.result.totals;
    if (program.result.status == PortStatus::kDone) continue;
    ++failures;
    std::cerr << kProgram << ": " << program.input.string() << ": " << FailureText(program.result)
              << "\n";
  }
  try {
    WriteIndex(job, programs);
  } catch (const TemplateError& failure) {
    std::cerr << kProgram << ": " << failure.text << "\n";
    ++failures;
  } catch (const std::runtime_error& failure) {
    std::cerr << kProgram << ": " << failure.what() << "\n";
    ++failures;
  }
  std::cout << programs.size() << " programs, " << failures << " failed; " << TotalsLine(totals)
            << std::endl;
  return static_cast<int>(failures > 0 ? PortStatus::kFailed : PortStatus::kDone);
}

}  // namespace port
