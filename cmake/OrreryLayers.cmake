include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# One library per top-level folder; the folder alone decides what goes in it.
# orrery_add_layer(<layer> DEPENDS <targets...> [EXTRA <files...>])
# makes target orrery_<layer>, exported as Orrery::<layer>, with every source,
# layout and resource below <layer>/ and its headers installed under include/orrery/<layer>.
function(orrery_add_layer layer)
  cmake_parse_arguments(ARG "" "" "DEPENDS;EXTRA" ${ARGN})
  set(dir "${PROJECT_SOURCE_DIR}/${layer}")
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS
       "${dir}/*.cpp" "${dir}/*.h" "${dir}/*.ui" "${dir}/*.qrc")
  set(target orrery_${layer})
  add_library(${target} ${sources} ${ARG_EXTRA})
  add_library(Orrery::${layer} ALIAS ${target})
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${layer}
                        INSTALL_RPATH "$ORIGIN" VERSION ${PROJECT_VERSION} SOVERSION 0)
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/orrery>)
  target_link_libraries(${target} PUBLIC ${ARG_DEPENDS})
  install(TARGETS ${target} EXPORT OrreryPromptsTargets
          LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
          ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
          RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(DIRECTORY "${dir}/" DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orrery/${layer}
          FILES_MATCHING PATTERN "*.h")
endfunction()

# The CMake package: find_package(OrreryPrompts CONFIG) gives the Orrery:: targets.
function(orrery_install_package)
  set(cmakedir ${CMAKE_INSTALL_LIBDIR}/cmake/OrreryPrompts)
  install(EXPORT OrreryPromptsTargets NAMESPACE Orrery:: DESTINATION ${cmakedir})
  configure_package_config_file(
    ${PROJECT_SOURCE_DIR}/cmake/OrreryPromptsConfig.cmake.in
    ${PROJECT_BINARY_DIR}/OrreryPromptsConfig.cmake
    INSTALL_DESTINATION ${cmakedir})
  write_basic_package_version_file(${PROJECT_BINARY_DIR}/OrreryPromptsConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
  install(FILES ${PROJECT_BINARY_DIR}/OrreryPromptsConfig.cmake
                ${PROJECT_BINARY_DIR}/OrreryPromptsConfigVersion.cmake
          DESTINATION ${cmakedir})
endfunction()
