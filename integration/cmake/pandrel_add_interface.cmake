# SPDX-License-Identifier: MIT
#[[
pandrel_add_interface(<target> <file.G or file.P>
  [INTERFACES file.G...]    the interface files that a project names
  [GLYPHS file.icon...]     the icon files that the interface names
  [BASE directory]          where all these names start; by default the current source directory
  [FLAGS option...]         options of pandrel
  [NO_MEND]                 leave the module as pandrel wrote it
  [UILFIX_FLAGS option...]  options of pandrel-uilfix, which mends it otherwise
  [UIL_FLAGS option...]     options of uil
  [NO_UID]                  write the module, do not compile it
  [ALL])                    build with everything else

Adds a target that converts the file, mends the module and compiles it. Results, in the current binary
directory: <stem>.uil, <stem>.uid, an .xbm file for each glyph, and <stem>.log with all that the programs
said. Their full names stand in the target's properties PANDREL_UIL, PANDREL_UID and PANDREL_LOG.

Inputs are copied to the binary directory under the names they have relative to BASE, and the conversion
runs there, in the folder of the input: pandrel looks for the files of a project and for glyphs from where
it runs, and writes bitmaps beside them, which must not happen among the sources. A glyph or an interface file
that is named in the input and not listed here is missing there; the build warns of it.
]]
function(pandrel_add_interface target input)
  cmake_parse_arguments(PARSE_ARGV 2 arg "NO_UID;NO_MEND;ALL" "BASE"
    "INTERFACES;GLYPHS;FLAGS;UILFIX_FLAGS;UIL_FLAGS")
  if(arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "pandrel_add_interface: what is ${arg_UNPARSED_ARGUMENTS}?")
  endif()

  if(NOT arg_BASE)
    set(arg_BASE "${CMAKE_CURRENT_SOURCE_DIR}")
  endif()
  cmake_path(ABSOLUTE_PATH arg_BASE BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}" NORMALIZE)

  set(copies)
  foreach(file IN LISTS input arg_INTERFACES arg_GLYPHS)
    set(source "${file}")
    cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY "${arg_BASE}" NORMALIZE)
    cmake_path(RELATIVE_PATH source BASE_DIRECTORY "${arg_BASE}" OUTPUT_VARIABLE name)
    if(name MATCHES "^\\.\\./")
      message(FATAL_ERROR "pandrel_add_interface: ${file} is not below ${arg_BASE}; give BASE")
    endif()
    set(copy "${CMAKE_CURRENT_BINARY_DIR}/${name}")
    # An in-source build has its inputs in place.
    if(NOT copy STREQUAL source)
      add_custom_command(OUTPUT "${copy}"
        COMMAND ${CMAKE_COMMAND} -E copy "${source}" "${copy}"
        DEPENDS "${source}" VERBATIM)
    endif()
    list(APPEND copies "${copy}")
  endforeach()
  list(GET copies 0 copied_input)
  cmake_path(GET copied_input PARENT_PATH directory)
  cmake_path(GET copied_input STEM LAST_ONLY stem)

  set(uil "${CMAKE_CURRENT_BINARY_DIR}/${stem}.uil")
  set(uid "${CMAKE_CURRENT_BINARY_DIR}/${stem}.uid")
  set(log "${CMAKE_CURRENT_BINARY_DIR}/${stem}.log")
  set(mender "$<TARGET_FILE:Pandrel::pandrel-uilfix>")
  if(arg_NO_MEND)
    set(mender "")
  endif()
  set(script "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/pandrel_convert.cmake")
  add_custom_command(OUTPUT "${uil}"
    BYPRODUCTS "${log}"
    COMMAND ${CMAKE_COMMAND} "-DPANDREL=$<TARGET_FILE:Pandrel::pandrel>" "-DUILFIX=${mender}"
            "-DINPUT=${copied_input}" "-DUIL=${uil}" "-DFLAGS=${arg_FLAGS}" "-DUILFIX_FLAGS=${arg_UILFIX_FLAGS}"
            -P "${script}"
    DEPENDS ${copies} Pandrel::pandrel Pandrel::pandrel-uilfix "${script}"
    WORKING_DIRECTORY "${directory}"
    COMMENT "Converting ${input}" VERBATIM)
  set(results "${uil}")

  if(NOT arg_NO_UID)
    if(NOT PANDREL_UIL_EXECUTABLE)
      message(FATAL_ERROR "pandrel_add_interface: the UIL compiler (uil) is not found; give NO_UID to do without")
    endif()
    add_custom_command(OUTPUT "${uid}"
      COMMAND "${PANDREL_UIL_EXECUTABLE}" ${arg_UIL_FLAGS} -o "${uid}" "${uil}"
      DEPENDS "${uil}"
      COMMENT "Compiling ${stem}.uil" VERBATIM)
    list(APPEND results "${uid}")
  endif()

  if(arg_ALL)
    add_custom_target(${target} ALL DEPENDS ${results})
  else()
    add_custom_target(${target} DEPENDS ${results})
  endif()
  set_target_properties(${target} PROPERTIES PANDREL_UIL "${uil}" PANDREL_LOG "${log}")
  if(NOT arg_NO_UID)
    set_target_properties(${target} PROPERTIES PANDREL_UID "${uid}")
  endif()
endfunction()
