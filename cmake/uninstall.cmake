# SPDX-License-Identifier: MIT
# Removes the files of an install manifest, then the folders that this leaves empty. A staged
# installation (DESTDIR) is removed from its stage. Run with -DMANIFEST=<file> -P.
if(NOT EXISTS "${MANIFEST}")
  message(FATAL_ERROR "Nothing to uninstall: ${MANIFEST} is not there; was this build installed?")
endif()
file(STRINGS "${MANIFEST}" files)
set(folders)
foreach(file IN LISTS files)
  set(file "$ENV{DESTDIR}${file}")
  if(EXISTS "${file}" OR IS_SYMLINK "${file}")
    message(STATUS "Removing ${file}")
    file(REMOVE "${file}")
  endif()
  # Only folders that carry our name are ours to remove.
  cmake_path(GET file PARENT_PATH folder)
  while(folder MATCHES "/[Pp]andrel(/|$)")
    list(APPEND folders "${folder}")
    cmake_path(GET folder PARENT_PATH folder)
  endwhile()
endforeach()
list(REMOVE_DUPLICATES folders)
# Longer names first: a folder goes before the one that holds it.
list(SORT folders ORDER DESCENDING)
foreach(folder IN LISTS folders)
  # rmdir refuses a folder that holds something, which is then not ours.
  execute_process(COMMAND rmdir "${folder}" ERROR_QUIET)
endforeach()
