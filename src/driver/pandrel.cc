// SPDX-License-Identifier: MIT
// pandrel: one GIL file on standard input to one UIL module.
#include "driver/command_line.h"
#include "driver/driver.h"
#include "driver/standard_streams.h"
#include "osi/fatal.h"
#include "passes/procedure_names.h"
#include "uil/writer.h"
#include "widget/tree.h"

static const char kNotice[] =
    "pandrel: reading a GIL file from the terminal; pandrel -help lists the options\n";

int main(int argc, char** argv) {
  OsiEndOnExhaustedMemory();
  HoldStandardStreams();
  ParseCommandLine(argc, argv);                // arguments to option flags
  std::FILE* output = OpenOutput();            // before any input, so that a bad name fails early
  TellIfInputIsTerminal(kNotice);              // so that nobody takes the wait for a hang
  ProcessGILFile(&top_widget);                 // standard input to top-level widgets
  ProcessProject();                            // and those of a project's interface files
  ProcessActions();                            // connections to callbacks
  FixProcedureNames();                         // apart from the names of widgets
  GenUILForWidgHierarchy(top_widget, output);  // widgets to the module
  CloseOutput(output);
  OsiExit(0);
}
