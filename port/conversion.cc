// SPDX-License-Identifier: MIT
#include "port/conversion.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "convert/actions.h"
#include "convert/objects.h"
#include "driver/command_line.h"
#include "driver/driver.h"
#include "driver/session.h"
#include "flags/flags.h"
#include "gil/object.h"
#include "gil/parser.h"
#include "gil/scanner.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "osi/fatal.h"
#include "passes/clean_up.h"
#include "passes/procedure_names.h"
#include "port/connect.h"
#include "port/functions.h"
#include "port/input_copy.h"
#include "port/mend.h"
#include "port/object_paths.h"
#include "port/port_session.h"
#include "port/port_windows.h"
#include "port/snapshot.h"
#include "text/uil_text.h"
#include "uil/writer.h"
#include "widget/callbacks.h"
#include "widget/links.h"
#include "widget/tree.h"
#include "widget/walk.h"

namespace port {
namespace {

namespace fs = std::filesystem;

// Thrown in place of the end of the process.
struct Ended {
  int status;
};

// While it lives, the converter's output on both streams goes to a file, and its working folder is
// `folder`.
class Surroundings {
 public:
  Surroundings(const fs::path& folder, const fs::path& messages)
      : former_folder_(fs::current_path()), messages_(messages) {
    Flush();
    out_ = dup(STDOUT_FILENO);
    err_ = dup(STDERR_FILENO);
    std::FILE* file = std::fopen(messages.c_str(), "w");
    if (file) {
      dup2(fileno(file), STDOUT_FILENO);
      dup2(fileno(file), STDERR_FILENO);
      std::fclose(file);
    }
    fs::current_path(folder);
    former_handler_ = OsiSetExitHandler([](int status) { throw Ended{status}; });
  }
  ~Surroundings() {
    OsiSetExitHandler(former_handler_);
    Flush();
    dup2(out_, STDOUT_FILENO);
    dup2(err_, STDERR_FILENO);
    close(out_);
    close(err_);
    std::error_code error;
    fs::current_path(former_folder_, error);
  }
  Surroundings(const Surroundings&) = delete;
  Surroundings& operator=(const Surroundings&) = delete;

  std::vector<std::string> Messages() const {
    Flush();
    std::ifstream file(messages_);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) lines.push_back(line);
    return lines;
  }

 private:
  static void Flush() {
    std::fflush(stdout);
    std::fflush(stderr);
  }

  fs::path former_folder_;
  fs::path messages_;
  OsiExitHandler former_handler_ = nullptr;
  int out_ = -1;
  int err_ = -1;
};

// ConvertObjHierToWidgHier, but for the note of what a window cuts off: a group that came to stand
// behind the window before.
Widg* ConvertObjects(Session& session, Obj* objects, Widg** list_link) {
  Widg* last = nullptr;
  for (Obj* obj = objects; obj; obj = obj->next) {
    Widg* widg = ProcessObj(obj);
    if (obj->type == GROUP) continue;
    Widg** link = last && *list_link ? &last->next : list_link;
    if (*link) session.cut_off.push_back(*link);
    LinkTopLevel(link, widg);
    last = widg;
  }
  return *list_link;
}

// The steps of the driver (driver/driver.h), taken one by one, since between reading and converting
// the objects are copied: the conversion consumes them. tests/port compares the modules.
void ConvertFile(Session& session, int file, Widg** list_link) {
  project = nullptr;
  if (yyparse() != 0) Error("Parse error");
  session.model.files[file].read = true;
  session.model.files[file].project = project != nullptr;
  const int first_object = static_cast<int>(session.model.objects.size());
  if (project) {
    CopyProject(session, file, project);
  } else {
    CopyObjects(session, file, gilFile);
  }
  gilFile = resolveChildren(gilFile);
  Obj* objects = PutMenusFirst(gilFile);
  *list_link = ConvertObjects(session, objects, list_link);
  RelinkTopLevel(list_link, CleanUpTopLevelHierarchy(list_link));
  LinkWidgets(session, first_object);
}

// A project may name itself.
constexpr std::size_t kMostFiles = 1000;

int AddFile(Session& session, const std::string& name) {
  if (session.model.files.size() >= kMostFiles) Error("Too many files in the project");
  GilFile file;
  file.name = name;
  session.model.files.push_back(file);
  return static_cast<int>(session.model.files.size()) - 1;
}

void ConvertMember(Session& session, const std::string& name) {
  const int file = AddFile(session, name);
  if (access(name.c_str(), R_OK) != 0) {
    std::printf("Cannot open project file %s for reading\n", name.c_str());
    return;
  }
  if (!std::freopen(name.c_str(), "r", stdin)) {
    std::printf("Error opening project file %s\n", name.c_str());
    if (!std::freopen("/dev/null", "r", stdin)) OsiExit(-1);
  }
  if (verbose) std::printf("Opening project subfile: %s\n", name.c_str());
  yyrestart();
  ConvertFile(session, file, top_widget ? &LastSibling(top_widget)->next : &top_widget);
}

void ConvertMembers(Session& session) {
  Obj* pending = project;
  while (pending) {
    Value* interfaces = nullptr;
    if (!GetAttrValue(pending, INTERFACES, &interfaces, 0)) {
      std::fputs("pandrel: Project without any interfaces\n", stdout);
    }
    pending = nullptr;
    project = nullptr;
    for (const Value* name = interfaces; name; name = name->next) {
      ConvertMember(session, ValueText(name));
      if (project) pending = project;
    }
  }
}

// Turns one action into a callback and notes which. Hides the widget's own list meanwhile: a
// callback that it has already would not be added again, and leave no trace.
void ConvertAction(Session& session, Widg* widg, const Action* action, int connection) {
  Callback* const before = widg->callbacks;
  widg->callbacks = nullptr;
  ProcessAction(widg, action);
  const Callback* made = widg->callbacks;
  widg->callbacks = before;
  if (!made) return;
  AddCallback(widg, made->callback_name, made->procedure, made->argument);
  for (const Callback* at = widg->callbacks; at; at = at->next) {
    const auto same = [](const char* a, const char* b) {
      return std::string_view(a ? a : "") == std::string_view(b ? b : "");
    };
    if (same(at->callback_name, made->callback_name) && same(at->procedure, made->procedure) &&
        same(at->argument, made->argument)) {
      session.links.push_back({connection, widg, at});
      return;
    }
  }
}

void ConvertActions(Session& session) {
  std::unordered_map<const Action*, int> connections;
  for (std::size_t i = 0; i < session.actions.size(); ++i) {
    if (session.actions[i]) connections.emplace(session.actions[i], static_cast<int>(i));
  }
  const auto convert = [&](Widg* widg) {
    for (const Action* action = widg->actions; action; action = action->next) {
      const auto found = connections.find(action);
      if (found == connections.end()) continue;  // the mark of an object without actions
      ConvertAction(session, LocateFromWidg(widg, action), action, found->second);
    }
  };
  for (Widg* widg = top_widget; widg; widg = widg->next) {
    WalkWidgets(
        widg->child, {WalkStep::kChild, WalkStep::kSelf, WalkStep::kNext},
        [](Widg*) { return true; }, convert);
    convert(widg);
  }
}

std::string WriteModule() {
  char* text = nullptr;
  std::size_t size = 0;
  std::FILE* stream = open_memstream(&text, &size);
  if (!stream) Error("Out of memory");
  FixProcedureNames();
  GenUILForWidgHierarchy(top_widget, stream);
  std::fclose(stream);
  std::string module(text, size);
  std::free(text);
  return module;
}

void SetFlags(std::vector<std::string> options) {
  std::vector<char*> arguments;
  options.insert(options.begin(), "pandrel");
  for (std::string& option : options) arguments.push_back(option.data());
  static std::string icon_folder;
  ParseCommandLine(static_cast<int>(arguments.size()), arguments.data());
  // The text of the option ends with this function.
  if (icon_dir_name) {
    icon_folder = icon_dir_name;
    icon_dir_name = icon_folder.c_str();
  }
}

void Run(const Input& input, Session& session, const std::string& file_name) {
  if (!std::freopen(file_name.c_str(), "r", stdin)) Error("Cannot read the file");
  ConvertFile(session, AddFile(session, input.file.filename().string()), &top_widget);
  ConvertMembers(session);
  ResolvePaths(session.model);
  MendTree(session);
  ConvertActions(session);
  MendCallbacks(session);
  const std::string module = WriteModule();
  ListWritten(session);
  Connect(session);
  MendModule(session, module);
  SettleObjects(session);
  SettleConnections(session);
  FindWindows(session);
}

}  // namespace

Model ConvertInterface(const Input& input) {
  Session session;
  Model& model = session.model;
  model.name = ProgramName(input.file);
  Shadow shadow = MakeShadow(input);
  if (!shadow.error.empty()) {
    model.error = shadow.error;
    return model;
  }
  Surroundings surroundings(shadow.folder, input.scratch / "messages");
  ResetSession();
  try {
    SetFlags(shadow.options);
    Run(input, session, input.file.filename().string());
  } catch (const Ended&) {
    model.error = "cannot be converted";
  }
  ResetSession();
  model.messages = surroundings.Messages();
  return model;
}

std::vector<std::string> InterfacesOf(const fs::path& project_file) {
  std::vector<std::string> names;
  const fs::path file = fs::absolute(project_file);
  Surroundings surroundings(file.parent_path(), "/dev/null");
  ResetSession();
  try {
    if (!std::freopen(file.c_str(), "r", stdin)) Error("Cannot read the file");
    Value* interfaces = nullptr;
    if (yyparse() == 0 && project) GetAttrValue(project, INTERFACES, &interfaces, 0);
    for (const Value* name = interfaces; name; name = name->next) {
      names.emplace_back(ValueText(name));
    }
  } catch (const Ended&) {
    names.clear();
  }
  ResetSession();
  return names;
}

}  // namespace port
