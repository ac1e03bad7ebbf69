// SPDX-License-Identifier: MIT
#include "port/port_options.h"

#include <algorithm>

#include "options/converter_options.h"
#include "options/read_options.h"

namespace port {
namespace {

std::string TakeJobs(const std::string& text, int& jobs) {
  const bool number = text.size() < 5 && std::all_of(text.begin(), text.end(),
                                                     [](char c) { return c >= '0' && c <= '9'; });
  jobs = number ? std::stoi(text) : 0;
  return jobs < 1 ? "-j needs a number from 1 on, not " + text : "";
}

std::vector<options::Option> TableFor(Options& given) {
  using Action = Options::Action;
  const auto take_tree = [&given](const std::string&) {
    if (given.action == Action::kPort) given.action = Action::kTree;
    return std::string();
  };
  const auto take_jobs = [&given](const std::string& text) { return TakeJobs(text, given.jobs); };
  std::vector<options::Option> table = {
      options::Set("help", 'h', given.action, Action::kHelp),
      options::Set("version", 0, given.action, Action::kVersion),
      {"recursive", 'r', options::Value::kNone, take_tree},
      {"jobs", 'j', options::Value::kNeeded, take_jobs},
      options::Text("output", 'o', given.output),
      options::Text("templates", 0, given.templates),
      options::Flag("no-pictures", 0, given.pictures, false),
      options::Flag("", 'q', given.quiet),
  };
  options::AddConverterOptions(table, given.converter_options);
  for (const std::string name : {"verbose", "quiet"}) {
    table.push_back({name, 0, options::Value::kNone, [&given, name](const std::string&) {
                       given.converter_options.push_back("-" + name);
                       return std::string();
                     }});
  }
  return table;
}

// What is missing in the whole.
std::string Missing(const Options& given) {
  if (given.action == Options::Action::kHelp || given.action == Options::Action::kVersion)
    return "";
  if (given.input.empty()) return "no file to port";
  const bool tree = given.action == Options::Action::kTree;
  return tree && given.output.empty() ? "-r needs a folder: -o FOLDER" : "";
}

}  // namespace

Options ParseOptions(const std::vector<std::string_view>& arguments) {
  Options given;
  given.error = options::ReadOptions(arguments, TableFor(given), [&](const std::string& operand) {
    if (!given.input.empty()) return "more than one file: " + operand;
    given.input = operand;
    return std::string();
  });
  if (given.error.empty()) given.error = Missing(given);
  if (!given.error.empty()) given.action = Options::Action::kUsageError;
  return given;
}

std::string HelpText() {
  return "Usage: pandrel-port [OPTION]... FILE\n"
         "       pandrel-port -r [-j JOBS] -o FOLDER TREE\n"
         "Make a Motif program of a GIL file or project: a folder in which \"make\" builds it and\n"
         "\"make run\" runs it. The folder has the name of FILE without its suffix.\n"
         "\n"
         "  -o, --output FOLDER   the program's folder, or the one for those of a tree\n"
         "  -r, --recursive       port every project in TREE, and every interface that no project\n"
         "                        names, each into a folder of its own, with an index.html\n"
         "  -j, --jobs N          so many at a time\n"
         "      --no-pictures     no pictures of the windows in the report\n"
         "      --templates DIR   take templates from DIR where it has them\n"
         "  -q                    do not print the table of connections\n"
         "      --help            show this text\n"
         "      --version         show the version\n"
         "\n"
         "The options of pandrel(1), such as -motif12 or -nozo, go to the converter. A second run\n"
         "keeps every file that was changed and puts the new one beside it; callbacks.c only "
         "grows.\n"
         "\n"
         "Exit status: 0 all was built, 1 something could not be converted, 2 wrong usage.\n";
}

}  // namespace port
