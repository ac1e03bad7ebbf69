// SPDX-License-Identifier: MIT
// Text to module records. Each form is tried where it may stand; what fits no form is taken as one
// line of Verbatim. A form is accepted only when it spells the consumed bytes exactly, which is
// what makes reading and rendering the identity.
#include <algorithm>
#include <cctype>
#include <optional>

#include "uilfix/literals.h"
#include "uilfix/module.h"

namespace uilfix {
namespace {

enum class Section { kNone, kControls, kArguments, kCallbacks };

bool IsWordChar(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

class Parser {
 public:
  explicit Parser(std::string_view text) : text_(text) {}

  Module Parse() {
    Module module;
    while (pos_ < text_.size()) {
      if (auto object = TakeObject()) {
        module.items.emplace_back(std::move(*object));
      } else if (auto declaration = TakeDeclaration()) {
        module.items.emplace_back(std::move(*declaration));
      } else {
        module.items.emplace_back(TakeLine());
      }
    }
    return module;
  }

 private:
  std::string_view Rest() const { return text_.substr(pos_); }
  bool At(std::string_view word) const { return Rest().starts_with(word); }

  // Moves on by `count` bytes and returns them.
  std::string Take(std::size_t count) {
    std::string taken(text_.substr(pos_, count));
    line_ += static_cast<int>(std::count(taken.begin(), taken.end(), '\n'));
    pos_ += taken.size();
    return taken;
  }

  // The text up to `stop`, which is left out and passed over; nothing, and no move, without it.
  std::optional<std::string> TakeUntil(std::string_view stop) {
    const std::size_t end = text_.find(stop, pos_);
    if (end == std::string_view::npos) return std::nullopt;
    std::string taken = Take(end - pos_);
    Take(stop.size());
    return taken;
  }

  bool TakeWord(std::string_view word) {
    if (!At(word)) return false;
    Take(word.size());
    return true;
  }

  std::string TakeName() {
    std::size_t end = pos_;
    while (end < text_.size() && IsWordChar(text_[end])) ++end;
    return Take(end - pos_);
  }

  // The comment prefix, if any, and the blanks and tabs after it.
  std::string TakeLead() {
    std::size_t end = pos_;
    if (At("!(ZO)")) {
      end += 5;
    } else if (At("!")) {
      end += 1;
    }
    while (end < text_.size() && (text_[end] == '\t' || text_[end] == ' ')) ++end;
    return Take(end - pos_);
  }

  Verbatim TakeLine() {
    const std::size_t end = text_.find('\n', pos_);
    return {Take(end == std::string_view::npos ? text_.size() - pos_ : end + 1 - pos_)};
  }

  // Runs `take` and undoes its moves when it returns nothing.
  template <typename F>
  auto Try(F take) -> decltype(take()) {
    const std::size_t pos = pos_;
    const int line = line_;
    auto result = take();
    if (!result) {
      pos_ = pos;
      line_ = line;
    }
    return result;
  }

  std::optional<Declaration> TakeDeclaration() {
    return Try([&]() -> std::optional<Declaration> {
      const int line = line_;
      if (!TakeWord("procedure ")) return std::nullopt;
      auto name = TakeUntil(";\n");
      if (!name || name->find('(') != std::string::npos) return std::nullopt;
      return Declaration{*name, line};
    });
  }

  bool AtObject() const { return At("object\n") || At("!object\n") || At("!(ZO)object\n"); }

  std::optional<Object> TakeObject() {
    if (!AtObject()) return std::nullopt;
    return Try([&]() -> std::optional<Object> {
      Object object;
      object.prefix = *TakeUntil("object\n");
      if (!TakeWord(object.prefix)) return std::nullopt;
      object.line = line_;
      if (!TakeObjectHead(object)) return std::nullopt;
      TakeEntries(object);
      return object;
    });
  }

  // "name:Class{". The name may hold anything, colons and line ends included, since a quoted GIL
  // name is written as it stands; so the head ends at the first line that ends like one, and there
  // is none when the object's first section begins before.
  bool TakeObjectHead(Object& object) {
    std::size_t end = pos_;
    while ((end = text_.find("{\n", end)) != std::string_view::npos) {
      const std::string_view head = text_.substr(pos_, end - pos_);
      if (head.ends_with("\tcontrols ")) return false;
      const std::size_t colon = head.rfind(':');
      const std::string_view class_name =
          colon == std::string_view::npos ? std::string_view() : head.substr(colon + 1);
      if (!class_name.empty() && std::all_of(class_name.begin(), class_name.end(), IsWordChar)) {
        object.name = head.substr(0, colon);
        object.class_name = class_name;
        Take(head.size() + 2);
        return true;
      }
      end += 2;
    }
    return false;
  }

  void TakeEntries(Object& object) {
    Section section = Section::kNone;
    while (pos_ < text_.size() && !AtObject() && !At("end module")) {
      if (auto entry = TakeEntry(section)) {
        object.entries.push_back(std::move(*entry));
        continue;
      }
      Verbatim line = TakeLine();
      section = SectionAfter(line.text, section);
      object.entries.emplace_back(std::move(line));
    }
  }

  static Section SectionAfter(const std::string& line, Section section) {
    if (line.ends_with("\tcontrols {\n")) return Section::kControls;
    if (line.ends_with("\targuments {\n")) return Section::kArguments;
    if (line.ends_with("\tcallbacks {\n")) return Section::kCallbacks;
    if (line.ends_with("};\n")) return Section::kNone;
    return section;
  }

  std::optional<Entry> TakeEntry(Section section) {
    switch (section) {
      case Section::kControls:
        return TakeControl();
      case Section::kArguments:
        return TakeArgument();
      case Section::kCallbacks:
        return TakeCallback();
      case Section::kNone:
        break;
    }
    return std::nullopt;
  }

  std::optional<Entry> TakeControl() {
    return Try([&]() -> std::optional<Entry> {
      Control control;
      control.line = line_;
      control.lead = TakeLead();
      control.unmanaged = TakeWord("unmanaged ");
      control.class_name = TakeName();
      if (control.class_name.empty() || !TakeWord(" ")) return std::nullopt;
      auto name = TakeUntil(";\n");
      if (!name) return std::nullopt;
      control.name = *name;
      return control;
    });
  }

  std::optional<Entry> TakeArgument() {
    return Try([&]() -> std::optional<Entry> {
      Argument argument;
      argument.line = line_;
      argument.lead = TakeLead();
      argument.resource = TakeName();
      if (argument.resource.empty() || !TakeWord(" = ")) return std::nullopt;
      auto value = TakeValue(argument.resource);
      if (!value) return std::nullopt;
      argument.value = *value;
      return argument;
    });
  }

  // The value up to its ";" at a line end. Widget names stand for themselves, so a quote in one
  // means nothing; everywhere else a string literal may hold line ends and semicolons.
  std::optional<std::string> TakeValue(const std::string& resource) {
    if (IsWidgetReference(resource)) return TakeUntil(";\n");
    for (std::size_t i = pos_; i < text_.size();) {
      if (text_[i] == '"') {
        i = LiteralEnd(text_, i);
        if (i == std::string_view::npos) break;
      } else if (text_.substr(i, 2) == ";\n") {
        std::string value = Take(i - pos_);
        Take(2);
        return value;
      } else {
        ++i;
      }
    }
    return std::nullopt;
  }

  std::optional<Entry> TakeCallback() {
    return Try([&]() -> std::optional<Entry> {
      Callback callback;
      callback.line = line_;
      callback.lead = TakeLead();
      callback.reason = TakeName();
      if (callback.reason.empty()) return std::nullopt;
      if (TakeWord(" = procedures {\n")) {
        callback.list = true;
        if (!TakeCalls(callback)) return std::nullopt;
        return callback;
      }
      if (!TakeWord(" = procedure ")) return std::nullopt;
      auto call = TakeCall();
      if (!call) return std::nullopt;
      callback.calls.push_back(*call);
      return callback;
    });
  }

  // The calls of a list and its closing line. Every call stands behind the same lead.
  bool TakeCalls(Callback& callback) {
    for (;;) {
      std::string lead = TakeLead();
      if (TakeWord("};\n")) {
        callback.close_lead = lead;
        return !callback.calls.empty();
      }
      if (callback.calls.empty()) callback.call_lead = lead;
      if (lead != callback.call_lead) return false;
      auto call = TakeCall();
      if (!call) return false;
      callback.calls.push_back(*call);
    }
  }

  std::optional<Call> TakeCall() {
    Call call;
    call.line = line_;
    auto procedure = TakeUntil("(");
    if (!procedure || procedure->find('\n') != std::string::npos) return std::nullopt;
    auto argument = TakeUntil(");\n");
    if (!argument) return std::nullopt;
    call.procedure = *procedure;
    call.argument = *argument;
    return call;
  }

  std::string_view text_;
  std::size_t pos_ = 0;
  int line_ = 1;
};

}  // namespace

bool IsWidgetReference(std::string_view resource) {
  return resource == "XmNmenuHistory" || resource == "XmNtopWidget";
}

Module ParseModule(std::string_view text) { return Parser(text).Parse(); }

}  // namespace uilfix
