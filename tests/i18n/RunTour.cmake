# Runs the demo's tour in a fresh folder and fails unless it exits 0, warns of
# nothing, and its answers show the expected word of the chosen language.
# cmake -DDEMO=<orrery-demo> -DDIR=<folder> -DLANG=<code> -DEXPECT=<word> -P RunTour.cmake
# Its settings and data are its own and fresh, so that neither an earlier run
# nor a test running beside it decides what the dialogs start with.
file(REMOVE_RECURSE "${DIR}" "${DIR}-home")
execute_process(COMMAND "${CMAKE_COMMAND}" -E env "ORRERY_SETTINGS_DIR=${DIR}-home/config"
                        "XDG_CONFIG_HOME=${DIR}-home/config" "XDG_DATA_HOME=${DIR}-home/data"
                        "${DEMO}" --tour "${DIR}" --lang "${LANG}"
                RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
message("${out}")
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "the tour exited with ${rc}:\n${err}")
endif()
if(err MATCHES "orrery-demo:|cut off")
  message(FATAL_ERROR "the tour warned:\n${err}")
endif()
if(NOT out MATCHES "${EXPECT}")
  message(FATAL_ERROR "the tour's answers are not in the language ${LANG}")
endif()
file(GLOB shots "${DIR}/*.png")
list(LENGTH shots count)
if(count LESS 10)
  message(FATAL_ERROR "only ${count} screenshots in ${DIR}")
endif()
