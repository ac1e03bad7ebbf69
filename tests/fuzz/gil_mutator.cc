// SPDX-License-Identifier: MIT
#include "gil_mutator.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "gil/tokens.h"
#include "gil/words.h"
#include "gil_outline.h"

namespace {

// More would slow the fuzzer down without showing anything new.
constexpr std::size_t kMaxObjects = 64;
constexpr std::size_t kMaxFiles = 4;

constexpr const char* kNumbers[] = {"0",          "1",           "-1",   "2",
                                    "8",          "100",         "-100", "32767",
                                    "2147483647", "-2147483648", "--5",  "99999999999"};
constexpr const char* kStrings[] = {"\"\"",
                                    "\"a\"",
                                    "\"Open\"",
                                    "\"a\\\"b\"",
                                    "\"two\nlines\"",
                                    "\"x.icon\"",
                                    "\"9\"",
                                    "\"%s%n\"",
                                    "\"$(id)\"",
                                    "\"a.b.icon\"",
                                    "\"abcdefghijklmnopqrstuvwxyz0123456789\""};
constexpr const char* kNames[] = {"nil",
                                  "t",
                                  "nobody",
                                  "Upper",
                                  "item7",
                                  "widget",
                                  "a.b",
                                  "x9",
                                  "\"quoted name\"",
                                  "\"\"",
                                  "abcdefghijklmnopqrstuvwxyz0123456789"};
constexpr const char* kEvents[] = {"Notify", "Select", "Resize", "Repaint",     "KeyPress",
                                   "Enter",  "Menu",   "Done",   "DoubleClick", "AnyEvent"};
constexpr const char* kActions[] = {"Show", "Hide", "Enable", "Disable", "do_it", "quit"};
constexpr const char* kFunctionTypes[] = {":user_defined", "CallFunction", "ExecuteCode"};
constexpr const char* kInterfaces[] = {"a.G", "b.G", "c.G", "missing.G", "nil", "\"a.G\""};

class Mutator {
 public:
  Mutator(std::string_view text, unsigned seed) : random_(seed) {
    for (std::size_t end = 0; files_.size() < kMaxFiles; text.remove_prefix(end + 1)) {
      end = text.find(kFileSeparator);
      files_.push_back(ReadOutline(text.substr(0, end), kMaxObjects));
      if (end == std::string_view::npos) break;
    }
  }

  // One to four changes.
  void Mutate() {
    for (std::size_t i = Below(4) + 1; i > 0; --i) MutateOnce();
  }

  // Takes over some objects of another input.
  void Adopt(const Mutator& other) {
    const OutlineFile& theirs = other.files_[Below(other.files_.size())];
    OutlineFile& ours = File();
    if (theirs.objects.empty() || !ours.list) return;
    for (std::size_t i = Below(5) + 1; i > 0 && ours.objects.size() < kMaxObjects; --i) {
      const OutlineObject& object = theirs.objects[Below(theirs.objects.size())];
      ours.objects.insert(At(ours, Below(ours.objects.size() + 1)), object);
    }
  }

  std::string Print() const {
    std::string text;
    for (const OutlineFile& file : files_) {
      if (&file != &files_.front()) text += kFileSeparator;
      PrintOutline(file, &text);
    }
    return text;
  }

 private:
  using Attributes = std::vector<OutlineAttribute>;

  std::size_t Below(std::size_t count) { return count == 0 ? 0 : random_() % count; }
  bool OneIn(std::size_t count) { return Below(count) == 0; }

  template <std::size_t count>
  std::string OneOf(const char* const (&texts)[count]) {
    return texts[Below(count)];
  }

  static std::vector<OutlineObject>::iterator At(OutlineFile& file, std::size_t index) {
    return file.objects.begin() + static_cast<std::ptrdiff_t>(index);
  }

  OutlineFile& File() { return files_[Below(files_.size())]; }

  // Some object; null when no file has one.
  OutlineObject* Object() {
    OutlineFile& file = File();
    return file.objects.empty() ? nullptr : &file.objects[Below(file.objects.size())];
  }

  static OutlineAttribute* Find(OutlineObject* object, std::string_view keyword) {
    for (OutlineAttribute& attribute : object->attributes) {
      if (attribute.keyword == keyword) return &attribute;
    }
    return nullptr;
  }

  // Sets the attribute in its place, or adds it where the reader wants it: the type first, the
  // actions last.
  static void Set(OutlineObject* object, const std::string& keyword, std::string value) {
    if (OutlineAttribute* attribute = Find(object, keyword)) {
      attribute->value = std::move(value);
      return;
    }
    Attributes& attributes = object->attributes;
    auto place = attributes.end();
    if (place != attributes.begin() && std::prev(place)->keyword == ":actions") --place;
    if (keyword == ":type") place = attributes.begin();
    attributes.insert(place, {keyword, std::move(value)});
  }

  // The name of some object, mostly; sometimes one that none has.
  std::string Name() {
    OutlineObject* object = OneIn(8) ? nullptr : Object();
    OutlineAttribute* name = object == nullptr ? nullptr : Find(object, ":name");
    return name == nullptr ? OneOf(kNames) : name->value;
  }

  std::string WordOf(Enumeration enumeration);
  std::string ElementType();
  std::string Value(ValueForm form);
  template <typename MakeElement>
  std::string List(MakeElement make_element);
  std::string Path();
  std::string Action();

  void MutateOnce();
  void MoveObject();
  void DuplicateObject();
  void RemoveObject();
  void Collide();
  void Reown();
  void Renest();
  void Remenu();
  void Regroup();
  void Reaction();
  void ChangeListLength();
  void ChangeValue();
  void ChangeType();
  void AddAttribute();
  void EditAttributes();
  void BorrowValue();
  void AddObject();
  void EditFiles();

  std::mt19937 random_;
  std::vector<OutlineFile> files_;
};

std::string Mutator::WordOf(Enumeration enumeration) {
  std::vector<std::string> words;
  for (const Word* keyword = kFirstWord; keyword <= kLastWord; ++keyword) {
    if (keyword->text && IsWordOf(enumeration, keyword->token))
      words.push_back(std::string(":") + keyword->text);
  }
  // The two words that are written without a colon.
  if (IsWordOf(enumeration, T)) words.emplace_back("t");
  if (IsWordOf(enumeration, NIL)) words.emplace_back("nil");
  return words[Below(words.size())];
}

std::string Mutator::ElementType() {
  std::vector<std::string> types;
  for (const Word* keyword = kFirstWord; keyword <= kLastWord; ++keyword) {
    if (IsWordOf(kElementType, keyword->token)) types.push_back(std::string(":") + keyword->text);
  }
  return types[Below(types.size())];
}

template <typename MakeElement>
std::string Mutator::List(MakeElement make_element) {
  std::vector<std::string> elements;
  for (std::size_t i = Below(6); i > 0; --i) elements.push_back(make_element());
  return MakeList(elements);
}

std::string Mutator::Value(ValueForm form) {
  switch (form.shape) {
    case kIntegerShape:
      return OneOf(kNumbers);
    case kStringShape:
      return OneOf(kStrings);
    case kIntegerOrStringShape:
      return OneIn(2) ? OneOf(kNumbers) : OneOf(kStrings);
    case kNameShape:
      return Name();
    case kNameListShape:
      return List([this] { return Name(); });
    case kStringListShape:
      return List([this] { return OneOf(kStrings); });
    case kWordShape:
      return WordOf(form.words);
    case kWordListShape:
      return List([this, form] { return WordOf(form.words); });
    default:
      return "()";
  }
}

std::string Mutator::Path() {
  std::vector<std::string> names;
  for (std::size_t i = Below(4); i > 0; --i) names.push_back(Name());
  if (OneIn(4)) names.push_back(OneOf(kStrings));
  return MakeList(names);
}

std::string Mutator::Action() {
  const std::string when =
      OneIn(8) ? List([this] { return OneOf(kEvents); }) : "(" + OneOf(kEvents) + ")";
  const std::string action =
      OneIn(8) ? List([this] { return Name(); }) : "(" + OneOf(kActions) + ")";
  return "(:from " + Path() + " :when " + when + " :to " + Path() + " :function_type " +
         OneOf(kFunctionTypes) + " :arg_type " + List([this] { return WordOf(kArgType); }) +
         " :action " + action + ")";
}

void Mutator::MoveObject() {
  OutlineFile& from = File();
  OutlineFile& to = File();
  if (from.objects.empty() || !from.list || !to.list) return;
  const std::size_t index = Below(from.objects.size());
  OutlineObject object = std::move(from.objects[index]);
  from.objects.erase(At(from, index));
  to.objects.insert(At(to, Below(to.objects.size() + 1)), std::move(object));
}

void Mutator::DuplicateObject() {
  const OutlineObject* object = Object();
  OutlineFile& to = File();
  if (object == nullptr || object->attributes.empty() || !to.list ||
      to.objects.size() >= kMaxObjects)
    return;
  OutlineObject copy = *object;
  if (OneIn(2)) Set(&copy, ":name", Name());
  to.objects.insert(At(to, Below(to.objects.size() + 1)), std::move(copy));
}

void Mutator::RemoveObject() {
  OutlineFile& file = File();
  if (file.objects.size() > 1) file.objects.erase(At(file, Below(file.objects.size())));
}

void Mutator::Collide() {
  if (OutlineObject* object = Object()) Set(object, ":name", Name());
}

void Mutator::Reown() {
  if (OutlineObject* object = Object()) Set(object, ":owner", Name());
}

// A chain of owners through several objects, which may close to a ring.
void Mutator::Renest() {
  OutlineFile& file = File();
  for (std::size_t i = 1; i < file.objects.size() && !OneIn(6); ++i) {
    if (OutlineAttribute* name = Find(&file.objects[i - 1], ":name")) {
      Set(&file.objects[i], ":owner", name->value);
    }
  }
}

void Mutator::Remenu() {
  OutlineObject* object = Object();
  if (object == nullptr) return;
  const OutlineAttribute* own = Find(object, ":name");
  Set(object, ":menu", own != nullptr && OneIn(4) ? own->value : Name());
}

void Mutator::Regroup() {
  OutlineObject* object = Object();
  if (object == nullptr) return;
  if (OneIn(3)) Set(object, ":type", ":group");
  Set(object, ":members", Value(kNameList));
}

void Mutator::Reaction() {
  OutlineObject* object = Object();
  if (object == nullptr) return;
  std::vector<std::string> actions;
  if (const OutlineAttribute* present = Find(object, ":actions")) {
    actions = ListElements(present->value);
  }
  if (actions.empty() || OneIn(2)) {
    actions.push_back(Action());
  } else {
    actions[Below(actions.size())] = Action();
  }
  if (OneIn(4)) actions.push_back(actions[Below(actions.size())]);
  Set(object, ":actions", MakeList(actions));
}

// The form that the attribute's value should have; kNoValue for an unknown keyword.
static ValueForm FormOf(const OutlineAttribute& attribute) {
  const std::string& word = attribute.keyword;
  const Word* keyword = word.empty() ? nullptr : FindKeyword(word.c_str() + 1, word.size() - 1);
  return keyword ? keyword->value : kNoValue;
}

void Mutator::ChangeListLength() {
  OutlineObject* object = Object();
  if (object == nullptr || object->attributes.empty()) return;
  // Begins at some attribute and takes the first list from there on.
  const std::size_t start = Below(object->attributes.size());
  for (std::size_t i = 0; i < object->attributes.size(); ++i) {
    const std::size_t index = (start + i) % object->attributes.size();
    OutlineAttribute& attribute = object->attributes[index];
    if (attribute.value.empty() || attribute.value.front() != '(') continue;
    std::vector<std::string> elements = ListElements(attribute.value);
    if (elements.empty()) {
      const ValueForm form = FormOf(attribute);
      attribute.value = attribute.keyword == ":actions" ? MakeList({Action()}) : Value(form);
      return;
    }
    switch (Below(4)) {
      case 0:
        elements.pop_back();
        break;
      case 1:
        elements.erase(elements.begin());
        break;
      case 2:
        std::shuffle(elements.begin(), elements.end(), random_);
        break;
      default:
        for (std::size_t n = Below(5) + 1; n > 0; --n) {
          elements.push_back(elements[Below(elements.size())]);
        }
    }
    attribute.value = MakeList(elements);
    return;
  }
}

void Mutator::ChangeValue() {
  OutlineObject* object = Object();
  if (object == nullptr || object->attributes.empty()) return;
  OutlineAttribute& attribute = object->attributes[Below(object->attributes.size())];
  const ValueForm form = FormOf(attribute);
  if (form.shape != kNothing) attribute.value = Value(form);
}

void Mutator::ChangeType() {
  if (OutlineObject* object = Object()) Set(object, ":type", ElementType());
}

void Mutator::AddAttribute() {
  OutlineObject* object = Object();
  if (object == nullptr) return;
  std::vector<const Word*> candidates;
  for (const Word* keyword = kFirstWord; keyword <= kLastWord; ++keyword) {
    if (keyword->value.shape != kNothing) candidates.push_back(keyword);
  }
  const Word* keyword = candidates[Below(candidates.size())];
  Set(object, std::string(":") + keyword->text, Value(keyword->value));
}

void Mutator::EditAttributes() {
  OutlineObject* object = Object();
  if (object == nullptr || object->attributes.size() < 3) return;
  Attributes& attributes = object->attributes;
  // The type stays first and the actions last, or the reader would refuse the object at once.
  const std::size_t count = attributes.size() - (attributes.back().keyword == ":actions" ? 2 : 1);
  const auto chosen = attributes.begin() + static_cast<std::ptrdiff_t>(1 + Below(count));
  switch (Below(3)) {
    case 0:
      attributes.erase(chosen);
      break;
    case 1:
      attributes.insert(chosen, OutlineAttribute(*chosen));
      break;
    default:
      std::iter_swap(chosen, attributes.begin() + static_cast<std::ptrdiff_t>(1 + Below(count)));
  }
}

void Mutator::BorrowValue() {
  OutlineObject* object = Object();
  const OutlineObject* lender = Object();
  if (object == nullptr || lender == nullptr || lender->attributes.empty()) return;
  const OutlineAttribute lent = lender->attributes[Below(lender->attributes.size())];
  if (!lent.keyword.empty() && lent.keyword != ":interfaces") {
    Set(object, lent.keyword, lent.value);
  }
}

void Mutator::AddObject() {
  OutlineFile& file = File();
  if (!file.list || file.objects.size() >= kMaxObjects) return;
  OutlineObject object;
  object.attributes = {{":type", ElementType()}, {":name", Name()}, {":owner", Name()}};
  // Menus and settings end the run without these.
  if (object.attributes[0].value == ":menu") {
    object.attributes.push_back({":menu-type", WordOf(kMenuType)});
    object.attributes.push_back({":menu-item-labels", Value(kStringList)});
    object.attributes.push_back({":menu-item-menus", Value(kNameList)});
  }
  if (object.attributes[0].value == ":setting") {
    object.attributes.push_back({":choices", Value(kStringList)});
  }
  if (object.attributes[0].value == ":group") {
    object.attributes.push_back({":members", Value(kNameList)});
  }
  file.objects.insert(At(file, Below(file.objects.size() + 1)), std::move(object));
}

void Mutator::EditFiles() {
  if (files_.size() < kMaxFiles && OneIn(2)) {
    if (files_.size() == 1) {
      // The file becomes an interface of a new project.
      OutlineFile project;
      project.head = ";GIL-3\n";
      project.list = false;
      project.objects = {{{{":interfaces", List([this] { return OneOf(kInterfaces); })}}}};
      files_.insert(files_.begin(), std::move(project));
    } else {
      files_.push_back(files_[Below(files_.size())]);
    }
  } else if (files_.size() > 1 && OneIn(2)) {
    files_.erase(files_.begin() + static_cast<std::ptrdiff_t>(Below(files_.size())));
  } else {
    std::shuffle(files_.begin(), files_.end(), random_);
  }
}

void Mutator::MutateOnce() {
  using Change = void (Mutator::*)();
  // A change that stands twice is made twice as often.
  constexpr Change kChanges[] = {
      &Mutator::MoveObject,   &Mutator::DuplicateObject,  &Mutator::RemoveObject,
      &Mutator::Collide,      &Mutator::Collide,          &Mutator::Reown,
      &Mutator::Reown,        &Mutator::Renest,           &Mutator::Remenu,
      &Mutator::Remenu,       &Mutator::Regroup,          &Mutator::Regroup,
      &Mutator::Reaction,     &Mutator::ChangeListLength, &Mutator::ChangeListLength,
      &Mutator::ChangeValue,  &Mutator::ChangeValue,      &Mutator::ChangeType,
      &Mutator::AddAttribute, &Mutator::AddAttribute,     &Mutator::EditAttributes,
      &Mutator::BorrowValue,  &Mutator::AddObject,        &Mutator::EditFiles,
  };
  (this->*kChanges[Below(std::size(kChanges))])();
}

std::string_view Text(const uint8_t* data, std::size_t size, std::size_t prefix) {
  const std::size_t skipped = std::min(size, prefix);
  return {reinterpret_cast<const char*>(data) + skipped, size - skipped};
}

}  // namespace

std::size_t MutateGil(uint8_t* data, std::size_t size, std::size_t max_size, unsigned seed,
                      std::size_t prefix, ByteMutator fallback) {
  std::minstd_rand random(seed);
  if (max_size <= prefix) return size;
  // A new input begins with choices of its own.
  for (; size < prefix; ++size) data[size] = static_cast<uint8_t>(random() >> 8U);
  if (prefix > 0 && random() % 16 == 0) {
    data[random() % prefix] = static_cast<uint8_t>(random() >> 8U);
  }
  if (fallback != nullptr && random() % 8 == 0) {
    return prefix + fallback(data + prefix, size - prefix, max_size - prefix);
  }
  Mutator mutator(Text(data, size, prefix), seed);
  mutator.Mutate();
  const std::string text = mutator.Print();
  if (text.size() > max_size - prefix) return size;
  std::memcpy(data + prefix, text.data(), text.size());
  return prefix + text.size();
}

std::size_t CrossOverGil(const uint8_t* first, std::size_t first_size, const uint8_t* second,
                         std::size_t second_size, uint8_t* out, std::size_t max_size, unsigned seed,
                         std::size_t prefix) {
  Mutator mutator(Text(first, first_size, prefix), seed);
  mutator.Adopt(Mutator(Text(second, second_size, prefix), seed));
  const std::string text = mutator.Print();
  const std::size_t kept = std::min(first_size, prefix);
  if (kept + text.size() > max_size) return 0;
  std::memcpy(out, first, kept);
  std::memcpy(out + kept, text.data(), text.size());
  return kept + text.size();
}
