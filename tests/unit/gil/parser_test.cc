// SPDX-License-Identifier: MIT
// What the parser makes of each production, read off the dump of its records, and what it refuses.
#include "gil/parser.h"

#include <sstream>
#include <string>

#include "gil/dump.h"
#include "gil/scanner.h"
#include "gil/tokens.h"
#include "gil/version.h"
#include "gil/words.h"
#include "unit/support/session_fixture.h"

class ParserTest : public SessionFixture {
 protected:
  // Parses a file; `result` is what the parser returned and `err` what it reported.
  void Parse(const std::string& input) {
    const Outcome outcome = Run([this] { result = yyparse(); }, input);
    err = outcome.err;
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.status, std::nullopt);
  }

  // The dump of the objects of a file; its report when it does not fit.
  std::string Objects(const std::string& input) {
    Parse(input);
    return result == 0 ? Dump(gilFile) : err;
  }

  // The attributes of an object with these, each on a line.
  std::string Attrs(const std::string& attrs) {
    const std::string dump = Objects(std::string("((:type :button ") + attrs + "))");
    const std::string head = "Obj: button\n\t";
    return dump.substr(0, head.size()) == head ? dump.substr(head.size()) : dump;
  }

  bool Fits(const std::string& input) {
    Parse(input);
    return result == 0;
  }

  bool FitsObject(const std::string& inside) { return Fits(std::string("((") + inside + "))"); }

  bool FitsAttr(const std::string& attr) {
    return FitsObject(std::string(":type :button ") + attr);
  }

  // The six parts of an action, for one that has all.
  bool FitsAction(const std::string& parts) {
    return FitsAttr(std::string(":name a :actions ((") + parts + "))");
  }

  static std::string Dump(const Obj* objects) {
    return Run([objects] { generate(objects); }).err;
  }

  int result = -1;
  std::string err;
};

static const char kAction[] =
    ":from (a) :when (b) :to (c) :function_type :user_defined :arg_type () :action ()";

// Files

TEST_F(ParserTest, EmptyFileIsASyntaxError) {
  Parse("");
  EXPECT_EQ(result, 1);
  EXPECT_EQ(err, "\n*** 1: Syntax error at \n");
}

TEST_F(ParserTest, EmptyListIsASyntaxErrorAtItsEnd) {
  Parse("\n()");
  EXPECT_EQ(result, 1);
  EXPECT_EQ(err, "\n*** 2: Syntax error at )\n");
}

TEST_F(ParserTest, HeaderAloneIsASyntaxError) { EXPECT_FALSE(Fits(";GIL-3\n")); }

TEST_F(ParserTest, SyntaxErrorShowsTheTokenThatDoesNotFit) {
  Parse("((:type :button\n:name \"a b\" \"c d\"))");
  EXPECT_EQ(err, "\n*** 2: Syntax error at \"c d\"\n");
}

TEST_F(ParserTest, SyntaxErrorAtTheEndOfInputHasNoToken) {
  Parse("((:type :button :name a)\n");
  EXPECT_EQ(err, "\n*** 2: Syntax error at \n");
}

TEST_F(ParserTest, HeaderRecordsTheVersion) {
  EXPECT_TRUE(Fits(";GIL-3\n((:type :button :name a))"));
  EXPECT_EQ(GetVersion(), 3);
}

TEST_F(ParserTest, FileWithoutAHeaderRecordsNoVersion) {
  EXPECT_TRUE(Fits("((:type :button :name a))"));
  EXPECT_EQ(GetVersion(), 0);
}

TEST_F(ParserTest, VersionStaysForFilesWithoutAHeader) {
  Parse(";GIL-3\n((:type :button :name a))");
  Parse("((:type :button :name b))");
  EXPECT_EQ(GetVersion(), 3);
}

TEST_F(ParserTest, HeaderStandsOnlyInFront) {
  EXPECT_FALSE(Fits("(\n;GIL-3\n(:type :button :name a))"));
  EXPECT_FALSE(Fits("((:type :button :name a))\n;GIL-3\n"));
  EXPECT_FALSE(Fits(";GIL-3\n;GIL-3\n((:type :button :name a))"));
}

TEST_F(ParserTest, CommentsMayStandInFrontOfTheHeader) {
  EXPECT_TRUE(Fits("; saved by hand\n;GIL-3\n((:type :button :name a))"));
}

TEST_F(ParserTest, NothingMayFollowTheFile) {
  EXPECT_FALSE(Fits("((:type :button :name a)) ("));
  EXPECT_FALSE(Fits("((:type :button :name a)))"));
}

TEST_F(ParserTest, CarriageReturnsDoNotDisturb) {
  EXPECT_TRUE(Fits("((:type :button\r\n:name a))\r\n"));
  EXPECT_EQ(err, "Illegal character: \r\nIllegal character: \r\n");
}

TEST_F(ParserTest, DroppedKeywordIsAsIfItWereNotThere) {
  EXPECT_TRUE(Fits("((:type :button :nosuch :name a))"));
  EXPECT_EQ(err, "\n*** 1: Illegal keyword at :nosuch\n");
}

TEST_F(ParserTest, FailedParseLeavesTheResultsBefore) {
  Parse("((:type :button :name a))");
  const Obj* before = gilFile;
  Parse("((:type :button :name b)");
  Parse("(:interfaces (a.G)");
  EXPECT_EQ(gilFile, before);
  EXPECT_EQ(project, nullptr);
}

TEST_F(ParserTest, SizeOfAFileIsNoMatter) {
  std::string file = "((:type :group :name g :members (";
  for (int i = 0; i < 100000; ++i) file += "a ";
  file += "))";
  for (int i = 0; i < 10000; ++i) file += "(:type :button :name a)";
  EXPECT_TRUE(Fits(file + ")"));
}

TEST_F(ParserTest, RecordWithoutMemoryEndsTheRun) {
  SetInput("((:type :button :x 1000))");
  // Served: the number. Not served: its attribute.
  const Outcome outcome = RunOutOfMemory(1, [] { yyparse(); });
  EXPECT_EQ(outcome.status, -1);
  EXPECT_EQ(outcome.err, "\n*** 1: Out of memory allocating an attribute at )\n");
}

// Objects

TEST_F(ParserTest, ObjectsAreHeldInReverse) {
  EXPECT_EQ(Objects("((:type :button :name a)(:type :menu :name b)(:type :gauge :name c))"),
            "Obj: gauge\n\tname: (c )\nObj: menu\n\tname: (b )\nObj: button\n\tname: (a )\n");
}

TEST_F(ParserTest, AttributesAreHeldInReverse) {
  EXPECT_EQ(Attrs(":x 1 :name a :y 2"), "y: (2 )\n\tname: (a )\n\tx: (1 )\n");
}

TEST_F(ParserTest, RepeatedAttributesAreKeptAndTheLaterIsFoundFirst) {
  EXPECT_EQ(Attrs(":name a :name b"), "name: (b )\n\tname: (a )\n");
  Value* name = nullptr;
  ASSERT_EQ(GetAttrValue(gilFile, NAME, &name, 0), 1);
  EXPECT_STREQ(name->sval, "b");
}

TEST_F(ParserTest, ElementTypesAreTheSeventeen) {
  const std::string types =
      " base-window button canvas-pane control-area drop-target gauge group menu message "
      "popup-window"
      " scrolling-list setting slider stack term-pane text-field text-pane ";
  for (const Word* keyword = kFirstWord; keyword <= kLastWord; ++keyword) {
    if (!keyword->text) continue;
    const std::string text = keyword->text;
    const bool is_type = types.find(std::string(" ") + text + " ") != std::string::npos;
    EXPECT_EQ(FitsObject(std::string(":type :") + text + " :name a"), is_type) << text;
    if (is_type) {
      EXPECT_EQ(gilFile->type, keyword->token) << text;
    }
  }
}

TEST_F(ParserTest, TypeStandsFirst) {
  EXPECT_FALSE(FitsObject(":name a :type :button"));
  EXPECT_FALSE(FitsObject(":name a"));
  EXPECT_FALSE(FitsObject(":type button :name a"));
  EXPECT_FALSE(FitsObject(":type :button :name a :type :menu"));
}

TEST_F(ParserTest, ObjectHasAnAttributeAtLeast) {
  EXPECT_FALSE(FitsObject(":type :button"));
  EXPECT_FALSE(FitsObject(":type :button :actions ()"));
  EXPECT_TRUE(FitsObject(":type :button :user-data ()"));
}

TEST_F(ParserTest, ActionsStandLast) {
  EXPECT_TRUE(FitsAttr(":name a :actions ()"));
  EXPECT_FALSE(FitsAttr(":name a :actions () :x 1"));
  EXPECT_FALSE(FitsAttr(":name a :actions () :actions ()"));
}

TEST_F(ParserTest, EmptyActionsAreNone) {
  Parse("((:type :button :name a :actions ()))");
  EXPECT_EQ(gilFile->actions, nullptr);
  Parse("((:type :button :name a))");
  EXPECT_EQ(gilFile->actions, nullptr);
}

TEST_F(ParserTest, ProjectKeywordsAreNoAttributesOfObjects) {
  Parse("((:type :button :name a :interfaces (b.G)))");
  EXPECT_EQ(result, 1);
  EXPECT_EQ(err, "\n*** 1: Syntax error at :interfaces\n");
  EXPECT_FALSE(FitsAttr(":name a :root_window b"));
}

// Attributes: each keyword with a value of its form, and with values of other forms

struct FormCase {
  const char* keywords;
  const char* value;
  const char* dump;
  const char* misfits;  // separated by "|"
};

static const FormCase kForms[] = {
    {"columns dnd-accept-cursor-xhot dnd-accept-cursor-yhot dnd-cursor-xhot dnd-cursor-yhot "
     "drop-target_width height horizontal-offset horizontal-spacing max-value min-value rows "
     "scrollable-height scrollable-width slider-width stored-length ticks value-length value-x "
     "value-y "
     "vertical-offset vertical-spacing width x y",
     "-7", "-7 ", "\"7\"|a|nil|t|()|(7)|:normal|"},
    {"background-color busy-drop-glyph dnd-accept-cursor dnd-cursor foreground-color help "
     "icon-file "
     "icon-label icon-mask-file label menu-title min-tick-string max-tick-string min-value-string "
     "max-value-string normal-drop-glyph title",
     "\"a b\"", "\"a b\" ", "a|7|nil|(\"a\")|()|:string|"},
    {"initial-value", "7", "7 ", "a|nil|()|:string|"},
    {"initial-value", "\"7\"", "\"7\" ", "t|(7)|"},
    {"anchor-object done-handler event-handler menu-handler menu name notify-handler owner "
     "repaint-proc",
     "a_b", "a_b ", "7|t|(a)|()|:string|"},
    {"anchor-object done-handler event-handler menu-handler menu name notify-handler owner "
     "repaint-proc",
     "\"a b\"", "\"a b\" ", ""},
    {"anchor-object done-handler event-handler menu-handler menu name notify-handler owner "
     "repaint-proc",
     "nil", "NIL ", ""},
    {"constant-width default-drop-site draggable droppable horizontal-scrollbar label-bold "
     "multiple-selections pinnable pinned read-only resizable selection-required show-border "
     "show-endboxes show-footer show-range show-value value-underlined vertical-scrollbar",
     "t", "T ", "T|1|a|\"t\"|()|(t)|"},
    {"constant-width default-drop-site draggable droppable horizontal-scrollbar label-bold "
     "multiple-selections pinnable pinned read-only resizable selection-required show-border "
     "show-endboxes show-footer show-range show-value value-underlined vertical-scrollbar",
     "nil", "NIL ", ""},
    {"choices choice-colors initial-list-values initial-list-glyphs menu-item-colors "
     "menu-item-labels",
     "(\"a\" \"b\" \"c\")", "\"c\" \"b\" \"a\" ", "\"a\"|(a)|(nil)|(7)|nil|("},
    {"choice-defaults initial-selections menu-item-defaults", "(t nil nil)", "NIL NIL T ",
     "t|nil|(a)|(1)|(\"t\")|"},
    {"choice-label-types menu-item-label-types", "(:string :glyph)", "glyph string ",
     ":string|(string)|(:integer)|(nil)|"},
    {"members menu-item-handlers menu-item-menus", "(a nil \"c d\" b)", "a NIL \"c d\" b ",
     "a|nil|(7)|(t)|(:menu)|"},
    {"menu-item-states", "(:active :inactive :open)", "open inactive active ",
     ":active|(active)|(t)|(:normal)|"},
    {"events", "(:keyboard :mouse-drag)", "mouse-drag keyboard ", ":keyboard|(keyboard)|(:open)|"},
    {"user-data", "()", "", "nil|7|\"a\"|(a)|(nil)|"},
};

TEST_F(ParserTest, AttributesTakeValuesOfTheirForm) {
  for (const FormCase& form : kForms) {
    std::istringstream keywords_of_form(form.keywords);
    for (std::string keyword; keywords_of_form >> keyword;) {
      EXPECT_EQ(Attrs(std::string(":") + keyword + " " + form.value),
                keyword + ": (" + form.dump + ")\n");
      std::istringstream misfits(form.misfits);
      for (std::string misfit; std::getline(misfits, misfit, '|');) {
        EXPECT_FALSE(FitsAttr(std::string(":") + keyword + " " + misfit))
            << keyword << " " << misfit;
      }
    }
  }
}

TEST_F(ParserTest, EveryListMayBeEmpty) {
  std::istringstream lists(
      "choices choice-colors initial-list-values initial-list-glyphs menu-item-colors "
      "menu-item-labels choice-defaults initial-selections menu-item-defaults choice-label-types "
      "menu-item-label-types members menu-item-handlers menu-item-menus menu-item-states events");
  for (std::string list; lists >> list;)
    EXPECT_EQ(Attrs(std::string(":") + list + " ()"), list + ": ()\n");
}

struct EnumerationCase {
  const char* keyword;
  const char* words;  // with a blank around each
};

static const EnumerationCase kEnumerations[] = {
    {"anchor-point", " north-west north north-east west east center south-west south south-east "},
    {"reference-point",
     " north-west north north-east west east center south-west south south-east "},
    {"initial-state", " open iconic visible invisible active inactive "},
    {"button-type", " normal abbreviated "},
    {"column-alignment", " left-edges labels vertical-centers right-edges "},
    {"row-alignment", " top-edges horizontal-centers bottom-edges "},
    {"drawing-model", " xview xwindows postscript "},
    {"group-type", " row column row-column "},
    {"label-type", " string glyph "},
    {"layout-type", " horizontal vertical "},
    {"menu-type", " command exclusive nonexclusive "},
    {"orientation", " horizontal vertical "},
    {"setting-type", " exclusive nonexclusive check stack "},
    {"text-type", " alphanumeric numeric multiline "},
};

TEST_F(ParserTest, EnumerationsTakeTheirWordsOnly) {
  for (const auto& [attribute, words] : kEnumerations) {
    for (const Word* keyword = kFirstWord; keyword <= kLastWord; ++keyword) {
      if (!keyword->text) continue;
      const std::string text = keyword->text;
      const bool is_word =
          std::string(words).find(std::string(" ") + text + " ") != std::string::npos;
      const std::string attr = std::string(":") + attribute + " :" + text;
      EXPECT_EQ(FitsAttr(attr), is_word) << attr;
      if (is_word) {
        EXPECT_EQ(gilFile->attrs->value->ival, keyword->token) << attr;
      }
    }
  }
}

TEST_F(ParserTest, OnlyAGroupTypeMayBeNil) {
  for (const auto& [attribute, words] : kEnumerations) {
    EXPECT_EQ(FitsAttr(std::string(":") + attribute + " nil"),
              std::string(attribute) == "group-type");
  }
}

TEST_F(ParserTest, ListsOfEventsTakeEventsOnly) {
  EXPECT_TRUE(
      FitsAttr(":events (:keyboard :keyboard-left :keyboard-right :keyboard-top :mouse :mouse-drag "
               ":mouse-enter :mouse-exit :mouse-move)"));
  EXPECT_FALSE(FitsAttr(":events (:north)"));
}

TEST_F(ParserTest, OtherKeywordsAreNoAttributes) {
  for (const char* keyword :
       {"a", "action", "from", "button", "string", "gil", "character", "check"}) {
    EXPECT_FALSE(FitsAttr(std::string(":") + keyword + " 7")) << keyword;
  }
}

// Actions

TEST_F(ParserTest, ActionHoldsItsParts) {
  EXPECT_EQ(Attrs(":name a :actions ((:from (w a) :when (Notify) :to (v \"b\") :function_type Show"
                  " :arg_type (:void :integer :string) :action (f g)))"),
            "name: (a )\n\tAction:\n\t\tfrom: w a \n\t\twhen: Notify \n\t\tto: v \"b\" \n"
            "\t\tfunc_type: Show \n\t\targ_type: string integer void \n\t\taction_name: f g \n");
}

TEST_F(ParserTest, FunctionTypeIsATokenOrAString) {
  Parse(std::string("((:type :button :name a :actions ((") + kAction + "))))");
  ASSERT_EQ(result, 0);
  EXPECT_EQ(gilFile->actions->functionType->kind, kTokenValue);
  EXPECT_EQ(gilFile->actions->functionType->ival, 416);
  Parse(
      "((:type :button :name a :actions ((:from () :when () :to () :function_type Hide "
      ":arg_type () :action ()))))");
  ASSERT_EQ(result, 0);
  EXPECT_EQ(gilFile->actions->functionType->kind, kStringValue);
  EXPECT_STREQ(gilFile->actions->functionType->sval, "Hide");
}

TEST_F(ParserTest, CallFunctionReadsAsAnIdentifierBehindAnIllegalColon) {
  Parse(
      "((:type :button :name a :actions ((:from () :when () :to () :function_type :CallFunction "
      ":arg_type () :action ()))))");
  ASSERT_EQ(result, 0);
  EXPECT_EQ(err, "Illegal character: :\n");
  EXPECT_STREQ(gilFile->actions->functionType->sval, "CallFunction");
}

TEST_F(ParserTest, FunctionTypeIsNothingElse) {
  for (const char* type : {"\"Show\"", "nil", "t", "7", ":void", "(Show)", ""}) {
    EXPECT_FALSE(FitsAction(std::string(":from () :when () :to () :function_type ") + type +
                            " :arg_type () :action ()"))
        << type;
  }
}

TEST_F(ParserTest, ActionsAreHeldInReverse) {
  Parse(
      "((:type :button :name a :actions ("
      "(:from (a) :when () :to () :function_type F :arg_type () :action ())"
      "(:from (b) :when () :to () :function_type F :arg_type () :action ()))))");
  ASSERT_EQ(result, 0);
  EXPECT_STREQ(gilFile->actions->from->sval, "b");
  EXPECT_STREQ(gilFile->actions->next->from->sval, "a");
  EXPECT_EQ(gilFile->actions->next->next, nullptr);
}

TEST_F(ParserTest, PartsOfAnActionHaveTheirOrder) {
  EXPECT_TRUE(FitsAction(kAction));
  EXPECT_FALSE(FitsAction(
      ":when (b) :from (a) :to (c) :function_type :user_defined :arg_type () :action ()"));
  EXPECT_FALSE(FitsAction(
      ":from (a) :when (b) :to (c) :arg_type () :function_type :user_defined :action ()"));
}

TEST_F(ParserTest, ActionHasAllItsParts) {
  const std::string parts[] = {":from (a) ",        ":when (b) ",    ":to (c) ",
                               ":function_type F ", ":arg_type () ", ":action () "};
  for (const std::string& left_out : parts) {
    std::string action;
    for (const std::string& part : parts) {
      if (part != left_out) action += part;
    }
    EXPECT_FALSE(FitsAction(action)) << left_out;
  }
  EXPECT_FALSE(FitsAction(""));
  EXPECT_FALSE(FitsAction(std::string(kAction) + " :x 1"));
}

TEST_F(ParserTest, PartsOfAnActionAreLists) {
  EXPECT_FALSE(FitsAction(":from a :when () :to () :function_type F :arg_type () :action ()"));
  EXPECT_FALSE(FitsAction(":from () :when () :to () :function_type F :arg_type :void :action ()"));
  EXPECT_FALSE(
      FitsAction(":from () :when () :to () :function_type F :arg_type (:glyph) :action ()"));
  EXPECT_FALSE(FitsAction(":from () :when () :to () :function_type F :arg_type () :action \"f\""));
}

// Projects

TEST_F(ParserTest, ProjectHoldsItsAttributesInReverse) {
  Parse(";GIL-3\n(:interfaces (a.G \"b.G\" nil) :root_window w :actions ())");
  ASSERT_EQ(result, 0);
  EXPECT_EQ(GetVersion(), 3);
  EXPECT_EQ(project->type, 446);
  EXPECT_EQ(project->actions, nullptr);
  const Attr* attr = project->attrs;
  EXPECT_EQ(attr->name, 260);
  EXPECT_EQ(attr->actions, nullptr);
  attr = attr->next;
  EXPECT_EQ(attr->name, 445);
  EXPECT_STREQ(attr->value->sval, "w");
  attr = attr->next;
  EXPECT_EQ(attr->name, 444);
  EXPECT_STREQ(attr->value->sval, "a.G");
  EXPECT_STREQ(attr->value->next->sval, "\"b.G\"");
  EXPECT_EQ(attr->value->next->next->ival, 437);
  EXPECT_EQ(attr->next, nullptr);
}

TEST_F(ParserTest, ActionsOfAProjectAreAnAttribute) {
  Parse(std::string("(:actions ((") + kAction + ")))");
  ASSERT_EQ(result, 0);
  EXPECT_EQ(project->actions, nullptr);
  EXPECT_STREQ(project->attrs->actions->from->sval, "a");
}

TEST_F(ParserTest, ProjectWithoutAHeaderRecordsNoVersion) {
  EXPECT_TRUE(Fits("(:interfaces ())"));
  EXPECT_EQ(GetVersion(), 0);
}

TEST_F(ParserTest, ProjectLeavesTheObjectsReadBefore) {
  Parse("((:type :button :name a))");
  const Obj* before = gilFile;
  Parse("(:interfaces (a.G))");
  EXPECT_EQ(gilFile, before);
  EXPECT_NE(project, nullptr);
}

TEST_F(ParserTest, InterfaceFileLeavesTheProjectReadBefore) {
  Parse("(:interfaces (a.G))");
  const Obj* before = project;
  Parse("((:type :button :name a))");
  EXPECT_EQ(project, before);
}

TEST_F(ParserTest, ProjectTakesItsOwnAttributesOnly) {
  EXPECT_FALSE(Fits("(:name a)"));
  EXPECT_FALSE(Fits("(:interfaces a.G)"));
  EXPECT_FALSE(Fits("(:interfaces (a.G) (:type :button :name a))"));
  EXPECT_FALSE(Fits("(:root_window (w))"));
}

TEST_F(ParserTest, ResetForgetsBothResults) {
  Parse("((:type :button :name a))");
  Parse("(:interfaces (a.G))");
  ResetParser();
  EXPECT_EQ(gilFile, nullptr);
  EXPECT_EQ(project, nullptr);
}
