// SPDX-License-Identifier: MIT
// Text to module records. Each form of pandrel's own layout is tried where it may stand, then the
// compiler's free layout; what fits neither is taken as one line of Verbatim. A form is accepted
// only when it spells the consumed bytes exactly, which is what makes reading and rendering the
// identity.
#include <array>
#include <cctype>
#include <iterator>
#include <optional>

#include "uilfix/cursor.h"
#include "uilfix/literals.h"
#include "uilfix/module.h"
#include "uilfix/parse_free.h"

namespace uilfix {
namespace {

bool IsWordChar(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

struct SectionLine {
  std::string_view text;
  Mark mark;
};

// The lines between the entries of a live object, as pandrel writes them.
constexpr std::array<SectionLine, 7> kSectionLines = {{
    {"\tcontrols {\n", Mark::kControls},
    {"\targuments {\n", Mark::kArguments},
    {"\tcallbacks {\n", Mark::kCallbacks},
    {"\t\t};\n", Mark::kEnd},
    {"\t};\n", Mark::kEnd},
    {"};\n", Mark::kEnd},
    {"\n", Mark::kNone},
}};

// The least bytes of an object, with the blank line between objects. Reserving memory for too many
// costs nothing; moving them does.
constexpr std::size_t kSmallObject = 80;

// The mark of a line in a commented object, or of one that fits no form.
Mark MarkOfLine(std::string_view line) {
  for (const SectionLine& row : kSectionLines) {
    if (line.ends_with(row.text)) return row.mark;
  }
  return Mark::kNone;
}

// Whether the compiler reads nothing in a line: it is blank or a comment.
bool IsSilent(std::string_view line) {
  const std::size_t begin = line.find_first_not_of(" \t\n\r");
  return begin == kNone || line[begin] == '!' || line.substr(begin, 2) == "/*";
}

class Parser {
 public:
  explicit Parser(std::string_view text) : cursor_(text), text_(text) {}

  Module Parse() {
    Module module;
    module.items.reserve(text_.size() / kSmallObject);
    while (!cursor_.AtEnd()) {
      if (auto object = TakeObject()) {
        definitions_ = Definitions::kObjects;
        module.items.emplace_back(std::move(*object));
      } else if (auto declaration = TakeDeclaration()) {
        definitions_ = Definitions::kProcedures;
        module.items.emplace_back(std::move(*declaration));
      } else if (cursor_.Peek() == '\n') {
        module.items.emplace_back(Verbatim{"\n", Mark::kNone, cursor_.Line()});
        cursor_.TakeTo(Pos() + 1);
      } else if (auto item = TakeFreeDefinition(cursor_, definitions_)) {
        if (auto* head = std::get_if<Object>(&*item)) TakeEntries(*head);
        module.items.emplace_back(std::move(*item));
      } else {
        Verbatim line = TakeFreeLine(cursor_);
        if (definitions_ != Definitions::kOther) NoteOdd(line);
        module.items.emplace_back(std::move(line));
      }
    }
    module.odd_line = odd_line_;
    return module;
  }

 private:
  std::size_t Pos() const { return cursor_.Pos(); }

  std::size_t EndOfName(std::size_t pos) const {
    while (pos < text_.size() && IsWordChar(text_[pos])) ++pos;
    return pos;
  }

  // Where the comment prefix, if any, and the blanks and tabs after it end.
  std::size_t EndOfLead() const {
    std::size_t end = Pos();
    if (cursor_.At("!(ZO)")) {
      end += 5;
    } else if (cursor_.At("!")) {
      end += 1;
    }
    while (end < text_.size() && (text_[end] == '\t' || text_[end] == ' ')) ++end;
    return end;
  }

  std::string_view TakeLead() { return cursor_.TakeInLine(EndOfLead()); }
  std::string_view TakeName() { return cursor_.TakeInLine(EndOfName(Pos())); }

  // Runs `take` and undoes its moves when it returns nothing.
  template <typename F>
  auto Try(F take) -> decltype(take()) {
    const Cursor::Place place = cursor_.Here();
    furthest_ = 0;
    auto result = take();
    if (!result) cursor_.Return(place, std::max(furthest_, Pos()));
    return result;
  }

  // A name and the ";" with a line end behind it, which is passed over. A name that was quoted in
  // the GIL file begins with a quote and may hold anything, line ends included.
  std::optional<std::string_view> TakeWholeName() {
    const bool quoted = cursor_.Peek() == '"';
    const std::size_t end = quoted ? Find(";\n") : EndOfPlainName();
    if (end == kNone) return std::nullopt;
    const std::string_view name = cursor_.TakeTo(end);
    cursor_.TakeTo(end + 2);
    return name;
  }

  // Where ";" and a line end follow a name without quotes.
  std::size_t EndOfPlainName() {
    std::size_t end = Pos();
    constexpr std::string_view kStops = " \t\n;{}(,!";
    while (end < text_.size() && kStops.find(text_[end]) == kNone) ++end;
    furthest_ = std::max(furthest_, end);
    return end > Pos() && text_.substr(end, 2) == ";\n" ? end : kNone;
  }

  std::size_t Find(std::string_view stop) {
    if (!cursor_.HasBudget()) return kNone;
    const std::size_t found = text_.find(stop, Pos());
    if (found == kNone) furthest_ = text_.size();
    return found;
  }

  std::optional<Declaration> TakeDeclaration() {
    return Try([&]() -> std::optional<Declaration> {
      const int line = cursor_.Line();
      if (!cursor_.TakeWord("procedure ")) return std::nullopt;
      const auto name = TakeWholeName();
      if (!name) return std::nullopt;
      return Declaration{std::string(*name), line};
    });
  }

  bool AtObject() const {
    return cursor_.At("object\n") || cursor_.At("!object\n") || cursor_.At("!(ZO)object\n");
  }

  std::optional<Object> TakeObject() {
    if (!AtObject()) return std::nullopt;
    auto object = Try([&]() -> std::optional<Object> {
      Object head;
      const std::size_t keyword = text_.find("object\n", Pos());
      head.prefix = cursor_.TakeTo(keyword);
      cursor_.TakeTo(keyword + 7);
      if (!cursor_.TakeWord(head.prefix)) return std::nullopt;
      head.line = cursor_.Line();
      if (!TakeObjectHead(head)) return std::nullopt;
      return head;
    });
    if (object) TakeEntries(*object);
    return object;
  }

  // "name:Class{". A quoted name may hold colons and line ends; so the head ends at the first line
  // that ends like one, and there is none when the object's first section or the next object begins
  // before.
  bool TakeObjectHead(Object& object) {
    const bool quoted = cursor_.Peek() == '"';
    std::size_t last = cursor_.EndOfLine(Pos());
    if (quoted && cursor_.HasBudget()) last = std::min(text_.find("object\n", Pos()), text_.size());
    furthest_ = last;
    std::size_t end = Pos();
    while ((end = text_.substr(0, last).find("{\n", end)) != kNone) {
      const std::string_view head = text_.substr(Pos(), end - Pos());
      if (head.ends_with("\tcontrols ")) return false;
      const std::size_t colon = ColonOf(head);
      const bool plain = quoted || head.find_first_of(" \t!;") == kNone;
      if (colon != kNone && plain) {
        object.name = head.substr(0, colon);
        object.class_name = head.substr(colon + 1);
        cursor_.TakeTo(end + 2);
        return true;
      }
      end += 2;
    }
    return false;
  }

  // The colon in front of the class that the head ends in.
  static std::size_t ColonOf(std::string_view head) {
    std::size_t colon = head.size();
    while (colon > 0 && IsWordChar(head[colon - 1])) --colon;
    const bool found = colon > 0 && colon < head.size() && head[colon - 1] == ':';
    return found ? colon - 1 : kNone;
  }

  void TakeEntries(Object& object) {
    entries_.clear();
    GatherEntries(object);
    object.entries.assign(std::make_move_iterator(entries_.begin()),
                          std::make_move_iterator(entries_.end()));
  }

  void GatherEntries(const Object& object) {
    Mark section = Mark::kNone;
    while (!cursor_.AtEnd() && !AtObject() && !cursor_.At("end module")) {
      if (TakeEntry(section)) continue;
      std::optional<Entry> piece = TakeSectionLines(object, section);
      if (!piece && !object.IsComment()) piece = TakeFreeEntry(cursor_, section);
      if (!piece) piece = TakeOddLine(object);
      const auto* verbatim = std::get_if<Verbatim>(&*piece);
      const Mark mark = verbatim ? verbatim->mark : Mark::kNone;
      if (verbatim && mark == Mark::kNone) NoteOdd(*verbatim);
      entries_.push_back(std::move(*piece));
      if (mark == Mark::kObjectEnd) return;
      if (mark != Mark::kNone) section = mark == Mark::kEnd ? Mark::kNone : mark;
    }
  }

  // All lines between two entries, as pandrel writes them, as one record: half of a module is such
  // lines. Lines that end the object, and those behind the head of the arguments, where more may be
  // added, are records of their own.
  std::optional<Entry> TakeSectionLines(const Object& object, Mark section) {
    if (object.IsComment()) return std::nullopt;
    const std::size_t begin = Pos();
    Verbatim lines{"", Mark::kNone, cursor_.Line()};
    while (const SectionLine* row = SectionLineHere()) {
      const bool end = row->mark == Mark::kEnd;
      if (end && section == Mark::kNone && Pos() > begin) break;
      cursor_.TakeTo(Pos() + row->text.size());
      if (row->mark == Mark::kNone) continue;
      lines.mark = end && section == Mark::kNone ? Mark::kObjectEnd : row->mark;
      lines.closes |= end;
      section = end ? Mark::kNone : row->mark;
      if (lines.mark == Mark::kObjectEnd || section == Mark::kArguments) break;
    }
    if (Pos() == begin) return std::nullopt;
    lines.text = text_.substr(begin, Pos() - begin);
    return lines;
  }

  const SectionLine* SectionLineHere() const {
    for (const SectionLine& row : kSectionLines) {
      if (cursor_.At(row.text)) return &row;
    }
    return nullptr;
  }

  void NoteOdd(const Verbatim& line) {
    if (odd_line_ == 0 && !IsSilent(line.text)) odd_line_ = line.line;
  }

  Verbatim TakeOddLine(const Object& object) {
    if (!object.IsComment()) return TakeFreeLine(cursor_);
    Verbatim line{"", Mark::kNone, cursor_.Line()};
    line.text = cursor_.TakeTo(cursor_.EndOfLine(Pos()));
    line.mark = MarkOfLine(line.text);
    return line;
  }

  // Takes an entry of the section, in pandrel's layout, to the end of `entries_`.
  bool TakeEntry(Mark section) {
    switch (section) {
      case Mark::kControls:
        return TakeControl();
      case Mark::kArguments:
        return TakeArgument();
      case Mark::kCallbacks:
        return TakeCallback();
      default:
        return false;
    }
  }

  // Lets `take` fill in a new entry; undoes all when it cannot.
  template <typename T, typename F>
  bool TryEntry(F take) {
    const Cursor::Place place = cursor_.Here();
    furthest_ = 0;
    T& entry = std::get<T>(entries_.emplace_back(std::in_place_type<T>));
    if (take(entry)) return true;
    entries_.pop_back();
    cursor_.Return(place, std::max(furthest_, Pos()));
    return false;
  }

  bool TakeControl() {
    return TryEntry<Control>([&](Control& control) {
      control.line = cursor_.Line();
      control.lead = TakeLead();
      control.unmanaged = cursor_.TakeWord("unmanaged ");
      control.class_name = TakeName();
      if (control.class_name.empty() || !cursor_.TakeWord(" ")) return false;
      const auto name = TakeWholeName();
      if (!name) return false;
      control.name = *name;
      return true;
    });
  }

  bool TakeArgument() {
    return TryEntry<Argument>([&](Argument& argument) {
      argument.line = cursor_.Line();
      argument.lead = TakeLead();
      argument.resource = TakeName();
      if (argument.resource.empty() || !cursor_.TakeWord(" = ")) return false;
      const auto value = TakeValue(argument.resource, argument.lead);
      if (!value) return false;
      argument.value = *value;
      return true;
    });
  }

  // The value up to its ";" at a line end. Widget names stand for themselves, so a quote in one
  // means nothing; everywhere else a string literal may hold line ends and semicolons. A long value
  // in a comment goes on in further comment lines.
  std::optional<std::string_view> TakeValue(std::string_view resource, std::string_view lead) {
    if (IsWidgetReference(resource)) return TakeWholeName();
    const std::string_view mark = lead.substr(0, lead.find('\t'));
    std::size_t i = Pos();
    while (i < text_.size()) {
      const char c = text_[i];
      if (c == '"') {
        i = cursor_.HasBudget() ? LiteralEnd(text_, i) : kNone;
        if (i == kNone) i = text_.size();
      } else if (c == ';') {
        if (text_.substr(i, 2) != ";\n") break;
        const std::string_view value = cursor_.TakeTo(i);
        cursor_.TakeTo(i + 2);
        return value;
      } else if (c == '!' && text_[i - 1] == '\n' && !mark.empty() &&
                 text_.substr(i).starts_with(mark)) {
        i += mark.size();
      } else if (c == '!' || c == '{' || c == '}' || c == '\'' || text_.substr(i, 2) == "/*") {
        break;  // a comment, or another form
      } else {
        ++i;
      }
    }
    furthest_ = i;
    return std::nullopt;
  }

  bool TakeCallback() {
    return TryEntry<Callback>([&](Callback& callback) {
      callback.line = cursor_.Line();
      callback.lead = TakeLead();
      callback.reason = TakeName();
      if (callback.reason.empty()) return false;
      if (cursor_.TakeWord(" = procedures {\n")) {
        callback.list = true;
        return TakeCalls(callback);
      }
      if (!cursor_.TakeWord(" = procedure ")) return false;
      auto call = TakeCall();
      if (!call) return false;
      callback.calls.push_back(std::move(*call));
      return true;
    });
  }

  // The calls of a list and its closing line, each one tab further in than the list.
  bool TakeCalls(Callback& callback) {
    for (;;) {
      if (!cursor_.TakeWord(callback.lead) || !cursor_.TakeWord("\t")) return false;
      if (cursor_.TakeWord("};\n")) return !callback.calls.empty();
      auto call = TakeCall();
      if (!call) return false;
      callback.calls.push_back(std::move(*call));
    }
  }

  std::optional<Call> TakeCall() {
    const std::size_t open = text_.substr(0, cursor_.EndOfLine(Pos())).find('(', Pos());
    if (open == kNone) return std::nullopt;
    Call call;
    call.line = cursor_.Line();
    call.procedure = cursor_.TakeInLine(open);
    if (call.procedure[0] != '"' && call.procedure.find_first_of(" \t;!") != kNone) {
      return std::nullopt;
    }
    cursor_.TakeInLine(open + 1);
    const std::size_t close = Find(");\n");
    if (close == kNone || !MayBeArgument(close)) return std::nullopt;
    call.argument = cursor_.TakeTo(close);
    cursor_.TakeTo(close + 3);
    return call;
  }

  // Whether a call's argument may run up to `close`. It goes on in a further line only within a
  // string, behind "&", or when all of it stands there; otherwise a comment ends the call's line.
  bool MayBeArgument(std::size_t close) const {
    const std::string_view all = text_.substr(Pos(), close - Pos());
    const std::string_view line = all.substr(0, all.find('\n'));
    if (line.size() == all.size() || line.empty()) return true;
    if (line.ends_with('&') || line.starts_with("\"(WL)[\"")) return true;
    bool open = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
      if (line[i] == '\\') {
        ++i;
      } else if (line[i] == '"') {
        open = !open;
      }
    }
    return open;
  }

  Cursor cursor_;
  std::string_view text_;
  std::vector<Entry> entries_;  // of the object that is being read
  int odd_line_ = 0;
  Definitions definitions_ = Definitions::kOther;
  std::size_t furthest_ = 0;  // how far the form that is being tried was looked for
};

}  // namespace

bool IsWidgetReference(std::string_view resource) {
  return resource == "XmNmenuHistory" || resource == "XmNtopWidget";
}

Module ParseModule(std::string_view text) { return Parser(text).Parse(); }

}  // namespace uilfix
