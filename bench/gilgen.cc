// SPDX-License-Identifier: MIT
// gilgen: writes interface files of any size, for the benchmarks and the stress tests. Equal
// options give equal bytes.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "gilgen/gil_writer.h"
#include "gilgen/plan.h"
#include "gilgen/shapes.h"
#include "gilgen/text_output.h"
#include "gilgen/ui_writer.h"

namespace {

enum class Format : uint8_t { kGil, kUi };

struct Options {
  Plan plan;
  const Shape* shape = FindShape("realistic");
  Format format = Format::kGil;
  Attributes attributes = Attributes::kFull;
  uint64_t seed = 1;
  uint64_t files = 0;  // 0: one file on standard output
  uint64_t names = 0;  // a project file alone, with this many interface names
  std::string directory = ".";
  bool summary = false;
};

void PrintHelp() {
  std::fputs(
      "Usage: gilgen [option...]\n"
      "Writes a generated GIL interface to standard output, or a project into a folder.\n"
      "\n"
      "  --shape NAME          what to write (below); realistic when absent\n"
      "  --objects N           how many objects (1000)\n"
      "  --bytes SIZE          instead: about that many bytes; K, M and G count by 1024\n"
      "  --length N            length of the list or text of the shapes that have one (1000)\n"
      "  --seed N              another file of the same shape (1)\n"
      "  --names file|window   where the numbers of control names begin again (file)\n"
      "  --attributes full|short  all that the editor saves, or only what carries something\n"
      "  --reversed            owner-chain: the innermost object first\n"
      "  --format gil|ui       GIL, or a Qt Designer form of as many widgets\n"
      "  --files N             a project: project.P and part1.G to partN.G, each of --objects\n"
      "  --directory DIR       where --files puts them (made if missing)\n"
      "  --interfaces N        only a project file, of N interfaces that need not exist\n"
      "  --summary             tell the numbers of objects and bytes on standard error\n"
      "  --help                this text\n"
      "\n"
      "Shapes:\n",
      stdout);
  for (const Shape& shape : Shapes()) std::printf("  %-15s %s\n", shape.name, shape.summary);
}

[[noreturn]] void Refuse(const std::string& why) {
  std::fprintf(stderr, "gilgen: %s (gilgen --help tells more)\n", why.c_str());
  std::exit(2);
}

// A count or, with a unit behind it, a size in bytes.
uint64_t ParseNumber(const std::string& option, const std::string& text) {
  char* end = nullptr;
  uint64_t number = std::strtoull(text.c_str(), &end, 10);
  const std::string_view unit = end;
  const struct {
    std::string_view name;
    unsigned shift;
  } kUnits[] = {{"", 0}, {"K", 10}, {"M", 20}, {"G", 30}};
  for (const auto& candidate : kUnits) {
    if (end != text.c_str() && unit == candidate.name) return number << candidate.shift;
  }
  Refuse(option + " needs a number, not \"" + text + "\"");
}

template <typename Choice>
Choice ParseChoice(const std::string& option, const std::string& text, std::string_view first,
                   Choice first_choice, std::string_view second, Choice second_choice) {
  if (text == first) return first_choice;
  if (text == second) return second_choice;
  Refuse(option + " does not know \"" + text + "\"");
}

Options ParseOptions(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string option = argv[i];
    if (option == "--help") {
      PrintHelp();
      std::exit(0);
    }
    if (option == "--summary") {
      options.summary = true;
      continue;
    }
    if (option == "--reversed") {
      options.plan.reversed = true;
      continue;
    }
    if (i + 1 == argc) Refuse("unknown option or no value: " + option);
    const std::string value = argv[++i];
    if (option == "--shape") {
      options.shape = FindShape(value);
      if (options.shape == nullptr) Refuse("no shape is called " + value);
    } else if (option == "--objects") {
      options.plan.objects = ParseNumber(option, value);
    } else if (option == "--bytes") {
      options.plan.bytes = ParseNumber(option, value);
    } else if (option == "--length") {
      options.plan.length = ParseNumber(option, value);
    } else if (option == "--seed") {
      options.seed = ParseNumber(option, value);
    } else if (option == "--names") {
      options.plan.numbering =
          ParseChoice(option, value, "file", Numbering::kFile, "window", Numbering::kWindow);
    } else if (option == "--attributes") {
      options.attributes =
          ParseChoice(option, value, "full", Attributes::kFull, "short", Attributes::kShort);
    } else if (option == "--format") {
      options.format = ParseChoice(option, value, "gil", Format::kGil, "ui", Format::kUi);
    } else if (option == "--files") {
      options.files = ParseNumber(option, value);
    } else if (option == "--interfaces") {
      options.names = ParseNumber(option, value);
    } else if (option == "--directory") {
      options.directory = value;
    } else {
      Refuse("unknown option: " + option);
    }
  }
  return options;
}

struct Totals {
  uint64_t objects = 0;
  uint64_t bytes = 0;
};

// Writes one file to the open descriptor and adds it to the totals.
void WriteFile(const Options& options, uint64_t seed, int fd, Totals* totals) {
  TextOutput out(fd);
  Random random(seed);
  GilWriter gil(&out, options.attributes);
  UiWriter ui(&out);
  const bool write_gil = options.format == Format::kGil;
  const Target target = {[&](const Object& object) {
                           ++totals->objects;
                           if (write_gil) {
                             gil.Write(object);
                           } else {
                             ui.Write(object);
                           }
                         },
                         &out};
  if (write_gil) {
    gil.Begin();
  } else {
    ui.Begin();
  }
  options.shape->write(options.plan, &random, target);
  if (write_gil) {
    gil.End();
  } else {
    ui.End();
  }
  totals->bytes += out.bytes();
}

int Create(const std::string& path) {
  const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (fd < 0) {
    std::fprintf(stderr, "gilgen: cannot create %s: %s\n", path.c_str(), std::strerror(errno));
    std::exit(1);
  }
  return fd;
}

void WriteProject(const Options& options, Totals* totals) {
  if (mkdir(options.directory.c_str(), 0777) != 0 && errno != EEXIST) {
    std::fprintf(stderr, "gilgen: cannot make %s: %s\n", options.directory.c_str(),
                 std::strerror(errno));
    std::exit(1);
  }
  std::vector<std::string> parts;
  for (uint64_t i = 1; i <= options.files; ++i) {
    parts.push_back("part" + std::to_string(i) + ".G");
    const int fd = Create(options.directory + "/" + parts.back());
    WriteFile(options, options.seed + i, fd, totals);
    close(fd);
  }
  const int fd = Create(options.directory + "/project.P");
  {
    TextOutput out(fd);
    GilWriter(&out, options.attributes).WriteProject(parts, {});
    out.Flush();
    totals->bytes += out.bytes();
  }
  close(fd);
}

void WriteProjectFile(const Options& options, Totals* totals) {
  std::vector<std::string> parts;
  for (uint64_t i = 1; i <= options.names; ++i) parts.push_back("part" + std::to_string(i) + ".G");
  TextOutput out(STDOUT_FILENO);
  GilWriter(&out, options.attributes).WriteProject(parts, {});
  out.Flush();
  totals->bytes += out.bytes();
}

}  // namespace

int main(int argc, char** argv) {
  const Options options = ParseOptions(argc, argv);
  Totals totals;
  if (options.files > 0) {
    WriteProject(options, &totals);
  } else if (options.names > 0) {
    WriteProjectFile(options, &totals);
  } else {
    WriteFile(options, options.seed, STDOUT_FILENO, &totals);
  }
  if (options.summary) {
    std::fprintf(stderr, "objects %llu\nbytes %llu\n",
                 static_cast<unsigned long long>(totals.objects),
                 static_cast<unsigned long long>(totals.bytes));
  }
  return 0;
}
