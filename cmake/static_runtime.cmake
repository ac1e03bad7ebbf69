# SPDX-License-Identifier: MIT
# The C++ runtime as a part of the programs that run once per file. As shared libraries it takes a
# quarter of the time of a conversion to find, map and relocate, for a few kilobytes that are used of it.
option(PANDREL_STATIC_RUNTIME "Link the C++ runtime into the programs that run once per file, where there is a static one" ON)

set(PANDREL_STATIC_RUNTIME_OPTIONS -static-libstdc++ -static-libgcc -Wl,--gc-sections)

# The sanitizers bring a runtime of their own, which wants the shared one.
if(PANDREL_STATIC_RUNTIME AND NOT PANDREL_ASAN)
  include(CheckCXXSourceCompiles)
  set(CMAKE_REQUIRED_LINK_OPTIONS ${PANDREL_STATIC_RUNTIME_OPTIONS})
  check_cxx_source_compiles("#include <vector>\nint main() { return std::vector<int>(1)[0]; }"
    PANDREL_HAS_STATIC_RUNTIME)
  unset(CMAKE_REQUIRED_LINK_OPTIONS)
endif()

function(pandrel_link_runtime target)
  if(PANDREL_HAS_STATIC_RUNTIME)
    target_link_options(${target} PRIVATE ${PANDREL_STATIC_RUNTIME_OPTIONS})
  endif()
endfunction()
