// SPDX-License-Identifier: MIT
// The compiler takes lines of 130 bytes, in comments too. A string is carried on in the next line
// by "&"; one that stands further back in its value goes to a line of its own first.
#include <algorithm>

#include "uilfix/literals.h"
#include "uilfix/rewrites.h"

namespace uilfix {
namespace {

constexpr std::size_t kMaxLine = 130;

// The text of a value, with breaks put in so that no line is too long.
class LineBreaker {
 public:
  // `column` is where the value begins on its line; `lead` begins each line that a break makes.
  LineBreaker(std::size_t column, std::string lead) : column_(column), lead_(std::move(lead)) {}

  // `tail` is what follows the value on its last line.
  std::string Break(const std::string& value, std::string_view tail) {
    const std::vector<ValuePart> parts = SplitValue(value);
    for (std::size_t i = 0; i < parts.size(); ++i) {
      if (!parts[i].literal) {
        Append(parts[i].text);
        continue;
      }
      std::string after = i + 1 < parts.size() ? parts[i + 1].text : "";
      if (i + 2 >= parts.size()) after += tail;
      AppendLiteral(parts[i].text, std::min(after.find('\n'), after.size()));
    }
    return text_;
  }

 private:
  void Append(const std::string& text) {
    text_ += text;
    const std::size_t newline = text.rfind('\n');
    column_ = newline == std::string::npos ? column_ + text.size() : text.size() - newline - 1;
  }

  void NewLine() {
    while (text_.ends_with(' ')) text_.pop_back();
    text_ += '\n' + lead_;
    column_ = lead_.size();
  }

  // `after` bytes must fit behind the literal.
  void AppendLiteral(const std::string& literal, std::size_t after) {
    if (column_ + literal.size() + after <= kMaxLine) return Append(literal);
    if (!text_.empty() && column_ > lead_.size()) NewLine();
    if (column_ + literal.size() + after <= kMaxLine) return Append(literal);
    CutLiteral(literal.substr(1, literal.size() - 2), after);
  }

  // Cuts behind the last blank that fits, or where the room ends when there is none.
  void CutLiteral(const std::string& inside, std::size_t after) {
    const std::vector<std::string> characters = SplitCharacters(inside);
    std::size_t begin = 0;
    while (begin < characters.size()) {
      const std::size_t room = kMaxLine - column_ - 2;  // for what stands between the quotes
      std::size_t end = begin;
      std::size_t blank = begin;
      std::size_t size = 0;
      while (end < characters.size() && size + characters[end].size() + 2 <= room) {
        size += characters[end++].size();
        if (characters[end - 1] == " ") blank = end;
      }
      const bool last = end == characters.size() && size + after <= room;
      if (!last) end = blank > begin ? blank : end;
      std::string piece = "\"";
      for (; begin < end; ++begin) piece += characters[begin];
      Append(piece + '"');
      if (last) break;
      Append(" &");
      NewLine();
      if (begin == characters.size()) Append("\"\"");
    }
  }

  std::size_t column_;
  std::string lead_;
  std::string text_;
};

bool HasLongLine(const std::string& text) {
  std::size_t begin = 0;
  while (begin < text.size()) {
    std::size_t end = text.find('\n', begin);
    if (end == std::string::npos) end = text.size();
    if (end - begin > kMaxLine) return true;
    begin = end + 1;
  }
  return false;
}

void BreakArgument(Argument& argument) {
  const std::size_t column = argument.lead.size() + argument.resource.size() + 3;
  argument.value = LineBreaker(column, argument.lead + "\t").Break(argument.value, ";");
}

void BreakCalls(Callback& callback) {
  const std::string& lead = callback.list ? callback.call_lead : callback.lead;
  const std::size_t head =
      callback.list ? lead.size() : lead.size() + callback.reason.size() + 13;  // " = procedure "
  for (Call& call : callback.calls) {
    const std::size_t column = head + call.procedure.size() + 1;
    if (column + call.argument.size() + 2 <= kMaxLine) continue;
    call.argument = LineBreaker(column, lead + "\t").Break(call.argument, ");");
  }
}

}  // namespace

void FixLines(Module& module, Report& report) {
  ForEachObject(module, [&](Object& object) {
    for (Entry& entry : object.entries) {
      if (!HasLongLine(RenderEntry(entry))) continue;
      int line = 0;
      std::string what;
      const std::string before = RenderEntry(entry);
      if (auto* argument = std::get_if<Argument>(&entry)) {
        BreakArgument(*argument);
        line = argument->line;
        what = argument->resource;
      } else if (auto* callback = std::get_if<Callback>(&entry)) {
        BreakCalls(*callback);
        line = callback->line;
        what = callback->reason;
      }
      if (RenderEntry(entry) != before) {
        report.Add(line, what + " of " + object.name + ": line over 130 bytes broken");
      }
    }
  });
}

}  // namespace uilfix
