// SPDX-License-Identifier: MIT
#include "driver/driver.h"

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <string>

#include "flags/flags.h"
#include "gil/object.h"
#include "gil/parser.h"
#include "gil/tokens.h"
#include "gil/version.h"
#include "unit/osi/surroundings.h"
#include "unit/support/session_fixture.h"
#include "widget/tree.h"

// Runs in an empty folder, where a test puts the files of a project.
class DriverTest : public SessionFixture {
 protected:
  DriverTest() : cwd(dir.Path()) { verbose = 0; }

  // Converts what is on standard input, then what its project names.
  static Outcome Convert(const std::string& input) {
    return Run(
        [] {
          ProcessGILFile(&top_widget);
          ProcessProject();
        },
        input);
  }

  // The names of a sibling list, as the interface file has them.
  static std::string Names(const Widg* widgets) {
    std::string names;
    for (const Widg* widg = widgets; widg; widg = widg->next) {
      if (!names.empty()) names += ' ';
      names += widg->gil_name;
    }
    return names;
  }

  TempDir dir;
  ScopedCwd cwd;
};

static std::string Window(const std::string& name) {
  return "(:type :base-window :name " + name + " :width 100 :height 50)\n";
}

static std::string Menu(const std::string& name) {
  return "(:type :menu :name " + name + " :menu-type :command :menu-item-labels (\"a\"))\n";
}

static std::string File(const std::string& objects) {
  return std::string(";GIL-3\n(\n") + objects + ")\n";
}

// Output

TEST_F(DriverTest, OutputIsStandardOutputUnlessNamed) { EXPECT_EQ(OpenOutput(), stdout); }

TEST_F(DriverTest, NamedOutputIsEmptiedWhenItIsOpened) {
  const std::string path = dir.Write("out.uil", "former");
  outfile = path.c_str();
  std::FILE* output = OpenOutput();
  EXPECT_EQ(ReadWhole(path), "");
  std::fputs("new", output);
  CloseOutput(output);
  EXPECT_EQ(ReadWhole(path), "new");
}

TEST_F(DriverTest, GilFileIsRefusedAsOutputAndKept) {
  const std::string path = dir.Write("app.G", ";GIL-3\n(\n");
  outfile = path.c_str();
  const Outcome outcome = Run([] { OpenOutput(); });
  EXPECT_EQ(outcome.status, -1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err,
            "Error: " + path + " is a GIL file; the operand names the module to write\n");
  EXPECT_EQ(ReadWhole(path), ";GIL-3\n(\n");
}

TEST_F(DriverTest, FileThatOnlyLooksLikeAGilFileIsWritten) {
  for (const char* text : {"", ";GIL", "; GIL-3", " ;GIL-3", ";gil-3", "module Pandrel\n;GIL-3"}) {
    const std::string path = dir.Write("out.uil", text);
    outfile = path.c_str();
    CloseOutput(OpenOutput());
    EXPECT_EQ(ReadWhole(path), "") << text;
  }
}

TEST_F(DriverTest, OutputThatCannotBeOpenedEndsTheRun) {
  outfile = "no/such/folder.uil";
  const Outcome outcome = Run([] { OpenOutput(); });
  EXPECT_EQ(outcome.status, -1);
  EXPECT_EQ(outcome.out, "Warning: Cannot open file no/such/folder.uil for writing");
  EXPECT_EQ(outcome.err, "");
}

TEST_F(DriverTest, OutputThatCannotBeWrittenIsAnError) {
  outfile = "/dev/full";
  const Outcome outcome = Run([] {
    std::FILE* output = OpenOutput();
    std::fputs("module", output);
    CloseOutput(output);
  });
  EXPECT_EQ(outcome.status, -1);
  EXPECT_EQ(outcome.err, "Error: Cannot write the output\n");
}

TEST_F(DriverTest, WriteThatFailedEarlierIsAnErrorToo) {
  outfile = "/dev/full";
  const Outcome outcome = Run([] {
    std::FILE* output = OpenOutput();
    std::fputs("module", output);
    std::fflush(output);
    CloseOutput(output);
  });
  EXPECT_EQ(outcome.status, -1);
}

TEST_F(DriverTest, StandardOutputStaysOpen) {
  const Outcome outcome = Run([] {
    std::fputs("one ", stdout);
    CloseOutput(stdout);
    std::fputs("two", stdout);
  });
  EXPECT_EQ(outcome.out, "one two");
  EXPECT_EQ(outcome.status, std::nullopt);
}

// Parsing

TEST_F(DriverTest, SyntaxErrorEndsTheRun) {
  const Outcome outcome = Convert("");
  EXPECT_EQ(outcome.status, -1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "\n*** 1: Syntax error at \nError: Parse error\n");
}

TEST_F(DriverTest, FileWithoutObjectsIsASyntaxError) {
  const Outcome outcome = Convert("()");
  EXPECT_EQ(outcome.status, -1);
  EXPECT_EQ(outcome.err, "\n*** 1: Syntax error at )\nError: Parse error\n");
}

TEST_F(DriverTest, ParsingResolvesOwners) {
  SetInput("((:type :base-window :name a)(:type :button :name b :owner a))");
  const Obj* top = ParseGILFile();
  EXPECT_EQ(top, gilFile);
  EXPECT_STREQ(top->name, "a");
  EXPECT_EQ(top->next, nullptr);
  EXPECT_STREQ(top->children->name, "b");
}

TEST_F(DriverTest, ProjectHasNoObjects) {
  SetInput("(:interfaces (a.G))");
  EXPECT_EQ(ParseGILFile(), nullptr);
}

TEST_F(DriverTest, ProjectAfterAnInterfaceYieldsTheObjectsAgain) {
  SetInput("((:type :base-window :name a))");
  const Obj* objects = ParseGILFile();
  SetInput("(:interfaces (a.G))");
  EXPECT_EQ(ParseGILFile(), objects);
}

// Menus first

// The names of objects of these types in the order that they are put in; "m" is a menu.
static std::string InOrder(const char* types) {
  Obj* head = nullptr;
  Obj** end = &head;
  std::string labels[8];
  for (const char* type = types; *type; ++type) {
    *end = makeObj(*type == 'm' ? MENU : BUTTON, nullptr, nullptr);
    labels[type - types] = *type + std::to_string(type - types);
    (*end)->name = labels[type - types].data();
    end = &(*end)->next;
  }
  std::string names;
  for (const Obj* obj = PutMenusFirst(head); obj; obj = obj->next) names += obj->name;
  return names;
}

TEST_F(DriverTest, MenusComeFirstAndBothHalvesKeepTheirOrder) {
  EXPECT_EQ(InOrder("bmbmb"), "m1m3b0b2b4");
  EXPECT_EQ(InOrder("mb"), "m0b1");
  EXPECT_EQ(InOrder("bm"), "m1b0");
}

TEST_F(DriverTest, ListsOfOneKindStayAsTheyAre) {
  EXPECT_EQ(InOrder("mmm"), "m0m1m2");
  EXPECT_EQ(InOrder("bbb"), "b0b1b2");
  EXPECT_EQ(InOrder(""), "");
}

// Top level

TEST_F(DriverTest, TopLevelObjectsAreLinkedInOrder) {
  SetInput(File(Window("a") + Window("b") + Window("c")));
  EXPECT_EQ(ConvertObjHierToWidgHier(ParseGILFile(), &top_widget), top_widget);
  EXPECT_EQ(Names(top_widget), "a b c");
}

TEST_F(DriverTest, MenusOfAFileAreConvertedFirst) {
  SetInput(File(Window("a") + Menu("m") + Window("b") + Menu("n")));
  ConvertObjHierToWidgHier(PutMenusFirst(ParseGILFile()), &top_widget);
  EXPECT_EQ(Names(top_widget), "m n a b");
}

TEST_F(DriverTest, NoObjectsLeaveTheLinkAlone) {
  EXPECT_EQ(ConvertObjHierToWidgHier(nullptr, &top_widget), nullptr);
  EXPECT_EQ(top_widget, nullptr);
}

TEST_F(DriverTest, GroupIsNoTopLevelWidget) {
  Convert(File(std::string("(:type :group :name g :group-type :row :members ())\n") + Window("a") +
               std::string("(:type :group :name h :group-type :row :members ())\n") + Window("b")));
  EXPECT_EQ(Names(top_widget), "a b");
}

TEST_F(DriverTest, GroupAloneLeavesNoWidget) {
  const Outcome outcome = Convert(File("(:type :group :name g :group-type :row :members ())"));
  EXPECT_EQ(top_widget, nullptr);
  EXPECT_EQ(outcome.status, std::nullopt);
}

// A window with a board with a button.
static std::string WindowWithButton() {
  return Window("w") +
         "(:type :control-area :name ca :owner w)\n"
         "(:type :button :name b :owner ca)\n";
}

static std::string GroupOf(const std::string& members) {
  return "(:type :group :name g :group-type :row :members (" + members + "))\n";
}

TEST_F(DriverTest, GroupInTheMiddleThatIsDroppedLeavesNoGap) {
  Convert(File(WindowWithButton() + GroupOf("x") + Window("b2") + GroupOf("") + Window("c")));
  EXPECT_EQ(Names(top_widget), "w b2 c");
}

TEST_F(DriverTest, WindowThatAGroupTookAwayLeavesTheListToTheNext) {
  Convert(File(WindowWithButton() + GroupOf("b w") + Window("c") + Window("d")));
  EXPECT_EQ(Names(top_widget), "c d");
}

TEST_F(DriverTest, WindowsBehindTheOneThatAGroupTookAwayFollowIt) {
  Convert(File(WindowWithButton() + Window("x") + GroupOf("b x") + Window("c")));
  EXPECT_EQ(Names(top_widget), "w");
  const Widg* group = top_widget->child->child;
  EXPECT_STREQ(group->gil_name, "g");
  EXPECT_EQ(Names(group->child), "b x c");
}

TEST_F(DriverTest, FirstWidgetIsStoredAndReturned) {
  SetInput(File(Window("a") + Window("b")));
  Widg* first = ProcessGILFile(&top_widget);
  EXPECT_EQ(first, top_widget);
  EXPECT_STREQ(first->gil_name, "a");
}

TEST_F(DriverTest, LaterFileIsAppendedAtItsLink) {
  Convert(File(Window("a")));
  SetInput(File(Window("b") + Window("c")));
  const Widg* first = ProcessGILFile(&top_widget->next);
  EXPECT_EQ(Names(first), "b c");
  EXPECT_EQ(Names(top_widget), "a b c");
}

// Projects

TEST_F(DriverTest, FilesOfAProjectFollowEachOther) {
  dir.Write("a.G", File(Window("a1") + Menu("am") + Window("a2")));
  dir.Write("b.G", File(Window("b1") + Menu("bm")));
  const Outcome outcome = Convert(";GIL-3\n(:interfaces (a.G b.G))");
  EXPECT_EQ(outcome.status, std::nullopt);
  EXPECT_EQ(outcome.out + outcome.err, "");
  // Menus leave the top level once they are converted.
  EXPECT_EQ(Names(top_widget), "a1 a2 b1");
}

TEST_F(DriverTest, FilesAreToldAsTheyAreOpened) {
  verbose = 1;
  dir.Write("a.G", File(Window("a")));
  dir.Write("b.G", File(Window("b")));
  EXPECT_EQ(Convert("(:interfaces (a.G b.G))").out,
            "Opening project subfile: a.G\nOpening project subfile: b.G\n");
}

TEST_F(DriverTest, UnreadableFileIsReportedAndSkipped) {
  dir.Write("b.G", File(Window("b")));
  const Outcome outcome = Convert("(:interfaces (a.G b.G))");
  EXPECT_EQ(outcome.out, "Cannot open project file a.G for reading\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, std::nullopt);
  EXPECT_EQ(Names(top_widget), "b");
}

TEST_F(DriverTest, QuotesBelongToAFileName) {
  dir.Write("a.G", File(Window("a")));
  EXPECT_EQ(Convert("(:interfaces (\"a.G\"))").out,
            "Cannot open project file \"a.G\" for reading\n");
}

TEST_F(DriverTest, FileWithQuotesInItsNameIsFound) {
  dir.Write("\"a b.G\"", File(Window("a")));
  EXPECT_EQ(Convert("(:interfaces (\"a b.G\"))").out, "");
  EXPECT_EQ(Names(top_widget), "a");
}

TEST_F(DriverTest, NilIsAnEmptyFileName) {
  EXPECT_EQ(Convert("(:interfaces (nil))").out, "Cannot open project file  for reading\n");
}

TEST_F(DriverTest, FileThatCannotBeReopenedReadsAsEmpty) {
  verbose = 1;
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::strcpy(address.sun_path, "a.G");
  const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  const Outcome outcome = Convert("(:interfaces (a.G))");
  close(fd);
  EXPECT_EQ(outcome.out, "Error opening project file a.G\nOpening project subfile: a.G\n");
  EXPECT_EQ(outcome.err, "\n*** 1: Syntax error at \nError: Parse error\n");
  EXPECT_EQ(outcome.status, -1);
}

// As long as it lives no file can be opened.
struct NoMoreFiles {
  NoMoreFiles() {
    getrlimit(RLIMIT_NOFILE, &former);
    const rlimit none = {0, former.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
  }
  ~NoMoreFiles() { setrlimit(RLIMIT_NOFILE, &former); }
  rlimit former{};
};

TEST_F(DriverTest, RunEndsWhereNoFileCanBeOpenedAnyMore) {
  dir.Write("a.G", File(Window("a")));
  SetInput("(:interfaces (a.G))");
  const Outcome outcome = Run([] {
    ProcessGILFile(&top_widget);
    const NoMoreFiles none;
    ProcessProject();
  });
  EXPECT_EQ(outcome.out, "Error opening project file a.G\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, -1);
}

TEST_F(DriverTest, DirectoryAsAFileReadsAsEmpty) {
  dir.Mkdir("a.G");
  const Outcome outcome = Convert("(:interfaces (a.G))");
  EXPECT_EQ(outcome.err, "\n*** 1: Syntax error at \nError: Parse error\n");
}

TEST_F(DriverTest, SyntaxErrorInAFileEndsTheRun) {
  dir.Write("a.G", File(Window("a")));
  dir.Write("b.G", "(\n");
  const Outcome outcome = Convert("(:interfaces\n(a.G b.G))\n");
  EXPECT_EQ(outcome.status, -1);
  // Lines go on counting: the newlines of the project are two, those of the files four and one.
  EXPECT_EQ(outcome.err, "\n*** 8: Syntax error at \nError: Parse error\n");
}

TEST_F(DriverTest, ProjectWithoutInterfacesConvertsNothing) {
  const Outcome outcome = Convert("(:root_window a)");
  EXPECT_EQ(outcome.out, "pandrel: Project without any interfaces\n");
  EXPECT_EQ(outcome.status, std::nullopt);
  EXPECT_EQ(top_widget, nullptr);
  EXPECT_EQ(project, nullptr);
}

TEST_F(DriverTest, ProjectWithAnEmptyListOfInterfacesIsQuiet) {
  EXPECT_EQ(Convert("(:interfaces ())").out, "");
}

TEST_F(DriverTest, ProjectInAProjectFollowsTheCurrentList) {
  verbose = 1;
  dir.Write("inner.P", "(:interfaces (c.G))");
  for (const char* name : {"b", "c"}) dir.Write(std::string(name) + ".G", File(Window(name)));
  const Outcome outcome = Convert("(:interfaces (inner.P b.G))");
  EXPECT_EQ(outcome.out,
            "Opening project subfile: inner.P\nOpening project subfile: b.G\n"
            "Opening project subfile: c.G\n");
  EXPECT_EQ(Names(top_widget), "b c");
}

TEST_F(DriverTest, LastProjectOfAListIsTheOneThatFollows) {
  for (const char* name : {"b", "c"}) {
    dir.Write(std::string(name) + ".P", std::string("(:interfaces (") + name + ".G))");
    dir.Write(std::string(name) + ".G", File(Window(name)));
  }
  Convert("(:interfaces (b.P c.P))");
  EXPECT_EQ(Names(top_widget), "c");
}

TEST_F(DriverTest, StringValueOfALaterFileRepeatsTheLastValueBeforeIt) {
  dir.Write("a.G", "((:type :button :name a :label \"First\"))");
  dir.Write("b.G", "((:type :button :label :string-value :name b))");
  Convert("(:interfaces (a.G b.G))");
  ASSERT_EQ(Names(top_widget), "a b");
  EXPECT_STREQ(GetResourceValue(top_widget->next, "XmNlabelString"), "\"First\"");
}

TEST_F(DriverTest, OwnersOfFormerObjectsAreResolvedAnew) {
  dir.Write("a.G",
            "((:type :base-window :name p1 :name p2)"
            " (:type :control-area :name q1 :name q2 :owner p1))");
  dir.Write("b.P", "(:interfaces ())");
  const Outcome outcome = Convert("(:interfaces (a.G b.P))");
  EXPECT_EQ(outcome.err, "Cannot find owner p1, ignoring...\n");
  EXPECT_EQ(outcome.status, std::nullopt);
  EXPECT_EQ(Names(top_widget), "p2 q2 p1");
  EXPECT_EQ(Names(top_widget->next->next->child), "q1");
}

// The objects read before the project are converted once more, and their names are used up.
TEST_F(DriverTest, ProjectBehindAnInterfaceFileEndsTheRun) {
  dir.Write("a.G", File(Window("a")));
  dir.Write("b.P", "(:interfaces ())");
  const Outcome outcome = Convert("(:interfaces (a.G b.P))");
  EXPECT_EQ(outcome.status, -1);
  EXPECT_EQ(outcome.err, "Error: Obj does not have a name\n");
}

// Only exhausted memory ends the run: each pass keeps its records.
TEST_F(DriverTest, ProjectThatListsItselfIsReadAgainAndAgain) {
  verbose = 1;
  dir.Write("p.P", "(:interfaces (p.P))");
  SetInput("(:interfaces (p.P))");
  const Outcome outcome = RunOutOfMemory(200, [] {
    ProcessGILFile(&top_widget);
    ProcessProject();
  });
  EXPECT_EQ(outcome.status, -1);
  std::string passes;
  for (int i = 0; i < 10; ++i) passes += "Opening project subfile: p.P\n";
  EXPECT_EQ(outcome.out.substr(0, passes.size()), passes);
  EXPECT_NE(outcome.err.find("Out of memory "), std::string::npos);
}

TEST_F(DriverTest, VersionTwoFileOfAProjectEndsTheRun) {
  dir.Write("a.G", ";GIL-2\n((:type :button :name a))");
  const Outcome outcome = Convert("(:interfaces (a.G))");
  EXPECT_EQ(outcome.status, -1);
  EXPECT_EQ(outcome.err.substr(0, 35), "Error: GIL file is GIL version 2\n  ");
}

TEST_F(DriverTest, VersionIsNotForgottenBetweenFiles) {
  dir.Write("a.G", std::string("(") + Window("a") + ")");
  Convert(";GIL-3\n(:interfaces (a.G))");
  EXPECT_EQ(GetVersion(), 3);
}

// Actions

// A window with a button that shows another window.
static std::string WindowThatShows(const std::string& target) {
  return File(Window("a") +
              "(:type :control-area :name ca :owner a)\n"
              "(:type :button :name b :owner ca :actions ((:from (a b) :when (Notify) :to (" +
              target + ") :function_type :user_defined :arg_type () :action (Show))))\n");
}

TEST_F(DriverTest, ActionsFindWidgetsOfLaterFiles) {
  dir.Write("a.G", WindowThatShows("c"));
  dir.Write("c.G", File(Window("c")));
  Convert("(:interfaces (a.G c.G))");
  EXPECT_EQ(Run(ProcessActions).err, "");
}

TEST_F(DriverTest, ActionsOfEveryTopLevelWidgetAreProcessed) {
  dir.Write("a.G", WindowThatShows("x"));
  dir.Write("b.G", WindowThatShows("y"));
  Convert("(:interfaces (a.G b.G))");
  const Outcome outcome = Run(ProcessActions);
  EXPECT_NE(outcome.err.find("Cannot find child to show: x\n"), std::string::npos) << outcome.err;
  EXPECT_NE(outcome.err.find("Cannot find child to show: y\n"), std::string::npos) << outcome.err;
}
