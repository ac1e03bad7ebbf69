// SPDX-License-Identifier: MIT
#include "input.h"

#include <stdlib.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <iostream>
#include <set>

#include "compiler.h"
#include "gil_names.h"
#include "process.h"
#include "uilfix/module_files.h"
#include "uilfix/rewrites.h"

namespace view {
namespace {

namespace fs = std::filesystem;

enum class Kind { kGil, kUil, kUid };

Kind KindOf(const fs::path& file) {
  if (file.extension() == ".uil") return Kind::kUil;
  if (file.extension() == ".uid") return Kind::kUid;
  return Kind::kGil;
}

Interface Failure(const std::string& error) {
  Interface interface;
  interface.error = error;
  return interface;
}

// Makes `shadow` a folder in which the files of `original` can be read and new ones written: the
// converter puts the bitmaps of glyphs beside them, and looking at an interface should leave no
// files behind. Folders, `depth` levels of them, are made anew; deeper ones are the user's own.
void MakeShadow(const fs::path& original, const fs::path& shadow, int depth) {
  std::error_code error;
  fs::create_directory(shadow, error);
  for (const auto& entry : fs::directory_iterator(original, error)) {
    const fs::path target = shadow / entry.path().filename();
    if (depth > 0 && entry.is_directory(error) && !entry.is_symlink(error)) {
      MakeShadow(entry.path(), target, depth - 1);
    } else {
      fs::create_symlink(entry.path(), target, error);
    }
  }
}

// Converts the GIL file into `uil`. Returns what went wrong, or nothing.
std::string Convert(const Options& options, const fs::path& gil, const fs::path& folder,
                    const fs::path& uil) {
  const auto program = FindProgram("pandrel");
  if (!program) return "the converter \"pandrel\" is neither beside this program nor on PATH\n";
  Command command;
  command.arguments.push_back(program->string());
  command.arguments.insert(command.arguments.end(), options.converter_options.begin(),
                           options.converter_options.end());
  command.arguments.push_back(uil.string());
  command.input = gil;
  command.folder = folder;
  const Outcome outcome = RunCommand(command);
  if (!outcome.started) return "cannot start " + program->string() + "\n";
  if (outcome.timed_out) return "the converter did not end within a minute\n";
  if (outcome.status != 0) return options.file + " cannot be converted:\n" + outcome.output;
  if (options.verbose) std::cerr << outcome.output;
  return "";
}

// Applies the rewrites to the module text.
std::string Mend(const Options& options, const std::string& text) {
  uilfix::Report report;
  std::string fixed = uilfix::FixText(text, options.off, report);
  if (options.verbose) {
    for (const uilfix::Change& change : report.Changes()) {
      std::cerr << "line " << change.line << ": " << change.rewrite << ": " << change.text << "\n";
    }
  }
  return fixed;
}

// The procedures that are named like a live widget, one line of explanation each.
std::string NameClashes(const uilfix::Module& module) {
  std::set<std::string> procedures;
  for (const uilfix::Item& item : module.items) {
    if (const auto* declaration = std::get_if<uilfix::Declaration>(&item)) {
      procedures.insert(declaration->name);
    }
  }
  std::string text;
  uilfix::ForEachObject(module, [&](const uilfix::Object& object) {
    if (object.IsComment() || !procedures.contains(object.name)) return;
    text += "procedure " + object.name + " is named like a widget; rename one of the two\n";
  });
  return text;
}

std::string MessageText(const CompilerMessage& message, const std::vector<std::string>& gil_names) {
  std::string text = message.severity + ": " + message.text;
  if (message.line > 0) text += " (line " + std::to_string(message.line) + ")";
  if (message.object.empty()) return text + "\n";
  text += ", in widget " + message.object;
  const std::string gil_name = GuessGilName(gil_names, message.object);
  if (!gil_name.empty()) text += " of GIL object " + gil_name;
  return text + "\n";
}

std::string CompilationError(const Options& options, const Compilation& compilation,
                             const uilfix::Module& module,
                             const std::vector<std::string>& gil_names) {
  if (!compilation.failure.empty() && compilation.messages.empty()) {
    return compilation.failure + "\n";
  }
  std::string text = options.file + " does not compile:\n";
  if (!compilation.failure.empty()) text += compilation.failure + "\n";
  for (const CompilerMessage& message : compilation.messages) {
    if (message.severity != "Warning") text += MessageText(message, gil_names);
  }
  return text + NameClashes(module);
}

Interface FromModule(const Options& options, const ScratchFolder& scratch, const fs::path& folder,
                     std::string text, const std::vector<std::string>& gil_names) {
  if (options.fix) text = Mend(options, text);
  Interface interface;
  interface.folder = folder;
  interface.has_module = true;
  interface.module = uilfix::ParseModule(text);
  interface.uid = scratch.Path() / "module.uid";
  const fs::path uil = scratch.Path() / "module.uil";
  if (!uilfix::WriteFile(uil.string(), text)) {
    return Failure(uil.string() + ": " + std::strerror(errno) + "\n");
  }
  const Compilation compilation = Compile(uil, interface.uid, interface.module);
  if (!compilation.ok) {
    return Failure(CompilationError(options, compilation, interface.module, gil_names));
  }
  return interface;
}

Interface FromGil(const Options& options, const ScratchFolder& scratch, const fs::path& file) {
  const fs::path folder = scratch.Path() / "files";
  MakeShadow(file.parent_path(), folder, 1);
  const fs::path uil = scratch.Path() / "converted.uil";
  const std::string error = Convert(options, file, folder, uil);
  if (!error.empty()) return Failure(error);
  const auto text = uilfix::ReadFile(uil.string());
  if (!text) return Failure("the converter wrote no module\n");
  return FromModule(options, scratch, folder, *text, ReadGilNamesFromFile(file));
}

Interface FromUid(const fs::path& file) {
  Interface interface;
  interface.uid = file;
  interface.folder = file.parent_path();
  fs::path uil = file;
  if (const auto text = uilfix::ReadFile(uil.replace_extension(".uil").string())) {
    interface.has_module = true;
    interface.module = uilfix::ParseModule(*text);
  }
  return interface;
}

}  // namespace

ScratchFolder::ScratchFolder() {
  std::error_code error;
  std::string name = (fs::temp_directory_path(error) / "pandrel-view-XXXXXX").string();
  if (mkdtemp(name.data())) path_ = name;
}

ScratchFolder::~ScratchFolder() {
  std::error_code error;
  if (!path_.empty()) fs::remove_all(path_, error);
}

Interface PrepareInterface(const Options& options, const ScratchFolder& scratch) {
  if (scratch.Path().empty()) {
    return Failure(std::string("cannot make a temporary folder: ") + std::strerror(errno) + "\n");
  }
  const fs::path file = fs::absolute(options.file);
  if (access(file.c_str(), R_OK) != 0) {
    return Failure(options.file + ": " + std::strerror(errno) + "\n");
  }
  if (fs::is_directory(file)) return Failure(options.file + ": is a folder\n");
  switch (KindOf(file)) {
    case Kind::kUid:
      return FromUid(file);
    case Kind::kUil:
      return FromModule(options, scratch, file.parent_path(),
                        uilfix::ReadFile(file.string()).value_or(""), {});
    case Kind::kGil:
      break;
  }
  return FromGil(options, scratch, file);
}

}  // namespace view
