// SPDX-License-Identifier: MIT
// The option flags. The command line sets them before anything is read; every stage reads them by
// name and none writes them. Each is 0 or 1, if no comment says otherwise.
#ifndef PANDREL_FLAGS_FLAGS_H
#define PANDREL_FLAGS_FLAGS_H

#include <cstdint>

extern int32_t motif_l_and_f;       // toggles look as Motif draws them, not as OPEN LOOK does
extern int32_t reposition;          // move and grow controls for Motif's larger ones
extern int32_t auto_convert_icons;  // run the commands that turn a glyph file into an XBM file
extern int32_t verbose;             // write progress notes
extern int32_t ignore_groups;       // leave the members of groups where they are
extern int32_t motif12;             // Motif 1.2 resources rather than 1.1
extern int32_t group_labels;        // a label and its control share a row-column
extern int32_t zo25;                // the builder's version 2.5 rather than 3.0
extern int32_t usezo;               // the module is meant for the builder and its run-time library
extern int32_t gen_zo_callbacks;    // call the run-time library even without the builder
extern int32_t dont_rename;         // accepted for old makefiles; nothing reads it
extern int32_t nocomments;          // leave out, instead of commenting out, what UIL cannot hold
extern int32_t map_all;             // show what starts invisible
extern const char* icon_dir_name;   // where glyph files are looked up, ending in "/"; null: nowhere
extern const char* outfile;         // the file to write; null: standard output

// Sets every flag to its default.
void ResetFlags();

#endif
