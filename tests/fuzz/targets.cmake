# SPDX-License-Identifier: MIT
# The fuzz targets. Each is built for libFuzzer with PANDREL_FUZZ, and with a plain main that replays
# files for the tests of every build.
set(fuzz_targets names strings reader convert uid mender port)
set(fuzz_dir ${CMAKE_CURRENT_LIST_DIR})

# Not under test here (mutator_tests is for that), so neither instrumented nor watched: half of a
# fuzzer's time would go there.
add_library(gil_mutator STATIC ${fuzz_dir}/gil_mutator.cc ${fuzz_dir}/gil_outline.cc)
target_include_directories(gil_mutator PRIVATE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(gil_mutator PRIVATE -O2)

# All that the writers of pandrel-port read, in one folder.
set(port_templates ${CMAKE_BINARY_DIR}/fuzz-templates)
file(GLOB port_template_files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/port/templates/*.mustache)
foreach(file IN LISTS port_template_files ITEMS ${CMAKE_SOURCE_DIR}/runtime/compact.ad)
  get_filename_component(file_name ${file} NAME)
  configure_file(${file} ${port_templates}/${file_name} COPYONLY)
endforeach()

# An executable of the target's own file, `main` (a source, or nothing for libFuzzer's) and what it needs.
function(add_fuzz_executable name target main)
  add_executable(${name} ${fuzz_dir}/fuzz_${target}.cc ${main})
  set_target_properties(${name} PROPERTIES UNITY_BUILD OFF)
  if(target STREQUAL mender)
    target_link_libraries(${name} PRIVATE pandrel_uilfix)
    return()
  endif()
  if(target STREQUAL port)
    target_sources(${name} PRIVATE ${fuzz_dir}/text_shapes.cc)
    target_link_libraries(${name} PRIVATE pandrel_port)
    target_compile_definitions(${name} PRIVATE PORT_TEMPLATES="${port_templates}")
    return()
  endif()
  target_link_libraries(${name} PRIVATE pandrel_core)
  if(target STREQUAL "uid")
    target_sources(${name} PRIVATE ${CMAKE_SOURCE_DIR}/view/uid_texts.cc)
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/view)
    target_link_libraries(${name} PRIVATE pandrel_uilfix)
  endif()
  if(target MATCHES "^(reader|convert)$")
    target_sources(${name} PRIVATE ${fuzz_dir}/confinement.cc ${fuzz_dir}/fuzz_session.cc
      ${fuzz_dir}/shell_grammar.cc)
    # In front of the core, whose tables the mutator uses.
    target_link_libraries(${name} PRIVATE gil_mutator pandrel_core)
    foreach(function IN ITEMS access stat fopen freopen system)
      target_link_options(${name} PRIVATE LINKER:--wrap=${function})
    endforeach()
  endif()
endfunction()
