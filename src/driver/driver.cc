// SPDX-License-Identifier: MIT
#include "driver/driver.h"

#include <sys/stat.h>
#include <unistd.h>

#include "convert/actions.h"
#include "convert/objects.h"
#include "flags/flags.h"
#include "gil/object.h"
#include "gil/parser.h"
#include "gil/scanner.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "osi/fatal.h"
#include "osi/strings.h"
#include "passes/clean_up.h"
#include "widget/links.h"
#include "widget/tree.h"

// Whether the file is a GIL file, which a user who forgot the "<" would lose.
static bool IsGilFile(const char* name) {
  struct stat status;
  if (stat(name, &status) != 0 || !S_ISREG(status.st_mode)) return false;
  std::FILE* file = std::fopen(name, "r");
  if (!file) return false;
  char start[sizeof ";GIL-"] = "";
  std::fgets(start, sizeof start, file);
  std::fclose(file);
  return OsiStrcmp(start, ";GIL-") == 0;
}

std::FILE* OpenOutput() {
  if (!outfile) return stdout;
  if (IsGilFile(outfile)) {
    std::fprintf(stderr, "Error: %s is a GIL file; the operand names the module to write\n",
                 outfile);
    OsiExit(-1);
  }
  std::FILE* output = std::fopen(outfile, "w");
  if (!output) {
    std::printf("Warning: Cannot open file %s for writing", outfile);
    OsiExit(-1);
  }
  return output;
}

void CloseOutput(std::FILE* output) {
  bool failed = std::ferror(output) != 0;
  failed |= (output == stdout ? std::fflush(output) : std::fclose(output)) != 0;
  if (failed) Error("Cannot write the output");
}

Obj* ParseGILFile() {
  if (yyparse() != 0) Error("Parse error");
  gilFile = resolveChildren(gilFile);
  return gilFile;
}

Obj* PutMenusFirst(Obj* objects) {
  Obj* menus = nullptr;
  Obj* others = nullptr;
  Obj** menus_end = &menus;
  Obj** others_end = &others;
  for (Obj* obj = objects; obj; obj = obj->next) {
    Obj**& end = obj->type == MENU ? menus_end : others_end;
    *end = obj;
    end = &obj->next;
  }
  *menus_end = others;
  *others_end = nullptr;
  return menus ? menus : others;
}

Widg* ConvertObjHierToWidgHier(Obj* objects, Widg** listLink) {
  Widg* last = nullptr;
  for (Obj* obj = objects; obj; obj = obj->next) {
    Widg* widg = ProcessObj(obj);
    if (obj->type == GROUP) continue;
    LinkTopLevel(last && *listLink ? &last->next : listLink, widg);
    last = widg;
  }
  return *listLink;
}

Widg* ProcessGILFile(Widg** listLink) {
  Obj* objects = PutMenusFirst(ParseGILFile());
  *listLink = ConvertObjHierToWidgHier(objects, listLink);
  RelinkTopLevel(listLink, CleanUpTopLevelHierarchy(listLink));
  return *listLink;
}

// Where the next file's widgets go.
static Widg** EndOfTopLevel() { return top_widget ? &LastSibling(top_widget)->next : &top_widget; }

static void ProcessInterface(const char* name) {
  if (access(name, R_OK) != 0) {
    std::printf("Cannot open project file %s for reading\n", name);
    return;
  }
  if (!std::freopen(name, "r", stdin)) {
    std::printf("Error opening project file %s\n", name);
    // The stream is closed now. Make reading it yield nothing.
    if (!std::freopen("/dev/null", "r", stdin)) OsiExit(-1);
  }
  if (verbose) std::printf("Opening project subfile: %s\n", name);
  yyrestart();
  ProcessGILFile(EndOfTopLevel());
}

void ProcessProject() {
  while (project) {
    Value* interfaces = nullptr;
    if (!GetAttrValue(project, INTERFACES, &interfaces, 0)) {
      std::fputs("pandrel: Project without any interfaces\n", stdout);
    }
    // An interface that is a project itself sets it again, for another round.
    project = nullptr;
    for (const Value* name = interfaces; name; name = name->next) {
      ProcessInterface(ValueText(name));
    }
  }
}

void ProcessActions() {
  for (Widg* widg = top_widget; widg; widg = widg->next) ProcessActionsForWidgHierarchy(widg);
}
