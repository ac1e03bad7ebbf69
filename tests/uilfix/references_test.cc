// SPDX-License-Identifier: MIT
#include "uilfix/references.h"

#include <gtest/gtest.h>

namespace uilfix {
namespace {

std::string TargetName(const std::string& procedure, const std::string& argument) {
  const auto target = CallTarget({procedure, argument, 1});
  if (!target) return "none";
  EXPECT_EQ(target->Text(), argument);
  return target->name;
}

TEST(References, TargetsOfCalls) {
  EXPECT_EQ(TargetName("ZoManageCB", "\"(WL)[box]\""), "box");
  EXPECT_EQ(TargetName("ZoManageCB", "\"box\""), "box");
  EXPECT_EQ(TargetName("ZoUnmanageCB", "\"(WL)[\"my box\"]\""), "\"my box\"");
  EXPECT_EQ(TargetName("ZoSetSensitiveCB", "\"(WL)[a.b]\""), "a.b");
  EXPECT_EQ(TargetName("ZoSetInsensitiveCB", "\"(WL)[b]\""), "b");
  EXPECT_EQ(TargetName("ZoSetValuesCB", "\"a.b.mappedWhenManaged=True\""), "a.b");
  EXPECT_EQ(TargetName("ZoSetValuesCB", "\"a.labelString=x.y\""), "a");
  EXPECT_EQ(TargetName("ZoSetValuesCB", "\"nothing\""), "none");
  EXPECT_EQ(TargetName("ZoManageCB", ""), "none");
  EXPECT_EQ(TargetName("ZoManageCB", "\"\""), "none");
  EXPECT_EQ(TargetName("ZoManageCB", "\"(WL)[]\""), "none");
  EXPECT_EQ(TargetName("ZoHelpCB", "\"box\""), "none");
  EXPECT_EQ(TargetName("open_file", "\"box\""), "none");
}

constexpr char kShared[] =
    "object\na:XmPulldownMenu{\n\tcontrols {\n\t\t};\n"
    "object\nb:XmCascadeButton{\n\tcontrols {\n\t\tXmPulldownMenu a;\n\t\t};\n"
    "object\nc:XmCascadeButton{\n\tcontrols {\n\t\tXmPulldownMenu a;\n\t\t};\n";

TEST(References, SharedMenuIsRenamedUnderBothParents) {
  Module module = ParseModule(kShared);
  References references(module);
  Object* menu = references.Find("a");
  ASSERT_NE(menu, nullptr);
  references.Rename(*menu, "menu");
  EXPECT_EQ(RenderModule(module),
            "object\nmenu:XmPulldownMenu{\n\tcontrols {\n\t\t};\n"
            "object\nb:XmCascadeButton{\n\tcontrols {\n\t\tXmPulldownMenu menu;\n\t\t};\n"
            "object\nc:XmCascadeButton{\n\tcontrols {\n\t\tXmPulldownMenu menu;\n\t\t};\n");
}

TEST(References, LiveObjectsComeBeforeShells) {
  Module module = ParseModule(
      "!object\n!a:TopLevelShell{\n!\tcontrols {\n!\t\t};\nobject\na:XmLabel{\n\tcontrols "
      "{\n\t\t};\n");
  const References references(module);
  EXPECT_EQ(references.Find("a")->class_name, "XmLabel");
  EXPECT_EQ(references.Find("b"), nullptr);
}

}  // namespace
}  // namespace uilfix
