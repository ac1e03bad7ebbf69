// SPDX-License-Identifier: MIT
#include "uilfix/name_pool.h"

#include <gtest/gtest.h>

namespace uilfix {
namespace {

NamePool Pool(const std::string& text) { return NamePool(ParseModule(text)); }

TEST(NamePool, KnowsWidgetsDeclarationsAndCalls) {
  const NamePool pool = Pool(
      "procedure p;\n!object\n!s:TopLevelShell{\nobject\nw:XmLabel{\n\tcallbacks {\n"
      "\t\tXmNhelpCallback = procedure q();\n\t\t};\n");
  for (const auto name : {"p", "s", "w", "q"}) EXPECT_TRUE(pool.Has(name)) << name;
  EXPECT_FALSE(pool.Has("x"));
}

TEST(NamePool, CleansNames) {
  NamePool pool = Pool("");
  EXPECT_EQ(pool.Make("\"my \\\"big\\\" box\"_rc", "_w", false), "my_big_box_rc");
  EXPECT_EQ(pool.Make("3d", "_w", false), "n3d");
  EXPECT_EQ(pool.Make("\"\"", "_w", false), "unnamed");
  EXPECT_EQ(pool.Make("\"\"", "_w", false), "unnamed1");
}

TEST(NamePool, AvoidsWhatIsTakenOrReserved) {
  NamePool pool = Pool("procedure a_b;\nprocedure pixels_w;\n");
  EXPECT_EQ(pool.Make("a.b", "_w", false), "a_b1");
  EXPECT_EQ(pool.Make("a.b", "_w", false), "a_b2");
  EXPECT_EQ(pool.Make("pixels", "_w", false), "pixels_w1");
  EXPECT_EQ(pool.Make("quit", "_w", true), "quit_w");
}

TEST(NamePool, KeepsWithinTheCompilersLength) {
  NamePool pool = Pool("");
  const std::string longest(40, 'x');
  EXPECT_EQ(pool.Make(longest, "_w", false), std::string(31, 'x'));
  EXPECT_EQ(pool.Make(longest, "_w", false), std::string(30, 'x') + "1");
  EXPECT_EQ(pool.Make(longest, "_w", true), std::string(29, 'x') + "_w");
}

}  // namespace
}  // namespace uilfix
