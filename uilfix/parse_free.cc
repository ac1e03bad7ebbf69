// SPDX-License-Identifier: MIT
#include "uilfix/parse_free.h"

#include <cctype>

#include "uilfix/characters.h"
#include "uilfix/literals.h"

namespace uilfix {
namespace {

constexpr std::string_view kPunctuation = ":;,={}()[]&\"'!/#+-*~|^<>";

bool IsOfWord(char c) {
  return !IsBlank(c) && c != '\0' && kPunctuation.find(c) == std::string_view::npos;
}

bool IsKeyword(std::string_view word, std::string_view keyword) {
  return std::equal(word.begin(), word.end(), keyword.begin(), keyword.end(), [](char a, char b) {
    return std::tolower(static_cast<unsigned char>(a)) == b;
  });
}

// Looks ahead over tokens; moves nothing. Every function returns one past what it passed over, or
// kNone when that does not end.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : text_(text) {}

  char At(std::size_t pos) const { return pos < text_.size() ? text_[pos] : '\0'; }

  // Blanks, line ends and comments.
  std::size_t Trivia(std::size_t pos) const {
    while (pos < text_.size()) {
      if (IsBlank(text_[pos])) {
        ++pos;
      } else if (text_[pos] == '!') {
        pos = std::min(text_.find('\n', pos), text_.size());
      } else if (text_[pos] == '/' && At(pos + 1) == '*') {
        pos = Comment(pos);
        if (pos == kNone) return kNone;
      } else {
        break;
      }
    }
    return pos;
  }

  std::size_t Comment(std::size_t pos) const {
    const std::size_t end = text_.find("*/", pos + 2);
    return end == kNone ? NoEnd(text_.size()) : end + 2;
  }

  // How far a search went that found no end.
  std::size_t Reach() const { return reach_; }

  std::size_t Word(std::size_t pos) const {
    while (pos < text_.size() && IsOfWord(text_[pos])) ++pos;
    return pos;
  }

  std::string_view WordAt(std::size_t pos) const { return text_.substr(pos, Word(pos) - pos); }

  // A string in either kind of quotes. One that runs over a line end is taken for a string only
  // when it is followed by what follows a string; otherwise its quote was never closed.
  std::size_t Literal(std::size_t pos) const {
    std::size_t end = text_[pos] == '"' ? LiteralEnd(text_, pos) : text_.find('\'', pos + 1);
    if (end == kNone) return NoEnd(text_.size());
    if (text_[pos] == '\'') ++end;
    const bool lines = text_.substr(pos, end - pos).find('\n') != kNone;
    if (!lines) return end;
    std::size_t next = end;
    while (IsBlank(At(next))) ++next;
    const bool follows = At(next) && std::string_view(";,)&}").find(At(next)) != kNone;
    return follows ? end : NoEnd(next);
  }

  // What stands before the next `stop` outside of brackets, strings and comments; `plain` tells
  // whether there is no comment in it, and no quote but those of "strings".
  std::size_t Before(std::size_t pos, char stop, bool* plain = nullptr) const {
    int parentheses = 0;
    int braces = 0;
    bool simple = true;
    while (pos < text_.size()) {
      const char c = text_[pos];
      if (c == stop && parentheses == 0 && braces == 0) {
        if (plain) *plain = simple;
        return pos;
      }
      if (c == '"' || c == '\'') {
        simple &= c == '"';
        pos = Literal(pos);
      } else if (c == '!' || (c == '/' && At(pos + 1) == '*')) {
        simple = false;
        pos = Trivia(pos);
      } else {
        const bool brace = c == '{' || c == '}';
        if (brace && parentheses > 0) return NoEnd(pos);
        if (c == '(') ++parentheses;
        if (c == ')') --parentheses;
        if (c == '{') ++braces;
        if (c == '}') --braces;
        if (parentheses < 0 || braces < 0) return NoEnd(pos);
        ++pos;
      }
      if (pos == kNone) return kNone;
    }
    return NoEnd(pos);
  }

  // The rest of the line when nothing but blanks is left on it.
  std::size_t RestOfLine(std::size_t pos) const {
    std::size_t end = pos;
    while (At(end) == ' ' || At(end) == '\t' || At(end) == '\r') ++end;
    return At(end) == '\n' ? end + 1 : pos;
  }

 private:
  std::size_t NoEnd(std::size_t reached) const {
    reach_ = std::max(reach_, reached);
    return kNone;
  }

  std::string_view text_;
  mutable std::size_t reach_ = 0;
};

std::string Text(std::string_view text, std::size_t begin, std::size_t end) {
  return std::string(text.substr(begin, end - begin));
}

// The form that begins at the cursor, in the order in which its parts stand.
class Form {
 public:
  explicit Form(Cursor& cursor)
      : cursor_(cursor),
        scan_(cursor.Text()),
        at_(cursor.Pos()),
        counted_(cursor.Pos()),
        line_(cursor.Line()) {}

  const Scanner& Scan() const { return scan_; }
  std::size_t Pos() const { return at_; }
  char Next() const { return scan_.At(at_); }
  bool Failed() const { return at_ == kNone; }

  void MoveTo(std::size_t pos) {
    at_ = pos;
    if (pos != kNone) furthest_ = std::max(furthest_, pos);
  }

  // How far was looked in all.
  std::size_t Furthest() const { return std::max(furthest_, scan_.Reach()); }

  // Passes over blanks and comments.
  void Trivia() {
    if (!Failed()) MoveTo(scan_.Trivia(at_));
  }

  // The word here, passed over with the trivia behind it; empty when there is none.
  std::string_view Word() {
    if (Failed()) return {};
    const std::string_view word = scan_.WordAt(at_);
    at_ += word.size();
    Trivia();
    return word;
  }

  bool Char(char c) {
    if (Failed() || Next() != c) return false;
    MoveTo(at_ + 1);
    return true;
  }

  std::string Between(std::size_t begin, std::size_t end) const {
    return Text(cursor_.Text(), begin, end);
  }

  // The line of a place that no earlier question was behind.
  int LineOf(std::size_t pos) {
    const std::string_view before = cursor_.Text().substr(counted_, pos - counted_);
    line_ += static_cast<int>(std::count(before.begin(), before.end(), '\n'));
    counted_ = pos;
    return line_;
  }

 private:
  Cursor& cursor_;
  Scanner scan_;
  std::size_t at_;
  std::size_t furthest_ = 0;
  std::size_t counted_;  // up to here the lines are counted
  int line_;
};

LayoutPtr MakeLayout(std::string head, std::string middle, std::string tail) {
  return std::make_shared<const Layout>(
      Layout{std::move(head), std::move(middle), std::move(tail)});
}

// "[exported] Class [gadget] {" behind the colon of an object's head. Leaves the form behind the
// class; false when no such head stands here.
bool TakeClass(Form& form, std::size_t* begin, std::size_t* end) {
  *begin = form.Pos();
  std::string_view word = form.Word();
  if (IsKeyword(word, "exported") || IsKeyword(word, "private")) {
    *begin = form.Pos();
    word = form.Word();
  }
  *end = *begin + word.size();
  if (word.empty() || form.Failed()) return false;
  if (IsKeyword(form.Scan().WordAt(form.Pos()), "widget") ||
      IsKeyword(form.Scan().WordAt(form.Pos()), "gadget")) {
    form.Word();
  }
  return form.Char('{');
}

std::optional<Item> TakeObjectHead(Form& form, std::size_t start) {
  const std::size_t name_begin = form.Pos();
  const std::string_view name = form.Word();
  const std::size_t name_end = name_begin + name.size();
  if (name.empty() || !form.Char(':')) return std::nullopt;
  form.Trivia();
  std::size_t class_begin = 0;
  std::size_t class_end = 0;
  if (form.Failed() || !TakeClass(form, &class_begin, &class_end)) return std::nullopt;
  form.MoveTo(form.Scan().RestOfLine(form.Pos()));
  Object object;
  object.name = name;
  object.class_name = form.Between(class_begin, class_end);
  object.line = form.LineOf(name_begin);
  object.layout = MakeLayout(form.Between(start, name_begin), form.Between(name_end, class_begin),
                             form.Between(class_end, form.Pos()));
  return object;
}

std::optional<Item> TakeProcedure(Form& form, std::size_t start) {
  const std::size_t name_begin = form.Pos();
  const std::string_view name = form.Word();
  const std::size_t name_end = name_begin + name.size();
  if (name.empty() || form.Failed()) return std::nullopt;
  if (form.Next() == '(') {
    const std::size_t close = form.Scan().Before(form.Pos() + 1, ')');
    if (close == kNone) return std::nullopt;
    form.MoveTo(close + 1);
    form.Trivia();
  }
  if (!form.Char(';')) return std::nullopt;
  form.MoveTo(form.Scan().RestOfLine(form.Pos()));
  Declaration declaration{std::string(name), form.LineOf(name_begin)};
  declaration.layout =
      MakeLayout(form.Between(start, name_begin), "", form.Between(name_end, form.Pos()));
  return declaration;
}

// The keywords that begin the parts of a module.
Definitions DefinitionsOf(std::string_view word, Definitions now) {
  if (IsKeyword(word, "object")) return Definitions::kObjects;
  if (IsKeyword(word, "procedure")) return Definitions::kProcedures;
  for (const std::string_view other : {"value", "list", "identifier", "include", "module", "end"}) {
    if (IsKeyword(word, other)) return Definitions::kOther;
  }
  return now;
}

// Entries. Each takes the form behind its lead, which begins at `start`.

std::optional<Entry> WholePiece(Form& form, std::size_t start) {
  const std::size_t end = form.Scan().Before(form.Pos(), ';');
  if (end == kNone) return std::nullopt;
  form.MoveTo(form.Scan().RestOfLine(end + 1));
  return Verbatim{form.Between(start, form.Pos())};
}

std::optional<Entry> TakeFreeControl(Form& form, std::size_t start) {
  const std::size_t begin = form.Pos();
  const std::size_t first_end = begin + form.Scan().WordAt(begin).size();
  const bool unmanaged = IsKeyword(form.Scan().WordAt(begin), "unmanaged");
  const bool managed = IsKeyword(form.Scan().WordAt(begin), "managed");
  std::size_t class_begin = begin;
  if (unmanaged || managed) {
    form.MoveTo(first_end);
    form.Trivia();
    class_begin = form.Pos();
  }
  const std::string_view class_name = form.Word();
  if (class_name.empty() || form.Failed()) return std::nullopt;
  std::size_t name_begin = form.Pos();
  std::string_view name = form.Word();
  if (IsKeyword(name, "widget") || IsKeyword(name, "gadget")) {
    name_begin = form.Pos();
    name = form.Word();
  }
  if (name.empty() || !form.Char(';')) {
    form.MoveTo(begin);
    return WholePiece(form, start);
  }
  form.MoveTo(form.Scan().RestOfLine(form.Pos()));
  const std::size_t class_end = class_begin + class_name.size();
  Control control{form.Between(start, begin), std::string(class_name), std::string(name), unmanaged,
                  form.LineOf(begin)};
  control.layout = MakeLayout(form.Between(begin, class_begin), form.Between(class_end, name_begin),
                              form.Between(name_begin + name.size(), form.Pos()));
  return control;
}

std::optional<Entry> TakeFreeArgument(Form& form, std::size_t start) {
  const std::size_t begin = form.Pos();
  const std::string_view resource = form.Word();
  std::size_t value_begin = 0;
  std::size_t end = kNone;
  bool plain = false;
  if (!resource.empty() && form.Char('=')) {
    form.Trivia();
    value_begin = form.Pos();
    if (!form.Failed()) end = form.Scan().Before(value_begin, ';', &plain);
  }
  if (end == kNone || end == value_begin || !plain) {
    form.MoveTo(begin);
    return WholePiece(form, start);
  }
  form.MoveTo(form.Scan().RestOfLine(end + 1));
  std::size_t value_end = end;
  while (IsBlank(form.Scan().At(value_end - 1))) --value_end;
  // "XmLabel title" names a widget by class and name.
  if (IsWidgetReference(resource)) {
    const std::size_t word_end = form.Scan().Word(value_begin);
    const std::size_t second = form.Scan().Trivia(word_end);
    if (second != kNone && second > word_end && second < value_end) value_begin = second;
  }
  Argument argument{form.Between(start, begin), std::string(resource),
                    form.Between(value_begin, value_end), form.LineOf(begin)};
  argument.layout = MakeLayout("", form.Between(begin + resource.size(), value_begin),
                               form.Between(value_end, form.Pos()));
  return argument;
}

// "name (argument);" with the texts around its parts; the head begins at `start`.
std::optional<Call> TakeFreeCall(Form& form, std::size_t start) {
  const std::size_t begin = form.Pos();
  const std::string_view procedure = form.Word();
  const std::size_t procedure_end = begin + procedure.size();
  if (procedure.empty() || form.Failed()) return std::nullopt;
  std::size_t argument_begin = procedure_end;
  std::size_t argument_end = procedure_end;
  if (form.Char('(')) {
    form.Trivia();
    if (form.Failed()) return std::nullopt;
    bool plain = false;
    argument_begin = form.Pos();
    argument_end = form.Scan().Before(argument_begin, ')', &plain);
    if (argument_end == kNone || !plain) return std::nullopt;
    form.MoveTo(argument_end + 1);
    while (argument_end > argument_begin && IsBlank(form.Scan().At(argument_end - 1))) {
      --argument_end;
    }
    form.Trivia();
  }
  if (!form.Char(';')) return std::nullopt;
  form.MoveTo(form.Scan().RestOfLine(form.Pos()));
  Call call{std::string(procedure), form.Between(argument_begin, argument_end), form.LineOf(begin)};
  call.layout = MakeLayout(form.Between(start, begin), form.Between(procedure_end, argument_begin),
                           form.Between(argument_end, form.Pos()));
  return call;
}

bool TakeFreeCalls(Form& form, Callback& callback, std::string* close_lead) {
  for (;;) {
    const std::size_t start = form.Pos();
    form.Trivia();
    if (form.Failed()) return false;
    if (form.Next() == '}') {
      *close_lead = form.Between(start, form.Pos());
      return !callback.calls.empty();
    }
    auto call = TakeFreeCall(form, start);
    if (!call) return false;
    callback.calls.push_back(std::move(*call));
  }
}

std::optional<Entry> TakeFreeCallback(Form& form, std::size_t start) {
  const std::size_t begin = form.Pos();
  Callback callback;
  callback.lead = form.Between(start, begin);
  callback.line = form.LineOf(begin);
  callback.reason = form.Word();
  const std::size_t middle = begin + callback.reason.size();
  bool taken = false;
  if (!callback.reason.empty() && form.Char('=')) {
    form.Trivia();
    const std::string_view keyword = form.Word();
    if (form.Failed()) return std::nullopt;
    if (IsKeyword(keyword, "procedure")) {
      auto call = TakeFreeCall(form, form.Pos());
      taken = call.has_value();
      if (taken) {
        const std::size_t head_end = middle + (form.Pos() - middle) - call->procedure.size() -
                                     call->layout->middle.size() - call->argument.size() -
                                     call->layout->tail.size();
        callback.layout = MakeLayout("", form.Between(middle, head_end), "");
        callback.calls.push_back(std::move(*call));
      }
    } else if (IsKeyword(keyword, "procedures") && form.Char('{')) {
      form.MoveTo(form.Scan().RestOfLine(form.Pos()));
      const std::size_t calls = form.Pos();
      callback.list = true;
      std::string close_lead;
      taken = TakeFreeCalls(form, callback, &close_lead);
      if (taken) {
        const std::size_t close = form.Pos();
        form.Char('}');
        form.Trivia();
        taken = form.Char(';');
        if (taken) form.MoveTo(form.Scan().RestOfLine(form.Pos()));
        if (taken) {
          callback.layout =
              MakeLayout(close_lead, form.Between(middle, calls), form.Between(close, form.Pos()));
        }
      }
    }
  }
  if (taken) return callback;
  form.MoveTo(begin);
  return WholePiece(form, start);
}

// The head of a section, which only an object's own level has.
std::optional<Entry> TakeSectionHead(Form& form, std::size_t start) {
  const std::string_view word = form.Word();
  Mark mark = Mark::kNone;
  if (IsKeyword(word, "controls")) mark = Mark::kControls;
  if (IsKeyword(word, "arguments")) mark = Mark::kArguments;
  if (IsKeyword(word, "callbacks")) mark = Mark::kCallbacks;
  if (mark == Mark::kNone || form.Failed()) return std::nullopt;
  if (!form.Char('{')) {
    const auto piece = WholePiece(form, start);  // "arguments a_list;"
    return piece;
  }
  form.MoveTo(form.Scan().RestOfLine(form.Pos()));
  return Verbatim{form.Between(start, form.Pos()), mark};
}

std::optional<Entry> TakeEnd(Form& form, std::size_t start, Mark section) {
  form.Char('}');
  form.Trivia();
  if (!form.Char(';')) return std::nullopt;
  form.MoveTo(form.Scan().RestOfLine(form.Pos()));
  const Mark mark = section == Mark::kNone ? Mark::kObjectEnd : Mark::kEnd;
  return Verbatim{form.Between(start, form.Pos()), mark, 0, true};
}

std::optional<Entry> TakePiece(Form& form, Mark section) {
  const std::size_t start = form.Pos();
  form.Trivia();
  if (form.Failed()) return std::nullopt;
  if (form.Next() == '}') return TakeEnd(form, start, section);
  switch (section) {
    case Mark::kControls:
      return TakeFreeControl(form, start);
    case Mark::kArguments:
      return TakeFreeArgument(form, start);
    case Mark::kCallbacks:
      return TakeFreeCallback(form, start);
    default:
      return TakeSectionHead(form, start);
  }
}

}  // namespace

std::optional<Item> TakeFreeDefinition(Cursor& cursor, Definitions& definitions) {
  if (!cursor.HasBudget()) return std::nullopt;
  Form form(cursor);
  const std::size_t start = form.Pos();
  // The comments in front of a definition are no part of it.
  while (form.Next() == ' ' || form.Next() == '\t') form.MoveTo(form.Pos() + 1);
  const std::size_t word_end = form.Scan().Word(form.Pos());
  const std::size_t behind = form.Scan().Trivia(word_end);
  if (word_end == form.Pos() || behind == kNone) return std::nullopt;
  if (form.Scan().At(behind) != ':') {
    const auto word = form.Between(form.Pos(), word_end);
    const Definitions next = DefinitionsOf(word, definitions);
    const bool keyword = IsKeyword(word, "object") || IsKeyword(word, "procedure");
    definitions = next;
    if (keyword) form.MoveTo(behind);
  }
  std::optional<Item> item;
  if (definitions == Definitions::kObjects) item = TakeObjectHead(form, start);
  if (definitions == Definitions::kProcedures) item = TakeProcedure(form, start);
  if (!item) {
    cursor.Return(cursor.Here(), form.Furthest());
    return std::nullopt;
  }
  cursor.TakeTo(form.Pos());
  return item;
}

std::optional<Entry> TakeFreeEntry(Cursor& cursor, Mark section) {
  if (!cursor.HasBudget()) return std::nullopt;
  Form form(cursor);
  auto entry = TakePiece(form, section);
  if (!entry) {
    cursor.Return(cursor.Here(), form.Furthest());
    return std::nullopt;
  }
  if (auto* verbatim = std::get_if<Verbatim>(&*entry)) verbatim->line = cursor.Line();
  cursor.TakeTo(form.Pos());
  return entry;
}

Verbatim TakeFreeLine(Cursor& cursor) {
  const std::string_view text = cursor.Text();
  std::size_t pos = cursor.Pos();
  std::size_t end = cursor.EndOfLine(pos);
  const Scanner scan(text);
  while (pos < end && cursor.HasBudget()) {
    if (text[pos] == '!') break;
    if (text[pos] == '"' || text[pos] == '\'') {
      const std::size_t close = text.find(text[pos], pos + 1);
      if (close < end) pos = close;
    } else if (text[pos] == '/' && scan.At(pos + 1) == '*') {
      const std::size_t close = scan.Comment(pos);
      if (close == kNone) {
        cursor.Return(cursor.Here(), text.size());
        break;
      }
      end = std::max(end, cursor.EndOfLine(close));
      pos = close - 1;
    }
    ++pos;
  }
  Verbatim line{"", Mark::kNone, cursor.Line()};
  line.text = cursor.TakeTo(end);
  return line;
}

}  // namespace uilfix
