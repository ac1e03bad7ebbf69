// SPDX-License-Identifier: MIT
#include "driver/command_line.h"

#include <cstdint>
#include <cstdio>
#include <cstring>

#include "flags/flags.h"
#include "osi/fatal.h"
#include "osi/strings.h"
#include "text/uil_text.h"

// What an option word does to a flag. The order of the rows does not matter.
struct OptionRow {
  const char* word;
  int32_t* flag;
  int32_t value;
};

static const OptionRow kOptions[] = {
    {"-motif", &motif_l_and_f, 1},
    {"-openlook", &motif_l_and_f, 0},
    {"-reposition", &reposition, 1},
    {"-noreposition", &reposition, 0},
    {"-converticons", &auto_convert_icons, 1},
    {"-noconverticons", &auto_convert_icons, 0},
    {"-verbose", &verbose, 1},
    {"-quiet", &verbose, 0},
    {"-ignoregroups", &ignore_groups, 1},
    {"-convertgroups", &ignore_groups, 0},
    {"-motif11", &motif12, 0},
    {"-motif12", &motif12, 1},
    {"-mapall", &map_all, 1},
    {"-nomapall", &map_all, 0},
    {"-nogrouplabels", &group_labels, 0},
    {"-group_labels", &group_labels, 1},
    {"-dont_rename", &dont_rename, 1},
    {"-zo25", &zo25, 1},
    {"-zo30", &zo25, 0},
    {"-nozo", &usezo, 0},
    {"-genzocallbacks", &gen_zo_callbacks, 1},
    {"-nocomments", &nocomments, 1},
};

// The blanks at line ends are part of the text that scripts compare.
static const char kUsage[] =
    "Usage: pandrel \n"
    "\t[-zo25/-zo30]\n"
    "\t[-nozo]\n"
    "\t[-D<icon_direc_name>]  \n"
    "\t[-motif/-openlook] \n"
    "\t[-reposition/-noreposition] \n"
    "\t[-converticons/-noconverticons]\n"
    "\t[-motif12/-motif11]  \n"
    "\t[-convertgroups/-ignoregroups] \n"
    "\t[-verbose/-quiet] \n"
    "\t[-mapall/-nomapall]\n"
    " < {gilfile} [{uilfile}]\n";

static bool SetFlag(const char* word) {
  for (const OptionRow& option : kOptions) {
    if (OsiStrcmp(word, option.word) == 0) {
      *option.flag = option.value;
      return true;
    }
  }
  return false;
}

// Makes the directory end in "/". For "-D" alone the character before the end is the "D" itself, so
// the result is the root directory.
static void SetIconDirectory(const char* argument) {
  icon_dir_name = argument + 2;
  if (argument[std::strlen(argument) - 1] != '/') icon_dir_name = MergeStrings(icon_dir_name, "/");
}

static void ParseArgument(const char* argument) {
  if (SetFlag(argument)) return;
  if (OsiStrcmp(argument, "-help") == 0 || OsiStrcmp(argument, "-grammer") == 0) {
    std::fputs(kUsage, stdout);
    OsiExit(0);
  } else if (std::strncmp(argument, "-D", 2) == 0) {
    SetIconDirectory(argument);
  } else if (*argument != '-') {
    outfile = argument;
  } else {
    std::printf("Bad option: %s  Ignoring...\n", argument);
  }
}

// note [options are read backwards]
// The arguments are handled from the last to the first, so of two that set the same flag the one
// written first wins:
//   -quiet -verbose     stays quiet
//   a.uil b.uil         writes a.uil
void ParseCommandLine(int argc, char** argv) {
  for (int i = argc - 1; i >= 1; --i) ParseArgument(argv[i]);
}
