// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

// After GoogleTest, which uses names that X defines as macros.
#include "check.h"
#include "load_warnings.h"

namespace view {
namespace {

using ::testing::ElementsAre;

TEST(LoadWarnings, AreSortedByWhatTheyMean) {
  const LoadWarnings sorted = SortWarnings(
      {"UrmReadBitmapFile: XmGetPixmap failed with XmUNSPECIFIED_PIXMAP for a b.xbm - MrmFAILURE",
       "Urm__CW_ConvertValue: Could not convert color/pixel 'BG9' - MrmNOT_FOUND",
       "Idb__BM_GetRecord: Get block failed - MrmFAILURE", "Name: x\nClass: XmList"});
  EXPECT_THAT(sorted.icons, ElementsAre("a b.xbm"));
  EXPECT_THAT(sorted.colors, ElementsAre("BG9"));
  EXPECT_THAT(sorted.damage, ElementsAre("Idb__BM_GetRecord: Get block failed - MrmFAILURE"));
  EXPECT_THAT(sorted.others, ElementsAre("Name: x\nClass: XmList"));
}

TEST(Findings, AsSentences) {
  Finding finding{Finding::Kind::kOverlap, "a", "A", "win", {-3, 4, 50, 20}, "b", "bb", 7, 8};
  EXPECT_EQ(Sentence(finding), "win: a (GIL object A) 50x20-3+4 overlaps b (GIL object bb) by 7x8");
  finding.kind = Finding::Kind::kOutside;
  finding.other_object = "b";
  EXPECT_EQ(Sentence(finding), "win: a (GIL object A) 50x20-3+4 reaches out of b by 7x8");
  finding.kind = Finding::Kind::kCut;
  EXPECT_EQ(Sentence(finding), "win: a (GIL object A) 50x20-3+4 cuts its text \"b\" by 7x8");
  finding.kind = Finding::Kind::kIcon;
  EXPECT_EQ(Sentence(finding), "widget a (GIL object A): icon \"b\" cannot be shown");
  finding.kind = Finding::Kind::kColor;
  finding.object = "";
  EXPECT_EQ(Sentence(finding), "widget a: colour \"b\" is not known");
}

TEST(Findings, AsFields) {
  const Finding finding{Finding::Kind::kCut, "a", "", "win", {1, 2, 3, 4}, "x\ty\nz\\", "", 5, 6};
  EXPECT_EQ(TabLine(finding), "cut\ta\t\twin\t1\t2\t3\t4\tx\\ty\\nz\\\\\t\t5\t6");
}

}  // namespace
}  // namespace view
