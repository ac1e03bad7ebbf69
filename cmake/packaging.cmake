# SPDX-License-Identifier: MIT
# Targets for installing and uninstalling, and the tarball of an installed tree (cpack in the build
# folder). What is installed to be read is told in documents.cmake.
add_custom_target(uninstall
  COMMAND ${CMAKE_COMMAND} -DMANIFEST=${CMAKE_BINARY_DIR}/install_manifest.txt
          -P ${CMAKE_CURRENT_LIST_DIR}/uninstall.cmake
  COMMENT "Removing what the last installation wrote" VERBATIM)

# What an installation needs, without the tests.
add_custom_target(programs)
foreach(program IN ITEMS pandrel gildump pandrel-uilfix pandrel-view pandrel-port)
  if(TARGET ${program})
    add_dependencies(programs ${program})
  endif()
endforeach()

set(CPACK_PACKAGE_NAME pandrel)
set(CPACK_PACKAGE_VENDOR "The pandrel authors")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Converts GIL interface files to Motif UIL modules")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_SOURCE_DIR}/LICENSE)
set(CPACK_GENERATOR TGZ)
set(CPACK_STRIP_FILES ON)
set(CPACK_SOURCE_GENERATOR TGZ)
set(CPACK_SOURCE_IGNORE_FILES "/build/;/\\\\.git/;/obj-;/debian/(pandrel|tmp|\\\\.debhelper)")
# An installation of its own, by a script: CPack's usual one would build the tests as well.
set(CPACK_INSTALL_CMAKE_PROJECTS "")
set(CPACK_INSTALL_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/stage.cmake)
set(CPACK_PANDREL_BUILD ${CMAKE_BINARY_DIR})
include(CPack)
