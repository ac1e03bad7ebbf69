// SPDX-License-Identifier: MIT
#include "uil/writer.h"

#include <cstdio>
#include <string>

#include "flags/flags.h"
#include "unit/support/numbered.h"
#include "unit/support/session_fixture.h"
#include "widget/callbacks.h"
#include "widget/procedures.h"
#include "widget/tree.h"

class WriterTest : public SessionFixture {
 protected:
  // Plain UIL unless a test says otherwise.
  WriterTest() { usezo = 0; }

  // A widget of its own texts, below `parent` unless that is null.
  static Widg* New(const char* class_name, std::string name, Widg* parent = nullptr) {
    Widg* widg = MakeWidg(class_name, name.data());
    if (!parent) return widg;
    Widg** end = &parent->child;
    while (*end) end = &(*end)->next;
    return *end = widg;
  }

  // Appends a callback to a procedure whose text the test may look at.
  static void Call(Widg* widg, const char* callback_name, char* procedure,
                   const char* argument = "") {
    AddCallback(widg, callback_name, procedure, argument);
  }

  // The module of a top-level list; what went to standard error is in `err`.
  std::string Write(Widg* top) {
    std::FILE* file = std::tmpfile();
    const Outcome outcome = Run([top, file] { GenUILForWidgHierarchy(top, file); });
    EXPECT_EQ(outcome.out, "");
    err = outcome.err;
    std::rewind(file);
    std::string text;
    for (int c = std::getc(file); c != EOF; c = std::getc(file)) text += static_cast<char>(c);
    std::fclose(file);
    return text;
  }

  // The objects of a module without its head and foot; procedures must not have been called.
  std::string Objects(Widg* top) {
    const std::string head = "module Pandrel\nnames = case_sensitive\n\n\n";
    const std::string foot = "\nend module;\n\n";
    const std::string module = Write(top);
    if (module.size() < head.size() + foot.size() || module.compare(0, head.size(), head) != 0 ||
        module.compare(module.size() - foot.size(), foot.size(), foot) != 0) {
      ADD_FAILURE() << "head or foot differ: " << module;
      return module;
    }
    return module.substr(head.size(), module.size() - head.size() - foot.size());
  }

  // A window on a board with two buttons, one of them unmanaged.
  Widg* Example() {
    Widg* window = New("TopLevelShell", "window1");
    Widg* board = New("XmBulletinBoard", "window1_bb", window);
    AddResource(board, "XmNwidth", "200");
    AddResource(board, "XmNheight", "100");
    Widg* first = New("XmPushButton", "button1", board);
    AddResource(first, "XmNx", "10");
    AddResource(first, "XmNy", "20");
    Call(first, "XmNactivateCallback", quit);
    Widg* second = New("XmPushButton", "button2", board);
    second->managed = 0;
    Call(second, "XmNactivateCallback", ok, "1");
    Call(second, "XmNactivateCallback", done);
    return window;
  }

  std::string err;
  char quit[5] = "quit";
  char ok[3] = "ok";
  char done[5] = "done";
};

static const char kExampleHead[] =
    "module Pandrel\n"
    "names = case_sensitive\n"
    "\n"
    "procedure quit;\n"
    "procedure ok;\n"
    "procedure done;\n"
    "\n"
    "object\n"
    "button1:XmPushButton{\n"
    "\tcontrols {\n"
    "\t\t};\n"
    "\targuments {\n"
    "\t\tXmNx = 10;\n"
    "\t\tXmNy = 20;\n"
    "\t\t};\n"
    "\tcallbacks {\n"
    "\t\tXmNactivateCallback = procedure quit();\n"
    "\t\t};\n"
    "};\n"
    "\n"
    "object\n"
    "button2:XmPushButton{\n"
    "\tcontrols {\n"
    "\t\t};\n"
    "\targuments {\n"
    "\t\t};\n"
    "\tcallbacks {\n"
    "\t\tXmNactivateCallback = procedures {\n"
    "\t\t\tok(1);\n"
    "\t\t\tdone();\n"
    "\t\t\t};\n"
    "\n"
    "};\n"
    "};\n"
    "\n"
    "object\n"
    "window1_bb:XmBulletinBoard{\n"
    "\tcontrols {\n"
    "\t\tXmPushButton button1;\n"
    "\t\tunmanaged XmPushButton button2;\n"
    "\t\t};\n"
    "\targuments {\n"
    "\t\tXmNwidth = 200;\n"
    "\t\tXmNheight = 100;\n"
    "\t\t};\n"
    "\tcallbacks {\n"
    "\t\t};\n"
    "\n"
    "\t};\n"
    "\n";

// The window's comment, marked as plain UIL does.
static const char kExampleShell[] =
    "!object\n"
    "!window1:TopLevelShell{\n"
    "!\tcontrols {\n"
    "!\t\tXmBulletinBoard window1_bb;\n"
    "!\t\t};\n"
    "!\targuments {\n"
    "!\t\t};\n"
    "!\tcallbacks {\n"
    "!\t\t};\n"
    "\n"
    "!\t};\n"
    "\n";

static const char kFoot[] = "\nend module;\n\n";

static std::string ReplaceAll(std::string text, const std::string& from, const std::string& to) {
  for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

// The block of a widget that has no children, resources or callbacks.
static std::string EmptyBlock(const std::string& name, const std::string& class_name,
                              const std::string& controls = "") {
  std::string block = "object\n";
  block.append(name).append(":").append(class_name).append("{\n\tcontrols {\n").append(controls);
  return block.append("\t\t};\n\targuments {\n\t\t};\n\tcallbacks {\n\t\t};\n\n\t};\n\n");
}

// The module

TEST_F(WriterTest, EmptyTreeIsHeadAndFoot) {
  EXPECT_EQ(Write(nullptr), "module Pandrel\nnames = case_sensitive\n\n\n\nend module;\n\n");
}

TEST_F(WriterTest, EmptyTreeStillDeclaresProcedures) {
  InsertProcedure(quit);
  InsertProcedure(ok);
  EXPECT_EQ(Write(nullptr),
            "module Pandrel\nnames = case_sensitive\n\nprocedure quit;\nprocedure ok;\n\n"
            "\nend module;\n\n");
}

TEST_F(WriterTest, WindowBoardAndButtons) {
  EXPECT_EQ(Write(Example()), std::string(kExampleHead) + kExampleShell + kFoot);
  EXPECT_EQ(err, "");
}

TEST_F(WriterTest, BuilderHasAMarkOfItsOwn) {
  usezo = 1;
  EXPECT_EQ(Write(Example()),
            std::string(kExampleHead) + ReplaceAll(kExampleShell, "!", "!(ZO)") + kFoot);
}

TEST_F(WriterTest, ShellsAreLeftOutWithoutComments) {
  nocomments = 1;
  EXPECT_EQ(Write(Example()), std::string(kExampleHead) + kFoot);
}

TEST_F(WriterTest, BuilderKeepsItsCommentsAlways) {
  usezo = 1;
  nocomments = 1;
  EXPECT_EQ(Write(Example()),
            std::string(kExampleHead) + ReplaceAll(kExampleShell, "!", "!(ZO)") + kFoot);
}

TEST_F(WriterTest, LargeModulesAreWrittenWhole) {
  Widg* board = New("XmForm", "board");
  std::string expected;
  std::string controls;
  for (int i = 0; i < 3000; ++i) {
    const std::string name = Numbered("b", i);
    New("XmLabel", name, board);
    expected += EmptyBlock(name, "XmLabel");
    controls.append("\t\tXmLabel ").append(name).append(";\n");
  }
  EXPECT_EQ(Objects(board), expected + EmptyBlock("board", "XmForm", controls));
}

// Order

TEST_F(WriterTest, ChildrenComeBeforeTheirParentAndSiblingsInOrder) {
  Widg* a = New("XmForm", "a");
  Widg* b = New("XmForm", "b", a);
  New("XmLabel", "c", b);
  New("XmLabel", "d", a);
  a->next = New("XmLabel", "e");
  EXPECT_EQ(Objects(a), EmptyBlock("c", "XmLabel") + EmptyBlock("b", "XmForm", "\t\tXmLabel c;\n") +
                            EmptyBlock("d", "XmLabel") +
                            EmptyBlock("a", "XmForm", "\t\tXmForm b;\n\t\tXmLabel d;\n") +
                            EmptyBlock("e", "XmLabel"));
}

TEST_F(WriterTest, WidgetOfTwoParentsIsWrittenOnce) {
  Widg* a = New("XmForm", "a");
  Widg* shared = New("XmLabel", "shared", a);
  a->next = New("XmForm", "b");
  a->next->child = shared;
  EXPECT_EQ(Objects(a), EmptyBlock("shared", "XmLabel") +
                            EmptyBlock("a", "XmForm", "\t\tXmLabel shared;\n") +
                            EmptyBlock("b", "XmForm", "\t\tXmLabel shared;\n"));
}

TEST_F(WriterTest, WidgetWithoutAClassHidesAllBelowIt) {
  Widg* a = New("XmForm", "a");
  Widg* hidden = New("", "hidden", a);
  New("XmLabel", "below", hidden);
  New("XmLabel", "c", a);
  a->next = New(nullptr, "alone");
  EXPECT_EQ(Objects(a), EmptyBlock("c", "XmLabel") + EmptyBlock("a", "XmForm", "\t\tXmLabel c;\n"));
}

// Shells inside

TEST_F(WriterTest, ShellInsideAnotherWidgetIsMarkedBeforeTheTabs) {
  Widg* a = New("XmForm", "a");
  New("XmDialogShell", "popup", a)->managed = 0;
  New("XmLabel", "c", a);
  const std::string module = Write(a);
  EXPECT_NE(
      module.find("\tcontrols {\n!\t\tunmanaged XmDialogShell popup;\n\t\tXmLabel c;\n\t\t};\n"),
      std::string::npos)
      << module;
}

TEST_F(WriterTest, BuilderMarksShellsInsideInItsWay) {
  usezo = 1;
  Widg* a = New("XmForm", "a");
  New("TopLevelShell", "window", a);
  const std::string module = Write(a);
  EXPECT_NE(module.find("\tcontrols {\n!(ZO)\t\tTopLevelShell window;\n\t\t};\n"),
            std::string::npos)
      << module;
}

TEST_F(WriterTest, ShellInsideIsLeftOutWithoutComments) {
  nocomments = 1;
  Widg* a = New("XmForm", "a");
  Widg* popup = New("XmDialogShell", "popup", a);
  New("XmLabel", "c", popup);
  EXPECT_EQ(Objects(a), EmptyBlock("c", "XmLabel") + EmptyBlock("a", "XmForm"));
}

TEST_F(WriterTest, ShellInsideAShellIsMarkedOnce) {
  Widg* window = New("TopLevelShell", "window");
  New("XmDialogShell", "popup", window);
  const std::string module = Write(window);
  EXPECT_NE(module.find("!\tcontrols {\n!\t\tXmDialogShell popup;\n!\t\t};\n"), std::string::npos)
      << module;
}

TEST_F(WriterTest, CallbacksOfAShellAreMarkedToTheEnd) {
  Widg* window = New("TopLevelShell", "window");
  Call(window, "XmNdestroyCallback", quit);
  Call(window, "XmNdestroyCallback", ok);
  const std::string module = Write(window);
  EXPECT_NE(module.find("!\tcallbacks {\n"
                        "!\t\tXmNdestroyCallback = procedures {\n"
                        "!\t\t\tquit();\n"
                        "!\t\t\tok();\n"
                        "!\t\t\t};\n"
                        "!\n"
                        "!};\n"
                        "!};\n"
                        "\n"),
            std::string::npos)
      << module;
}

TEST_F(WriterTest, OnlyCallbackOfAShellIsMarkedToTheEnd) {
  Widg* window = New("TopLevelShell", "window");
  Call(window, "XmNdestroyCallback", ok, "1");
  for (const bool builder : {false, true}) {
    usezo = builder;
    window->generated = 0;
    const std::string mark = builder ? "!(ZO)" : "!";
    std::string wanted;
    for (const char* line :
         {"\tcallbacks {\n", "\t\tXmNdestroyCallback = procedure ok(1);\n", "\t\t};\n", "};\n"}) {
      wanted += mark + line;
    }
    const std::string module = Write(window);
    EXPECT_NE(module.find(wanted + "\n\nend module;"), std::string::npos) << module;
  }
}

// Arguments and callbacks

TEST_F(WriterTest, NoteOfTheGlyphFileIsNeverWritten) {
  Widg* a = New("XmLabel", "a");
  AddResource(a, "XmNx", "1");
  AddResource(a, "XmNoriginalPixmapName", "icon");
  AddResource(a, "XmNy", "2");
  const std::string module = Write(a);
  EXPECT_NE(module.find("\targuments {\n\t\tXmNx = 1;\n\t\tXmNy = 2;\n\t\t};\n"), std::string::npos)
      << module;
}

TEST_F(WriterTest, ValuesAreWrittenAsTheyStand) {
  Widg* a = New("XmLabel", "a");
  AddResource(a, "XmNlabelString", "\"a \\\"b\\\" %s\"");
  AddResource(a, "XmNempty", "");
  const std::string module = Write(a);
  EXPECT_NE(module.find("\t\tXmNlabelString = \"a \\\"b\\\" %s\";\n\t\tXmNempty = ;\n"),
            std::string::npos)
      << module;
}

TEST_F(WriterTest, CallbacksOfDifferentNamesStandUnderTheFirst) {
  Widg* a = New("XmPushButton", "a");
  Call(a, "XmNactivateCallback", ok, "1");
  Call(a, "XmNhelpCallback", done);
  const std::string module = Write(a);
  EXPECT_NE(module.find("\t\tXmNactivateCallback = procedures {\n"
                        "\t\t\tok(1);\n\t\t\tdone();\n\t\t\t};\n"),
            std::string::npos)
      << module;
  EXPECT_EQ(module.find("XmNhelpCallback"), std::string::npos);
}

// Odd trees

TEST_F(WriterTest, MissingTextsAreEmpty) {
  Widg* a = New("XmLabel", "a");
  a->resources = MakeResource("XmNx", nullptr);
  a->callbacks = MakeCallback("XmNhelpCallback", ok, nullptr);
  const std::string module = Write(a);
  EXPECT_NE(module.find("\t\tXmNx = ;\n"), std::string::npos) << module;
  EXPECT_NE(module.find("\t\tXmNhelpCallback = procedure ok();\n"), std::string::npos) << module;
}

TEST_F(WriterTest, DeepTreesAreWritten) {
  Widg* top = New("XmForm", "top");
  Widg* parent = top;
  for (int i = 0; i < 20000; ++i) parent = New("XmForm", Numbered("f", i), parent);
  const std::string module = Write(top);
  EXPECT_NE(module.find("top:XmForm{"), std::string::npos);
  EXPECT_LT(module.find("f19999x:XmForm{"), module.find("f0x:XmForm{"));
}
