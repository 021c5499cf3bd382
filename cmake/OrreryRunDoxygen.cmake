# Runs Doxygen on DOXYFILE for the docs target (cmake -P): found now, not when the
# build was configured, so that installing it later is enough.
find_program(DOXYGEN_EXECUTABLE doxygen)
if(NOT DOXYGEN_EXECUTABLE)
  message(FATAL_ERROR "Doxygen is not installed: bash scripts/install-deps.sh docs")
endif()
execute_process(COMMAND ${DOXYGEN_EXECUTABLE} ${DOXYFILE} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "Doxygen failed (${result}): see its warnings above")
endif()
