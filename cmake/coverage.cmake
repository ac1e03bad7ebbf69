# SPDX-License-Identifier: MIT
# `cmake --build --preset coverage --target coverage`: runs the tests and reports which lines of src/
# they reach, as a summary and as report/index.html in the build folder.
find_program(GCOVR gcovr REQUIRED)

add_custom_target(coverage
  # Counts of an earlier run would be added to.
  COMMAND find ${CMAKE_BINARY_DIR} -name "*.gcda" -delete
  # A process that ends for want of memory has none left for writing its counts either.
  COMMAND ${CMAKE_CTEST_COMMAND} --output-on-failure -LE stress -E memory-exhausted -j 2
  COMMAND ${CMAKE_COMMAND} -E make_directory report
  COMMAND ${GCOVR} --root ${CMAKE_SOURCE_DIR} --filter ${CMAKE_SOURCE_DIR}/src/ --print-summary
    --html-details report/index.html --txt report/lines.txt ${CMAKE_BINARY_DIR}
  WORKING_DIRECTORY ${CMAKE_BINARY_DIR}
  USES_TERMINAL VERBATIM)
