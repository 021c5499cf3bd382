# Libraries go to the multiarch folder where the system has one (lib/x86_64-linux-gnu
# on Debian), as the packages install them under /usr; the CMake package and the
# pkg-config files follow them. A value given on the command line is kept; the plain
# "lib" that GNUInstallDirs cached earlier is not.
if(CMAKE_LIBRARY_ARCHITECTURE)
  get_property(libdir_help CACHE CMAKE_INSTALL_LIBDIR PROPERTY HELPSTRING)
  if(NOT DEFINED CACHE{CMAKE_INSTALL_LIBDIR} OR libdir_help STREQUAL "Object code libraries (lib)")
    set(CMAKE_INSTALL_LIBDIR "lib/${CMAKE_LIBRARY_ARCHITECTURE}" CACHE PATH
        "Object code libraries (lib/<multiarch triplet>)" FORCE)
  endif()
endif()
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
include(GenerateExportHeader)

# Installed names carry the Qt major version, as Qt libraries' do, so that a Qt 5
# and a Qt 6 build install side by side: liborrery-prompts-qt6.so.1,
# include/orrery-qt6/, find_package(OrreryPromptsQt6), orrery-prompts-qt6.pc.
set(ORRERY_VARIANT qt${ORRERY_QT_MAJOR})
set(ORRERY_INCLUDE_SUBDIR orrery-${ORRERY_VARIANT})
set(ORRERY_PACKAGE OrreryPromptsQt${ORRERY_QT_MAJOR})
# Raised with every incompatible change of the public ABI (scripts/check-abi.sh).
# 1: the dialog frame keeps its state behind a private pointer, so that the public
#    headers need no Boost.Signals2, and gains the virtual retranslate().
set(ORRERY_SOVERSION 1)

# One library per top-level folder; the folder alone decides what goes in it.
# orrery_add_layer(<layer> [EXPORTED] DEPENDS <targets...> [EXTRA <files...>])
# makes target orrery_<layer>, exported as Orrery::<layer>, with every source,
# layout and resource below <layer>/ and its headers installed under
# include/orrery-qt<N>/<layer>. An EXPORTED layer hides every symbol but those
# its headers mark with ORRERY_<LAYER>_EXPORT, from the generated
# "<layer>/<Layer>Export.h".
function(orrery_add_layer layer)
  cmake_parse_arguments(ARG "EXPORTED" "" "DEPENDS;EXTRA" ${ARGN})
  set(dir "${PROJECT_SOURCE_DIR}/${layer}")
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS
       "${dir}/*.cpp" "${dir}/*.h" "${dir}/*.ui" "${dir}/*.qrc")
  set(target orrery_${layer})
  add_library(${target} ${sources} ${ARG_EXTRA})
  add_library(Orrery::${layer} ALIAS ${target})
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${layer}
                        OUTPUT_NAME orrery-${layer}-${ORRERY_VARIANT}
                        INSTALL_RPATH "$ORIGIN" VERSION ${PROJECT_VERSION} SOVERSION ${ORRERY_SOVERSION})
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/${ORRERY_INCLUDE_SUBDIR}>)
  target_link_libraries(${target} PUBLIC ${ARG_DEPENDS})
  if(ARG_EXPORTED)
    string(TOUPPER ${layer} upper)
    string(SUBSTRING ${layer} 0 1 first)
    string(TOUPPER ${first} first)
    string(SUBSTRING ${layer} 1 -1 rest)
    set(header ${PROJECT_BINARY_DIR}/exports/${layer}/${first}${rest}Export.h)
    generate_export_header(${target} BASE_NAME orrery_${layer} EXPORT_MACRO_NAME ORRERY_${upper}_EXPORT
                           EXPORT_FILE_NAME ${header})
    set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/exports>)
    install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${ORRERY_INCLUDE_SUBDIR}/${layer} COMPONENT dev)
  endif()
  install(TARGETS ${target} EXPORT OrreryPromptsTargets
          LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev
          ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev
          RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
  # Header by header, so that a folder without headers (resources/) is not installed empty.
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE "${dir}" "${dir}/*.h")
  foreach(header IN LISTS headers)
    get_filename_component(subdir "${header}" DIRECTORY)
    install(FILES "${dir}/${header}" DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${ORRERY_INCLUDE_SUBDIR}/${layer}/${subdir}
            COMPONENT dev)
  endforeach()
endfunction()

# orrery_add_pkgconfig(<name> <description> <requires> <layers...>) writes
# <name>-qt<N>.pc; it finds its prefix from where it lies, so an unpacked tree works too.
function(orrery_add_pkgconfig name description requires)
  set(pcdir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
  file(RELATIVE_PATH PC_TO_PREFIX "/prefix/${pcdir}" "/prefix")
  set(PC_NAME ${name}-${ORRERY_VARIANT})
  set(PC_DESCRIPTION "${description}")
  set(PC_REQUIRES "${requires}")
  set(PC_LIBS "")
  foreach(layer IN LISTS ARGN)
    string(APPEND PC_LIBS " -lorrery-${layer}-${ORRERY_VARIANT}")
  endforeach()
  configure_file(${PROJECT_SOURCE_DIR}/cmake/orrery.pc.in ${PROJECT_BINARY_DIR}/${PC_NAME}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${PC_NAME}.pc DESTINATION ${pcdir} COMPONENT dev)
endfunction()

# The CMake package: find_package(OrreryPromptsQt<N> CONFIG) gives the Orrery:: targets.
function(orrery_install_package)
  set(cmakedir ${CMAKE_INSTALL_LIBDIR}/cmake/${ORRERY_PACKAGE})
  install(EXPORT OrreryPromptsTargets NAMESPACE Orrery:: DESTINATION ${cmakedir}
          FILE ${ORRERY_PACKAGE}Targets.cmake COMPONENT dev)
  configure_package_config_file(
    ${PROJECT_SOURCE_DIR}/cmake/OrreryPromptsConfig.cmake.in
    ${PROJECT_BINARY_DIR}/${ORRERY_PACKAGE}Config.cmake
    INSTALL_DESTINATION ${cmakedir})
  write_basic_package_version_file(${PROJECT_BINARY_DIR}/${ORRERY_PACKAGE}ConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
  install(FILES ${PROJECT_BINARY_DIR}/${ORRERY_PACKAGE}Config.cmake
                ${PROJECT_BINARY_DIR}/${ORRERY_PACKAGE}ConfigVersion.cmake
          DESTINATION ${cmakedir} COMPONENT dev)
  orrery_add_pkgconfig(orrery-prompts "Prompt dialogs for a plotting host (Qt ${ORRERY_QT_MAJOR})"
                       "Qt${ORRERY_QT_MAJOR}Widgets" prompts framework core platform)
  orrery_add_pkgconfig(orrery-host "Stand-in host for the Orrery prompt dialogs (Qt ${ORRERY_QT_MAJOR})"
                       "Qt${ORRERY_QT_MAJOR}Widgets" host platform)
  orrery_add_pkgconfig(orrery-plot "Figures from a plain scene (Qt ${ORRERY_QT_MAJOR})"
                       "Qt${ORRERY_QT_MAJOR}Widgets" plot)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/help/ DESTINATION ${CMAKE_INSTALL_DATADIR}/${ORRERY_INCLUDE_SUBDIR}/help
          COMPONENT runtime FILES_MATCHING PATTERN "*.html")
endfunction()
