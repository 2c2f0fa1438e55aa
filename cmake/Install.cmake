# cmake --install: the two shared libraries, their headers, the CMake
# package and pkg-config files, the programs and their data files, in the
# GNU install directories. Components: lib, libqt (runtime), dev, program.

include(CMakePackageConfigHelpers)

set(QV_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/QuorvelTask2)
# Shared libraries are not programs: no execute bit.
set(QV_LIB_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

install(TARGETS QuorvelTask2 EXPORT QuorvelTask2Targets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} PERMISSIONS ${QV_LIB_PERMISSIONS}
  COMPONENT lib NAMELINK_COMPONENT dev)
install(EXPORT QuorvelTask2Targets NAMESPACE QuorvelTask2:: DESTINATION ${QV_CMAKE_DIR} COMPONENT dev)

if(TARGET QuorvelTask2Qt)
  install(TARGETS QuorvelTask2Qt EXPORT QuorvelTask2QtTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} PERMISSIONS ${QV_LIB_PERMISSIONS}
    COMPONENT libqt NAMELINK_COMPONENT dev)
  install(EXPORT QuorvelTask2QtTargets NAMESPACE QuorvelTask2:: DESTINATION ${QV_CMAKE_DIR} COMPONENT dev)
endif()

configure_package_config_file(cmake/QuorvelTask2Config.cmake.in
  ${CMAKE_BINARY_DIR}/QuorvelTask2Config.cmake INSTALL_DESTINATION ${QV_CMAKE_DIR})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/QuorvelTask2ConfigVersion.cmake
  COMPATIBILITY ExactVersion)
install(FILES ${CMAKE_BINARY_DIR}/QuorvelTask2Config.cmake ${CMAKE_BINARY_DIR}/QuorvelTask2ConfigVersion.cmake
  DESTINATION ${QV_CMAKE_DIR} COMPONENT dev)

# pkg-config: quorveltask2 (the logic) and quorveltask2-qt (the views), with
# the configured prefix written out (an install elsewhere is read with
# --define-variable=prefix=...). The language standard is the host's choice.
foreach(pc quorveltask2 quorveltask2-qt)
  if(pc STREQUAL "quorveltask2" OR TARGET QuorvelTask2Qt)
    configure_file(cmake/${pc}.pc.in ${CMAKE_BINARY_DIR}/${pc}.pc @ONLY)
    install(FILES ${CMAKE_BINARY_DIR}/${pc}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)
  endif()
endforeach()

# The programs. They link the layers statically: they drive the dialogs'
# tool models, which the shared library keeps to itself.
install(TARGETS quorvel-script RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
if(TARGET quorvel)
  install(TARGETS quorvel RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
endif()
include(cmake/DataFiles.cmake)
