// SPDX-License-Identifier: MIT
#include "convert/label_type.h"

#include <gtest/gtest.h>

#include <string>

#include "flags/flags.h"
#include "unit/support/gil_objects.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"

namespace {

class LabelType : public SessionFixture {
 protected:
  LabelType() { verbose = 0; }
};

std::string Shown(const Value* label, const Value* type) {
  Widg* widg = NewWidg("XmLabel", "label");
  HandleWidgLabelAndType(widg, label, type);
  return Resources(widg);
}

TEST_F(LabelType, TextIsShownAsItStands) {
  EXPECT_EQ(Shown(StrValue("Open\\n"), tokenValue(STRING)), "XmNlabelString=\"Open\\n\"");
}

TEST_F(LabelType, MissingTypeMeansText) {
  EXPECT_EQ(Shown(StrValue("Open"), nullptr), "XmNlabelString=\"Open\"");
}

TEST_F(LabelType, GlyphIsShownByThreeResources) {
  EXPECT_EQ(Shown(StrValue("icons/missing.icon"), tokenValue(GLYPH)),
            "XmNoriginalPixmapName=\"icons/missing.icon\" XmNlabelType=XmPIXMAP "
            "XmNlabelPixmap=xbitmapfile(\"missing.xbm\")");
}

TEST_F(LabelType, AnyOtherTypeMeansGlyph) {
  EXPECT_EQ(Shown(StrValue("x"), tokenValue(T)),
            "XmNoriginalPixmapName=\"x\" XmNlabelType=XmPIXMAP "
            "XmNlabelPixmap=xbitmapfile(\"x.xbm\")");
}

TEST_F(LabelType, MissingLabelCountsAsEmpty) {
  EXPECT_EQ(Shown(nullptr, nullptr), "XmNlabelString=");
}

}  // namespace
