# `cmake --build <build> --target docs`: the reference documentation of the
# library's public headers (core/, framework/, prompts/), its main page and the page
# on writing a host, with Doxygen. ORRERY_DOCS_STRICT (on by default) makes every
# warning an error, so an undocumented public member fails the build of the docs.
# The target always exists and looks for Doxygen when it runs, so that it works
# right after `scripts/install-deps.sh docs`, without configuring again.
option(ORRERY_DOCS_STRICT "Fail the docs target on any documentation warning" ON)
set(ORRERY_DOC_INPUT "${PROJECT_SOURCE_DIR}/core ${PROJECT_SOURCE_DIR}/framework ${PROJECT_SOURCE_DIR}/prompts")
set(ORRERY_DOC_WARN_AS_ERROR NO)
if(ORRERY_DOCS_STRICT)
  set(ORRERY_DOC_WARN_AS_ERROR FAIL_ON_WARNINGS)
endif()
configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
add_custom_target(docs COMMAND ${CMAKE_COMMAND} -DDOXYFILE=${PROJECT_BINARY_DIR}/Doxyfile
                               -P ${PROJECT_SOURCE_DIR}/cmake/OrreryRunDoxygen.cmake
                  WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
                  COMMENT "Reference documentation in ${PROJECT_BINARY_DIR}/docs/html" VERBATIM)
