# Debian packages of the libraries, made by `cpack -G DEB` in the build folder:
#   liborrery-prompts-qt<N>-<SOVERSION>  the shared libraries (the stand-in host's too),
#                                        the translations and the help pages
#   liborrery-prompts-qt<N>-dev          headers, the CMake package and the pkg-config files
#   liborrery-prompts-qt<N>-<SOVERSION>-dbgsym  the libraries' debug symbols (.ddeb), which
#                                        are stripped from the runtime package
# Names carry the Qt major version, so the Qt 5 and Qt 6 packages install side by side.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME liborrery-prompts-${ORRERY_VARIANT})
set(CPACK_PACKAGE_VENDOR "Orrery Prompts developers")
set(CPACK_PACKAGE_CONTACT "Orrery Prompts developers <orrery-prompts@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Prompt dialogs for a scientific plotting host (Qt ${ORRERY_QT_MAJOR})")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL runtime dev)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# Stripped libraries; their debug symbols in a package of their own, found by build ID.
set(CPACK_DEBIAN_RUNTIME_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)

set(runtime_package ${CPACK_PACKAGE_NAME}-${ORRERY_SOVERSION})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_DEV_PACKAGE_NAME ${CPACK_PACKAGE_NAME}-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
if(ORRERY_QT_MAJOR EQUAL 5)
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libqt5widgets5 (>= 5.15), libqt5gui5 (>= 5.15), libqt5core5a (>= 5.15)")
  set(qt_dev qtbase5-dev)
else()
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libqt6widgets6 (>= 6.4), libqt6gui6 (>= 6.4), libqt6core6 (>= 6.4)")
  set(qt_dev qt6-base-dev)
endif()
string(APPEND CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS ", libssl3, libc6, libstdc++6")
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS
    "${runtime_package} (= ${PROJECT_VERSION}), ${qt_dev}, libboost-dev (>= 1.74)")
include(CPack)
