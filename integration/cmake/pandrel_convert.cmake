# SPDX-License-Identifier: MIT
#[[
cmake -DPANDREL=<program> -DUILFIX=<program, or empty> -DINPUT=<file> -DUIL=<module to make>
      -DFLAGS=<list> -DUILFIX_FLAGS=<list> -P pandrel_convert.cmake

What a target of pandrel_add_interface runs, in the folder of the input: converts, mends unless UILFIX is
empty, and keeps all that the programs say in <stem>.log beside the module. Icons and files of a project
that are missing are told of as warnings.
]]
cmake_path(REPLACE_EXTENSION UIL LAST_ONLY ".log" OUTPUT_VARIABLE log)
# Two conversions must not make the same bitmap at once.
file(LOCK . DIRECTORY GUARD PROCESS)
# The module gets its name only when it is whole: pandrel empties its output before it reads.
set(part "${UIL}.raw")

execute_process(COMMAND "${PANDREL}" ${FLAGS} "${part}"
  INPUT_FILE "${INPUT}" OUTPUT_FILE "${log}" ERROR_FILE "${log}" RESULT_VARIABLE status)
file(READ "${log}" said)
if(NOT status EQUAL 0)
  file(REMOVE "${part}")
  message(FATAL_ERROR "${INPUT} does not convert (status ${status}):\n${said}")
endif()

string(REGEX MATCHALL "Cannot access glyph filename [^\n]*" missing "${said}")
list(REMOVE_DUPLICATES missing)
foreach(line IN LISTS missing)
  string(REPLACE "Cannot access glyph filename " "" glyph "${line}")
  message(WARNING "${INPUT} names the icon ${glyph}, which is not there. Is it listed among the GLYPHS?")
endforeach()

string(REGEX MATCHALL "Cannot open project file [^\n]* for reading" missing "${said}")
foreach(line IN LISTS missing)
  string(REGEX REPLACE "Cannot open project file (.*) for reading" "\\1" interface "${line}")
  message(WARNING "${INPUT} names the file ${interface}, which is not there. Is it listed among the INTERFACES?")
endforeach()

if(UILFIX)
  execute_process(COMMAND "${UILFIX}" ${UILFIX_FLAGS} -o "${UIL}.mended" "${part}"
    ERROR_VARIABLE changes RESULT_VARIABLE status)
  file(APPEND "${log}" "${changes}")
  file(REMOVE "${part}")
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${UIL} is not mended (status ${status}):\n${changes}")
  endif()
  set(part "${UIL}.mended")
endif()
file(RENAME "${part}" "${UIL}")
