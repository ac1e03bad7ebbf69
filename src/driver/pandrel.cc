// SPDX-License-Identifier: MIT
// pandrel: one GIL file on standard input to one UIL module.
#include "driver/driver.h"
#include "driver/command_line.h"
#include "driver/standard_streams.h"
#include "osi/fatal.h"
#include "uil/writer.h"
#include "widget/tree.h"

int main(int argc, char** argv) {
  OsiEndOnExhaustedMemory();
  HoldStandardStreams();
  UseOwnBuffer(stdin);
  ParseCommandLine(argc, argv);                // arguments to option flags
  std::FILE* output = OpenOutput();            // before any input, so that a bad name fails early
  TellIfInputIsTerminal();                     // nobody should think that we hang
  ProcessGILFile(&top_widget);                 // standard input to top-level widgets
  ProcessProject();                            // and those of a project's interface files
  ProcessActions();                            // connections to callbacks
  GenUILForWidgHierarchy(top_widget, output);  // widgets to the module
  CloseOutput(output);
  OsiExit(0);
}
