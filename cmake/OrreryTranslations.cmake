# Compiles translations/*.ts with lrelease and embeds the .qm files in <target>
# as :/translations/<name>.qm, so a host finds them without installing anything;
# they are installed beside the help pages as well, for a host's own tools.
function(orrery_add_translations target)
  find_package(Qt${ORRERY_QT_MAJOR} QUIET COMPONENTS LinguistTools)
  if(TARGET Qt${ORRERY_QT_MAJOR}::lrelease)
    set(lrelease Qt${ORRERY_QT_MAJOR}::lrelease)
  else()
    find_program(ORRERY_LRELEASE NAMES lrelease-qt${ORRERY_QT_MAJOR} lrelease
                 HINTS /usr/lib/qt${ORRERY_QT_MAJOR}/bin)
    set(lrelease ${ORRERY_LRELEASE})
  endif()
  if(NOT lrelease)
    message(WARNING "lrelease not found (scripts/install-deps.sh installs it): "
                    "the dialogs are built without translations")
    return()
  endif()

  file(GLOB ts_files CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/translations/*.ts")
  set(out "${CMAKE_CURRENT_BINARY_DIR}/translations")
  file(MAKE_DIRECTORY "${out}")
  set(qm_files)
  set(entries)
  foreach(ts IN LISTS ts_files)
    get_filename_component(name "${ts}" NAME_WE)
    set(qm "${out}/${name}.qm")
    add_custom_command(OUTPUT "${qm}"
      COMMAND ${lrelease} -silent "${ts}" -qm "${qm}"
      DEPENDS "${ts}" VERBATIM
      COMMENT "Compiling translation ${name}")
    list(APPEND qm_files "${qm}")
    string(APPEND entries "    <file>${name}.qm</file>\n")
  endforeach()

  install(FILES ${qm_files} DESTINATION ${CMAKE_INSTALL_DATADIR}/${ORRERY_INCLUDE_SUBDIR}/translations
          COMPONENT runtime)

  set(qrc "${out}/translations.qrc")
  file(CONFIGURE OUTPUT "${qrc}" CONTENT
       "<!DOCTYPE RCC><RCC version=\"1.0\">\n<qresource prefix=\"/translations\">\n${entries}</qresource>\n</RCC>\n")
  if(ORRERY_QT_MAJOR EQUAL 5)
    qt5_add_resources(resource_sources "${qrc}" OPTIONS -name orrery_translations)
  else()
    qt6_add_resources(resource_sources "${qrc}" OPTIONS -name orrery_translations)
  endif()
  set_source_files_properties(${resource_sources} PROPERTIES SKIP_AUTOGEN ON)
  target_sources(${target} PRIVATE ${resource_sources})
endfunction()
