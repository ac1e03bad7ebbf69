// SPDX-License-Identifier: MIT
#include "flags/flags.h"

// Every number flag with its default, in the order of the header.
#define PANDREL_NUMBER_FLAGS(FLAG) \
  FLAG(motif_l_and_f, 1)           \
  FLAG(reposition, 1)              \
  FLAG(auto_convert_icons, 1)      \
  FLAG(verbose, 1)                 \
  FLAG(ignore_groups, 0)           \
  FLAG(motif12, 0)                 \
  FLAG(group_labels, 1)            \
  FLAG(zo25, 1)                    \
  FLAG(usezo, 1)                   \
  FLAG(gen_zo_callbacks, 0)        \
  FLAG(dont_rename, 0)             \
  FLAG(nocomments, 0)              \
  FLAG(map_all, 0)

#define DEFINE_FLAG(name, value) int32_t name = value;
PANDREL_NUMBER_FLAGS(DEFINE_FLAG)
#undef DEFINE_FLAG

const char* icon_dir_name = nullptr;
const char* outfile = nullptr;

void ResetFlags() {
#define RESET_FLAG(name, value) name = value;
  PANDREL_NUMBER_FLAGS(RESET_FLAG)
#undef RESET_FLAG
  icon_dir_name = nullptr;
  outfile = nullptr;
}
