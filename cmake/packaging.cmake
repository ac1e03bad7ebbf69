# SPDX-License-Identifier: MIT
# Targets for installing and uninstalling, and the tarball of an installed tree (cpack in the build
# folder).
add_custom_target(uninstall
  COMMAND ${CMAKE_COMMAND} -DMANIFEST=${CMAKE_BINARY_DIR}/install_manifest.txt
          -P ${CMAKE_CURRENT_LIST_DIR}/uninstall.cmake
  COMMENT "Removing what the last installation wrote" VERBATIM)

# What an installation needs, without the tests.
add_custom_target(programs)
foreach(program IN ITEMS pandrel gildump pandrel-uilfix pandrel-port pandrel-view)
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
include(CPack)

# What is read rather than run.
install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR}
  FILES_MATCHING PATTERN "*.md" PATTERN "*.svg" PATTERN "*.png")
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} PATTERN convert-tree EXCLUDE)
install(PROGRAMS examples/convert-tree DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples)
