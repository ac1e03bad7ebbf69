# SPDX-License-Identifier: MIT
# What is installed to be read rather than run: the users' documents and the examples. Those for
# developers stay in the sources, and so do the parts of the others that speak of them.
set(PANDREL_CONTACT "" CACHE STRING
  "Where users of this distribution write to, for the installed SECURITY.md: an address or a URL")

# Whatever an installed document links to is installed; tests/integration/install_tree looks at that.
foreach(document IN ITEMS README.md SECURITY.md)
  file(READ ${CMAKE_SOURCE_DIR}/${document} text)
  string(REGEX REPLACE "<!-- only in the sources -->([^<]|<[^!])*<!-- end -->\n+" "" text "${text}")
  if(PANDREL_CONTACT)
    string(REGEX REPLACE "<!-- contact -->([^<]|<[^!])*<!-- end -->" "${PANDREL_CONTACT}" text "${text}")
  endif()
  string(REGEX REPLACE "<!-- (contact|end) -->" "" text "${text}")
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/documents/${document} CONTENT "${text}" @ONLY)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${document})
  install(FILES ${CMAKE_BINARY_DIR}/documents/${document} DESTINATION ${CMAKE_INSTALL_DOCDIR})
endforeach()

install(FILES CHANGELOG.md LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES docs/batch.md docs/before.svg docs/compiling.md docs/gallery.md docs/mapping.md
  docs/report.png docs/troubleshooting.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs)
install(DIRECTORY docs/gallery DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES integration/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/integration)
install(DIRECTORY integration/example-cmake integration/example-make
  DESTINATION ${CMAKE_INSTALL_DOCDIR}/integration)
