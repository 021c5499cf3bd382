# Collects the sources of a folder tree, so that adding a file needs no CMake edit.
# orrery_collect(<out-var> <dir> [EXCLUDE <regex>] [ONLY <regex>])
function(orrery_collect out dir)
  cmake_parse_arguments(ARG "" "EXCLUDE;ONLY" "" ${ARGN})
  file(GLOB_RECURSE files CONFIGURE_DEPENDS
       "${dir}/*.cpp" "${dir}/*.h" "${dir}/*.ui" "${dir}/*.qrc")
  set(kept)
  foreach(f IN LISTS files)
    file(RELATIVE_PATH rel "${dir}" "${f}")
    if(ARG_EXCLUDE AND rel MATCHES "${ARG_EXCLUDE}")
      continue()
    endif()
    if(ARG_ONLY AND NOT rel MATCHES "${ARG_ONLY}")
      continue()
    endif()
    list(APPEND kept "${f}")
  endforeach()
  set(${out} ${kept} PARENT_SCOPE)
endfunction()

# Installs the public headers of a target under include/orrery/<prefix>.
function(orrery_install_headers dir prefix)
  install(DIRECTORY "${dir}/" DESTINATION include/orrery/${prefix}
          FILES_MATCHING PATTERN "*.h")
endfunction()
