# SPDX-License-Identifier: MIT
# Flags that every target of ours is built with.
add_library(pandrel_flags INTERFACE)
target_compile_options(pandrel_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
  $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor> -Wcast-qual -Wformat=2 -Wundef -fno-strict-aliasing)
# GCC 12 warns of overlapping copies in `"text" + std::string` where there are none (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(pandrel_flags INTERFACE -Wno-restrict)
endif()
if(PANDREL_WERROR)
  target_compile_options(pandrel_flags INTERFACE -Werror)
endif()
# Equal sources give equal bytes wherever they were unpacked.
target_compile_options(pandrel_flags INTERFACE
  -ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -ffile-prefix-map=${CMAKE_BINARY_DIR}=.)
# Hardened as in the packages: the functions of libraries are bound before a program runs, and their table
# is read-only then.
target_link_options(pandrel_flags INTERFACE -Wl,-z,now)
if(PANDREL_ASAN)
  target_compile_options(pandrel_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(pandrel_flags INTERFACE -fsanitize=address,undefined)
  target_compile_definitions(pandrel_flags INTERFACE PANDREL_SANITIZED=1 PANDREL_REPORTS_AT_EXIT=1)
endif()
if(PANDREL_COVERAGE)
  target_compile_options(pandrel_flags INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(pandrel_flags INTERFACE --coverage)
  target_compile_definitions(pandrel_flags INTERFACE PANDREL_REPORTS_AT_EXIT=1)
endif()
