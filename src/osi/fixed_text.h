// SPDX-License-Identifier: MIT
// Names that the program itself gives: of widget classes and of resources. A conversion compares
// them by the thousand, so each carries its length and a hash, made when the program is compiled.
#ifndef PANDREL_OSI_FIXED_TEXT_H
#define PANDREL_OSI_FIXED_TEXT_H

#include <cstdint>
#include <string_view>

class FixedText {
 public:
  // The empty text.
  constexpr FixedText() = default;

  // From a literal; null counts as empty. Implicit, so that names stand in the code as they are.
  // NOLINTNEXTLINE(google-explicit-constructor)
  consteval FixedText(const char* literal) { *this = Of(literal); }

  // Any other text, which is not copied and must not change; null counts as empty.
  static constexpr FixedText Of(const char* text) {
    FixedText made;
    if (!text) return made;
    made.text_ = text;
    for (const char* c = text; *c; ++c) {
      made.hash_ = (made.hash_ ^ static_cast<unsigned char>(*c)) * kPrime;
      ++made.length_;
    }
    return made;
  }

  constexpr const char* text() const { return text_; }
  constexpr std::string_view view() const { return {text_, length_}; }
  constexpr bool empty() const { return length_ == 0; }

  friend constexpr bool operator==(FixedText a, FixedText b) {
    return a.hash_ == b.hash_ && a.view() == b.view();
  }

 private:
  // FNV-1a.
  static constexpr uint32_t kOffset = 2166136261U;
  static constexpr uint32_t kPrime = 16777619U;

  const char* text_ = "";
  uint32_t length_ = 0;
  uint32_t hash_ = kOffset;
};

#endif
