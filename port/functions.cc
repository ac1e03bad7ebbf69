// SPDX-License-Identifier: MIT
#include "port/functions.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>

#include "port/library_names.h"

#include "widget/tree.h"

namespace port {
namespace {

// Keywords of C up to its newest form, and of C++, since programs get ported on.
constexpr std::string_view kKeywords[] = {"alignas",
                                          "alignof",
                                          "and",
                                          "and_eq",
                                          "asm",
                                          "auto",
                                          "bitand",
                                          "bitor",
                                          "bool",
                                          "break",
                                          "case",
                                          "catch",
                                          "char",
                                          "class",
                                          "compl",
                                          "const",
                                          "const_cast",
                                          "constexpr",
                                          "continue",
                                          "default",
                                          "delete",
                                          "do",
                                          "double",
                                          "dynamic_cast",
                                          "else",
                                          "enum",
                                          "explicit",
                                          "export",
                                          "extern",
                                          "false",
                                          "float",
                                          "for",
                                          "friend",
                                          "goto",
                                          "if",
                                          "inline",
                                          "int",
                                          "long",
                                          "mutable",
                                          "namespace",
                                          "new",
                                          "noexcept",
                                          "not",
                                          "not_eq",
                                          "nullptr",
                                          "operator",
                                          "or",
                                          "or_eq",
                                          "private",
                                          "protected",
                                          "public",
                                          "register",
                                          "reinterpret_cast",
                                          "restrict",
                                          "return",
                                          "short",
                                          "signed",
                                          "sizeof",
                                          "static",
                                          "static_assert",
                                          "static_cast",
                                          "struct",
                                          "switch",
                                          "template",
                                          "this",
                                          "thread_local",
                                          "throw",
                                          "true",
                                          "try",
                                          "typedef",
                                          "typeid",
                                          "typename",
                                          "typeof",
                                          "typeof_unqual",
                                          "union",
                                          "unix",
                                          "linux",
                                          "unsigned",
                                          "using",
                                          "virtual",
                                          "void",
                                          "volatile",
                                          "wchar_t",
                                          "while",
                                          "xor",
                                          "xor_eq"};

// The names that the generated files define where the user's functions are declared. tests/port
// tries every word of the templates.
constexpr std::string_view kOurs[] = {
    "ALWAYS",
    "AddConnections",
    "AnswerDrop",
    "COUNT",
    "Call",
    "Choose",
    "CloseWindow",
    "Condition",
    "Connect",
    "ConnectBelow",
    "CountClosed",
    "CountOpened",
    "DropTarget",
    "EndOnSignals",
    "EndProgram",
    "EventKind",
    "Fetch",
    "FillShell",
    "FindBitmaps",
    "FindKind",
    "GiveSize",
    "HandleEvent",
    "HasLabel",
    "HasResource",
    "IsSecondClick",
    "IsSet",
    "IsUsable",
    "MakeShell",
    "MakeWindows",
    "MenuOf",
    "ModuleFile",
    "NoticeEnd",
    "OwnerShell",
    "PORT_CALLBACKS_H",
    "PORT_CONNECTIONS_H",
    "PORT_DATADIR",
    "Plan",
    "PortStub",
    "PostMenu",
    "PostMenus",
    "ProgramFolder",
    "RegisterProcedures",
    "Resource",
    "Row",
    "SetLabel",
    "SetResources",
    "SetValue",
    "Setting",
    "ShowWindows",
    "StringOf",
    "TEXT",
    "TakeDropped",
    "TakeDrops",
    "UseSubstituteLetters",
    "WHEN_SET",
    "WHEN_UNSET",
    "WINDOWS",
    "app",
    "class_name",
    "display",
    "drop_targets",
    "end_signal",
    "event_kinds",
    "fallback_resources",
    "main",
    "no_argument",
    "open_windows",
    "plans",
    "program_name",
    "rows",
    "shells",
    "sizeof",
    "void",
};

// Prefixes of names that belong to the libraries and to the other files of the program.
constexpr std::string_view kPrefixes[] = {
    "Xt", "Xm",  "xm",  "_X",       "Zo",  "Mrm",      "MRM",   "XA_",     "XK_",
    "__", "str", "mem", "pthread_", "SIG", "setting_", "work_", "popups_", "resources_"};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// A prefix of a library's names: "Xt" takes XtManageChild, not Xtra.
bool HasLibraryPrefix(const std::string& word) {
  for (std::string_view prefix : kPrefixes) {
    if (!word.starts_with(prefix)) continue;
    const bool lower = prefix == "str" || prefix == "mem";
    const char next = word.size() > prefix.size() ? word[prefix.size()] : 'A';
    // The language keeps "str" and "mem" with a small letter behind for its library.
    if (lower ? next >= 'a' && next <= 'z' : !(next >= 'a' && next <= 'z') || prefix.back() == '_')
      return true;
  }
  // Xlib: a capital X and a capital letter.
  if (word.size() > 2 && word[0] == 'X' && word[1] >= 'A' && word[1] <= 'Z') return true;
  return word.starts_with("_");
}

std::string FreeWord(std::string word, const std::set<std::string>& used) {
  if (IsTaken(word)) word += "_callback";
  std::string candidate = word;
  for (int number = 2; used.contains(candidate); ++number) {
    candidate = word;
    candidate += '_';
    candidate += std::to_string(number);
  }
  return candidate;
}

bool IsCode(const Connection& connection) { return connection.function_type == "ExecuteCode"; }

// What a piece of code is called: after its source and event.
std::string CodeName(const Model& model, const Connection& connection) {
  std::string name = connection.from_object >= 0 ? model.objects[connection.from_object].name
                     : connection.from.empty()   ? "code"
                                                 : connection.from.back();
  if (!connection.from_item.empty()) name += "_" + connection.from_item;
  if (!connection.when.empty() && connection.when[0] != "Notify") name += "_" + connection.when[0];
  return CWord(name) + "_code";
}

class Functions {
 public:
  explicit Functions(Model& model) : model_(model) {}

  void Add(int index) {
    Connection& connection = model_.connections[index];
    const int function = IsCode(connection) ? AddCode(connection) : AddNamed(connection.action);
    model_.functions[function].connections.push_back(index);
    connection.function = model_.functions[function].name;
  }

 private:
  int AddNamed(const std::string& gil_name) {
    const auto found = by_gil_name_.find(gil_name);
    if (found != by_gil_name_.end()) return found->second;
    return by_gil_name_[gil_name] = Append(CWord(gil_name), gil_name, "");
  }

  int AddCode(const Connection& connection) {
    return Append(CodeName(model_, connection), "", connection.action);
  }

  int Append(const std::string& wish, const std::string& gil_name, const std::string& code) {
    const std::string name = FreeWord(wish, used_);
    used_.insert(name);
    model_.functions.push_back({name, gil_name, code, {}});
    return static_cast<int>(model_.functions.size()) - 1;
  }

  Model& model_;
  std::map<std::string, int> by_gil_name_;
  std::set<std::string> used_;
};

}  // namespace

bool IsWordByte(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

std::string CWord(const std::string& text) {
  std::string word;
  for (char c : text) word += IsWordByte(c) ? c : '_';
  if (word.empty() || IsDigit(word[0])) word.insert(0, "f_");
  if (word.size() > 60) word.resize(60);
  return word;
}

bool IsTaken(const std::string& word) {
  const auto is_word = [&](std::string_view known) { return known == word; };
  return std::any_of(std::begin(kKeywords), std::end(kKeywords), is_word) || IsLibraryName(word) ||
         std::any_of(std::begin(kOurs), std::end(kOurs), is_word) || HasLibraryPrefix(word);
}

bool CallsFunction(const Connection& connection) {
  return (connection.function_type == "CallFunction" || IsCode(connection)) &&
         !connection.action.empty();
}

void NameFunctions(Session& session) {
  Model& model = session.model;
  Functions functions(model);
  for (std::size_t i = 0; i < model.connections.size(); ++i) {
    if (CallsFunction(model.connections[i])) functions.Add(static_cast<int>(i));
  }
  std::set<std::string> listed;
  for (const Link& link : session.links) {
    const Connection& connection = model.connections[link.connection];
    const auto found = session.procedures.find(link.callback->procedure);
    if (connection.function.empty() || found == session.procedures.end()) continue;
    if (listed.insert(found->second).second) {
      model.procedures.push_back({found->second, connection.function});
    }
  }
}

std::string ProgramName(const std::filesystem::path& input) {
  // Targets of the makefile and the names of the other files.
  constexpr std::string_view kTaken[] = {"all",  "run",       "install",     "clean", "Makefile",
                                         "main", "callbacks", "connections", "zo",    "letters",
                                         "f_",   "README",    "bitmaps",     "report"};
  const std::string name = CWord(input.stem().string());
  const bool taken = std::find(std::begin(kTaken), std::end(kTaken), name) != std::end(kTaken);
  return taken ? name + "_app" : name;
}

}  // namespace port
