// SPDX-License-Identifier: MIT
#include "input.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <iostream>
#include <set>

#include "button_icons.h"
#include "compiler.h"
#include "gil_names.h"
#include "open_look_colors.h"
#include "process.h"
#include "stray_children.h"
#include "uilfix/module_files.h"
#include "uilfix/rewrites.h"
#include "writable_folder.h"

namespace view {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kFolderOption = "-D";

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

// The converter's options with the folders of -D as it finds them in `shadow`, where it runs. Its
// own user's paths begin where the user is, so they do here; where nothing is there, beside the
// file.
std::vector<std::string> ShadowedOptions(const Options& options, const fs::path& file,
                                         const fs::path& scratch, const fs::path& shadow) {
  std::vector<std::string> shadowed;
  int outside = 0;
  for (const std::string& option : options.converter_options) {
    const fs::path named =
        option.starts_with(kFolderOption) ? option.substr(kFolderOption.size()) : "";
    std::error_code error;
    if (named.empty()) {
      shadowed.push_back(option);
      continue;
    }
    fs::path original = fs::absolute(named, error);
    if (!fs::is_directory(original, error)) original = file.parent_path() / named;
    const fs::path normal = named.lexically_normal();
    const bool inside = named.is_relative() && *normal.begin() != ".." && normal != ".";
    if (fs::equivalent(original, file.parent_path(), error) && normal == ".") {
      shadowed.push_back(option);
    } else if (inside) {
      PutShadow(original, shadow, normal);
      shadowed.push_back(option);
    } else {
      const fs::path target = scratch / ("D" + std::to_string(++outside));
      MakeShadow(original, target, 0);
      shadowed.push_back(std::string(kFolderOption) + target.string());
    }
  }
  return shadowed;
}

// Where the icons of buttons may be: where the converter looks for others, and beside the file.
IconFolders FoldersOfIcons(const std::vector<std::string>& converter_options,
                           const fs::path& scratch, const fs::path& folder) {
  IconFolders folders{{}, scratch, fs::relative(scratch, folder).string()};
  for (const std::string& option : converter_options) {
    if (option.starts_with(kFolderOption)) {
      folders.given.push_back(folder / option.substr(kFolderOption.size()));
    }
  }
  folders.given.push_back(folder);
  return folders;
}

// Converts the GIL file into `uil`. Returns what went wrong, or nothing.
std::string Convert(const Options& options, const std::vector<std::string>& converter_options,
                    const fs::path& gil, const fs::path& folder, const fs::path& uil) {
  const auto program = FindProgram("pandrel");
  if (!program) return "the converter \"pandrel\" is neither beside this program nor on PATH\n";
  Command command;
  command.arguments.push_back(program->string());
  command.arguments.insert(command.arguments.end(), converter_options.begin(),
                           converter_options.end());
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
  return text + ", in widget " + WidgetAndObject(gil_names, message.object) + "\n";
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

// Takes out of the module what Motif would crash on, with a line on standard error for each.
// Returns whether there was nothing.
std::set<std::string> LeaveOutStrayChildren(uilfix::Module& module,
                                            const std::vector<std::string>& gil_names) {
  std::set<std::string> names;
  const auto strays = RemoveStrayChildren(module);
  for (const StrayChild& stray : strays) {
    std::cerr << "pandrel-view: widget " << WidgetAndObject(gil_names, stray.child)
              << " is left out: it stands in " << stray.parent << ", and " << stray.parent_class
              << " cannot have it\n";
    names.insert(stray.child);
  }
  return names;
}

// Completes an interface of which the folder is known, and all that is in the GIL file.
Interface FromModule(const Options& options, const fs::path& scratch, std::string text,
                     const IconFolders& icons, Interface interface) {
  if (options.fix) text = Mend(options, text);
  interface.has_module = true;
  interface.module = uilfix::ParseModule(text);
  ReplaceOpenLookColors(interface.module);
  interface.left_out = LeaveOutStrayChildren(interface.module, interface.gil_names);
  ShowButtonIcons(interface.module, interface.gil_names, interface.glyph_buttons, icons);
  interface.uid = scratch / "module.uid";
  const fs::path uil = scratch / "module.uil";
  if (!uilfix::WriteFile(uil.string(), uilfix::RenderModule(interface.module))) {
    return Failure(uil.string() + ": " + std::strerror(errno) + "\n");
  }
  const Compilation compilation = Compile(uil, interface.uid, interface.module);
  if (!compilation.ok) {
    return Failure(CompilationError(options, compilation, interface.module, interface.gil_names));
  }
  return interface;
}

Interface FromGil(const Options& options, const fs::path& scratch, const fs::path& file) {
  const fs::path folder = scratch / "files";
  MakeShadow(file.parent_path(), folder, 1);
  const fs::path uil = scratch / "converted.uil";
  const auto given = ShadowedOptions(options, file, scratch, folder);
  const std::string error = Convert(options, given, file, folder, uil);
  if (!error.empty()) return Failure(error);
  const auto text = uilfix::ReadFile(uil.string());
  if (!text) return Failure("the converter wrote no module\n");
  const std::string gil = ReadGilText(file);
  Interface interface;
  interface.gil_names = ReadGilNames(gil);
  interface.pinned_popups = ReadPinnedPopups(gil);
  interface.glyph_buttons = ReadGlyphButtons(gil);
  interface.folder = folder;
  return FromModule(options, scratch, *text, FoldersOfIcons(given, scratch, folder),
                    std::move(interface));
}

Interface FromUid(const fs::path& file) {
  Interface interface;
  interface.uid = file;
  interface.compiled = true;
  interface.folder = file.parent_path();
  fs::path uil = file;
  if (const auto text = uilfix::ReadFile(uil.replace_extension(".uil").string())) {
    interface.has_module = true;
    interface.module = uilfix::ParseModule(*text);
  }
  return interface;
}

}  // namespace

std::string WidgetAndObject(const std::vector<std::string>& gil_names, const std::string& widget) {
  const std::string gil_name = GuessGilName(gil_names, widget);
  return gil_name.empty() ? widget : widget + " of GIL object " + gil_name;
}

Interface PrepareInterface(const Options& options, const fs::path& scratch) {
  const fs::path file = fs::absolute(options.file);
  if (access(file.c_str(), R_OK) != 0) {
    return Failure(options.file + ": " + std::strerror(errno) + "\n");
  }
  if (fs::is_directory(file)) return Failure(options.file + ": is a folder\n");
  switch (KindOf(file)) {
    case Kind::kUid:
      return FromUid(file);
    case Kind::kUil: {
      Interface interface;
      interface.folder = file.parent_path();
      return FromModule(options, scratch, uilfix::ReadFile(file.string()).value_or(""), {},
                        std::move(interface));
    }
    case Kind::kGil:
      break;
  }
  return FromGil(options, scratch, file);
}

}  // namespace view
