// SPDX-License-Identifier: MIT
#include "gil_mutator.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "gil_outline.h"

namespace {

constexpr const char* kInterface =
    ";GIL-3\n(\n(:type :base-window :name window1 :owner nil)\n"
    "(:type :control-area :name controls1 :owner window1)\n"
    "(:type :setting :name setting1 :owner controls1 :choices (\"a (b\" \"c\\\")\" )"
    " :actions ((:from (window1) :when (Notify) :to (x) :function_type CallFunction"
    " :arg_type () :action (f))))\n)\n";

std::string PrintedOutline(const std::string& text) {
  std::string printed;
  PrintOutline(ReadOutline(text, 64), &printed);
  return printed;
}

std::string Mutated(std::string text, unsigned seed, std::size_t prefix = 0,
                    std::size_t max_size = 4096, ByteMutator fallback = nullptr) {
  const std::size_t size = text.size();
  text.resize(max_size);
  text.resize(
      MutateGil(reinterpret_cast<uint8_t*>(text.data()), size, max_size, seed, prefix, fallback));
  return text;
}

TEST(GilOutline, FindsObjectsAndAttributes) {
  const OutlineFile file = ReadOutline(kInterface, 64);
  EXPECT_EQ(file.head, ";GIL-3\n");
  EXPECT_TRUE(file.list);
  ASSERT_EQ(file.objects.size(), 3U);
  ASSERT_EQ(file.objects[2].attributes.size(), 5U);
  EXPECT_EQ(file.objects[2].attributes[0].keyword, ":type");
  EXPECT_EQ(file.objects[2].attributes[0].value, ":setting");
  EXPECT_EQ(file.objects[2].attributes[3].value, "(\"a (b\" \"c\\\")\" )");
  EXPECT_EQ(ListElements(file.objects[2].attributes[3].value),
            (std::vector<std::string>{"\"a (b\"", "\"c\\\")\""}));
  EXPECT_EQ(ListElements(file.objects[2].attributes[4].value).size(), 1U);
}

TEST(GilOutline, FindsAProject) {
  const OutlineFile file = ReadOutline(";GIL-3\n(:interfaces (a.G b.G))", 64);
  EXPECT_FALSE(file.list);
  ASSERT_EQ(file.objects.size(), 1U);
  EXPECT_EQ(file.objects[0].attributes[0].keyword, ":interfaces");
}

TEST(GilOutline, KeepsWhatItCannotPlace) {
  EXPECT_EQ(PrintedOutline(""), "");
  EXPECT_EQ(PrintedOutline("; only this"), "; only this\n");
  EXPECT_EQ(ReadOutline("((:type :button)) rest", 64).tail, "rest");
}

TEST(GilOutline, PrintsTheSameAgain) {
  const std::string once = PrintedOutline(kInterface);
  EXPECT_EQ(PrintedOutline(once), once);
}

// Whether the printable characters of `text` all stand in `printed`, in their order.
bool NothingLost(const std::string& text, const std::string& printed) {
  std::size_t place = 0;
  for (char c : text) {
    if (c == ' ' || c == '\t' || c == '\n') continue;
    place = printed.find(c, place);
    if (place == std::string::npos) return false;
    ++place;
  }
  return true;
}

TEST(GilOutline, LosesNothingOfTextsThatEndAnywhere) {
  const std::string text = kInterface;
  for (std::size_t size = 0; size <= text.size(); ++size) {
    const std::string part = text.substr(0, size);
    EXPECT_TRUE(NothingLost(part, PrintedOutline(part))) << "after " << size << " bytes";
  }
}

TEST(GilMutator, IsRepeatable) {
  for (unsigned seed = 0; seed < 50; ++seed) {
    EXPECT_EQ(Mutated(kInterface, seed), Mutated(kInterface, seed));
  }
}

TEST(GilMutator, KeepsToTheGivenRoom) {
  std::string text = kInterface;
  for (unsigned seed = 0; seed < 2000; ++seed) {
    text = Mutated(text, seed, 0, 2000);
    ASSERT_LE(text.size(), 2000U);
  }
}

TEST(GilMutator, ReachesEveryKindOfChange) {
  // One word that only the change in question can have brought in.
  std::set<std::string> missing = {
      ":owner setting1",        ":menu ",        ":members ", ":type :group",
      ":name setting1\n:owner", ":user_defined", "\x1c",      ":interfaces"};
  for (unsigned seed = 0; seed < 5000 && !missing.empty(); ++seed) {
    const std::string text = Mutated(kInterface, seed);
    std::erase_if(missing,
                  [&](const std::string& word) { return text.find(word) != std::string::npos; });
  }
  EXPECT_TRUE(missing.empty()) << *missing.begin();
}

TEST(GilMutator, KeepsThePrefixApart) {
  const std::string text = std::string("((") + kInterface;
  unsigned changed = 0;
  for (unsigned seed = 0; seed < 200; ++seed) {
    const std::string mutated = Mutated(text, seed, 2);
    ASSERT_GE(mutated.size(), 8U);
    changed += mutated.compare(0, 2, "((") != 0;
    EXPECT_EQ(mutated.substr(2, 6), ";GIL-3") << seed;
  }
  EXPECT_GT(changed, 0U);
  EXPECT_LT(changed, 40U);
}

TEST(GilMutator, GivesEmptyInputsAPrefix) { EXPECT_GE(Mutated("", 1, 2).size(), 2U); }

TEST(GilMutator, FallsBackToBytesNowAndThen) {
  static unsigned calls = 0;
  for (unsigned seed = 0; seed < 400; ++seed) {
    Mutated(kInterface, seed, 0, 4096, [](uint8_t*, std::size_t size, std::size_t) {
      ++calls;
      return size;
    });
  }
  EXPECT_GT(calls, 10U);
  EXPECT_LT(calls, 200U);
}

TEST(GilMutator, CrossesTwoInputsOver) {
  const std::string first = kInterface;
  const std::string second = "((:type :slider :name stranger))";
  std::string out(4096, '\0');
  out.resize(CrossOverGil(reinterpret_cast<const uint8_t*>(first.data()), first.size(),
                          reinterpret_cast<const uint8_t*>(second.data()), second.size(),
                          reinterpret_cast<uint8_t*>(out.data()), out.size(), 1, 0));
  EXPECT_NE(out.find("window1"), std::string::npos);
  EXPECT_NE(out.find("stranger"), std::string::npos);
}

}  // namespace
