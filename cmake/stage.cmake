# SPDX-License-Identifier: MIT
# Run by cpack: builds the programs, nothing else, and installs them to the folder that is packed.
# A package of the sources has its files already.
if(CPACK_INSTALLED_DIRECTORIES)
  return()
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${CPACK_PANDREL_BUILD} --target programs
  COMMAND_ERROR_IS_FATAL ANY)
execute_process(
  COMMAND ${CMAKE_COMMAND} --install ${CPACK_PANDREL_BUILD} --strip --prefix ${CPACK_TEMPORARY_INSTALL_DIRECTORY}
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
