// SPDX-License-Identifier: MIT
#include "compiler.h"

#include <cstdlib>
#include <sstream>

#include "process.h"

namespace view {
namespace {

// The name of the object whose lines hold `line`.
std::string ObjectAt(const uilfix::Module& module, int line) {
  std::string name;
  uilfix::ForEachObject(module, [&](const uilfix::Object& object) {
    if (object.line - 1 <= line) name = object.name;
  });
  return name;
}

// The number after "line:", or 0.
int LineNumber(const std::string& text) {
  const std::size_t at = text.find("line: ");
  return at == std::string::npos ? 0 : std::atoi(text.c_str() + at + 6);
}

}  // namespace

// A message is "Error: text", then perhaps a line with the place: "\t\t line: 11  file: t.uil".
std::vector<CompilerMessage> ReadMessages(std::string_view output, const uilfix::Module& module) {
  std::vector<CompilerMessage> messages;
  std::istringstream lines{std::string(output)};
  for (std::string line; std::getline(lines, line);) {
    for (const std::string severity : {"Error", "Severe", "Warning"}) {
      if (!line.starts_with(severity + ": ")) continue;
      messages.push_back({severity, line.substr(severity.size() + 2), 0, ""});
    }
    if (!messages.empty() && messages.back().line == 0 && line.starts_with("\t\t line: ")) {
      messages.back().line = LineNumber(line);
      messages.back().object = ObjectAt(module, messages.back().line);
    }
  }
  return messages;
}

Compilation Compile(const std::filesystem::path& uil, const std::filesystem::path& uid,
                    const uilfix::Module& module) {
  Compilation compilation;
  const auto program = FindProgram("uil");
  if (!program) {
    compilation.failure = "the UIL compiler \"uil\" is not installed";
    return compilation;
  }
  Command command;
  command.arguments = {program->string(), uil.string(), "-o", uid.string()};
  const Outcome outcome = RunCommand(command);
  std::error_code error;
  compilation.ok = outcome.status == 0 && std::filesystem::exists(uid, error);
  compilation.messages = ReadMessages(outcome.output, module);
  if (!outcome.started) {
    compilation.failure = "cannot start " + program->string();
  } else if (outcome.timed_out) {
    compilation.failure = "the UIL compiler did not end within a minute";
  } else if (outcome.status < 0) {
    compilation.failure = "the UIL compiler crashed";
  }
  return compilation;
}

}  // namespace view
