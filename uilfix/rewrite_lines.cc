// SPDX-License-Identifier: MIT
// The compiler accepts lines of 130 bytes, also in comments. This breaks longer ones, as
// line_breaker.h says. Nothing runs after it: a broken entry becomes plain text.
#include "uilfix/line_breaker.h"
#include "uilfix/rewrites.h"

namespace uilfix {
namespace {

// A part of a record's layout; `usual` is what pandrel writes there.
std::string_view Part(const LayoutPtr& layout, std::string Layout::*part, std::string_view usual) {
  return layout ? std::string_view((*layout).*part) : usual;
}

// Goes over the module's text with the column at which each piece begins: in the free layout
// several share a line.
class LineMender {
 public:
  LineMender(Module& module, Report& report) : module_(module), report_(report) {}

  void Mend(Item& item) {
    if (auto* object = std::get_if<Object>(&item)) {
      MendObject(*object);
    } else if (auto* verbatim = std::get_if<Verbatim>(&item)) {
      MendText(*verbatim, "");
    } else {
      Pass(std::get<Declaration>(item).layout);
    }
  }

 private:
  // The texts of heads and declarations are short, except for a name, which cannot be broken.
  void Pass(const LayoutPtr& layout) {
    column_ = layout ? ColumnBehind(layout->tail, column_ + layout->head.size()) : 0;
  }

  void MendObject(Object& object) {
    Pass(object.layout);
    for (Entry& entry : object.entries) {
      const std::size_t size = EntrySize(entry);
      if (column_ + size <= kMaxLine && EndsLine(entry)) {
        column_ = 0;
      } else {
        MendEntry(entry, object);
      }
    }
  }

  static bool EndsLine(const Entry& entry) {
    if (const auto* verbatim = std::get_if<Verbatim>(&entry)) return verbatim->text.ends_with('\n');
    const auto* argument = std::get_if<Argument>(&entry);
    const auto* control = std::get_if<Control>(&entry);
    const LayoutPtr* layout = argument ? &argument->layout : control ? &control->layout : nullptr;
    return layout && !*layout;
  }

  void MendEntry(Entry& entry, const Object& object) {
    const std::string text = RenderEntry(entry);
    if (!HasLongLine(text, column_)) {
      column_ = ColumnBehind(text, column_);
      return;
    }
    if (auto* verbatim = std::get_if<Verbatim>(&entry)) return MendText(*verbatim, object.name);
    int line = 0;
    std::string what;
    LineBreaker breaker(column_, "");
    if (const auto* argument = std::get_if<Argument>(&entry)) {
      breaker = BreakerFor(argument->lead);
      Break(*argument, text, breaker);
      line = argument->line;
      what = argument->resource;
    } else if (const auto* callback = std::get_if<Callback>(&entry)) {
      breaker = BreakerFor(callback->lead + (callback->list ? "\t" : ""));
      Break(*callback, text, breaker);
      line = callback->line;
      what = callback->reason;
    } else if (const auto* control = std::get_if<Control>(&entry)) {
      breaker = BreakerFor(control->lead);
      breaker.AppendFree(text);
      line = control->line;
      what = control->name;
    }
    column_ = breaker.Column();
    if (breaker.Text() == text) return;
    report_.Add(line, what + " of " + object.name + ": line over 130 bytes broken");
    entry = Verbatim{breaker.Text(), Mark::kNone, line};
  }

  // Lines that a break makes begin like the entry's own, one tab further in.
  LineBreaker BreakerFor(const std::string& lead) const {
    const std::size_t begin = lead.rfind('\n') == std::string::npos ? 0 : lead.rfind('\n') + 1;
    std::string own = lead.substr(begin);
    const bool own_line = begin > 0 || column_ == 0;
    const bool words = own.find_first_not_of("!(ZO) \t") != std::string::npos;
    if (!own_line || words || own.size() > kMaxLine / 2) own = "\t\t";
    return LineBreaker(column_, own + '\t');
  }

  void Break(const Argument& argument, std::string_view text, LineBreaker& breaker) const {
    text.remove_prefix(argument.lead.size());
    breaker.AppendFree(argument.lead);
    if (column_ > 0) breaker.MakeRoom(std::min(text.find('\n'), text.size()));
    breaker.Append(argument.resource);
    breaker.AppendFree(Part(argument.layout, &Layout::middle, " = "));
    const std::string_view tail = Part(argument.layout, &Layout::tail, ";\n");
    breaker.AppendValue(argument.value, tail);
    // A ";" alone on its line would not be pandrel's layout any more, which commented lines must
    // be.
    argument.layout ? breaker.AppendFree(tail) : breaker.Append(tail);
  }

  void Break(const Callback& callback, std::string_view text, LineBreaker& breaker) const {
    text.remove_prefix(callback.lead.size());
    breaker.AppendFree(callback.lead);
    if (column_ > 0) breaker.MakeRoom(std::min(text.find('\n'), text.size()));
    breaker.Append(callback.reason);
    breaker.AppendFree(Part(callback.layout, &Layout::middle,
                            callback.list ? " = procedures {\n" : " = procedure "));
    for (const Call& call : callback.calls) {
      if (call.layout) {
        breaker.AppendFree(call.layout->head);
      } else if (callback.list) {
        breaker.Append(callback.lead + '\t');
      }
      breaker.Append(call.procedure);
      breaker.AppendFree(Part(call.layout, &Layout::middle, "("));
      const std::string_view tail = Part(call.layout, &Layout::tail, ");\n");
      breaker.AppendValue(call.argument, tail);
      call.layout ? breaker.AppendFree(tail) : breaker.Append(tail);
    }
    if (callback.list) {
      breaker.AppendFree(Part(callback.layout, &Layout::head, callback.lead + '\t'));
    }
    breaker.AppendFree(Part(callback.layout, &Layout::tail, callback.list ? "};\n" : ""));
  }

  void MendText(Verbatim& verbatim, const std::string& object) {
    if (!HasLongLine(verbatim.text, column_)) {
      column_ = ColumnBehind(verbatim.text, column_);
      return;
    }
    LineBreaker breaker(column_, "\t");
    breaker.AppendFree(verbatim.text, verbatim.mark != Mark::kNone);
    column_ = breaker.Column();
    if (breaker.Text() == verbatim.text) return;
    if (module_.odd_line == 0) module_.odd_line = verbatim.line;
    verbatim.text = breaker.Text();
    report_.Add(verbatim.line, object.empty() ? "line over 130 bytes broken"
                                              : "line over 130 bytes in " + object + " broken");
  }

  Module& module_;
  Report& report_;
  std::size_t column_ = 0;
};

}  // namespace

void FixLines(Module& module, Report& report) {
  LineMender mender(module, report);
  for (Item& item : module.items) mender.Mend(item);
}

}  // namespace uilfix
