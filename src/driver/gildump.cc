// SPDX-License-Identifier: MIT
// gildump: prints what the reader makes of a GIL file, on standard error.
#include "driver/driver.h"
#include "driver/standard_streams.h"
#include "gil/dump.h"
#include "gil/object.h"
#include "gil/parser.h"
#include "osi/fatal.h"

int main() {
  OsiEndOnExhaustedMemory();
  HoldStandardStreams();
  TellIfInputIsTerminal("gildump: reading a GIL file from the terminal\n");
  const Obj* objects = ParseGILFile();
  generate(project ? project : objects);
  OsiExit(0);
}
