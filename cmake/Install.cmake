# What `cmake --install` puts where, find_package(qdacore) and pkg-config qdacore.

if(WIN32)
  # Windows finds DLLs beside the program, and plug-ins are searched for there.
  set(QDACORE_PROGRAM_DIR ${CMAKE_INSTALL_BINDIR})
else()
  # Plug-ins are searched for beside the program's own file, so it has a folder of its own, and a
  # link to it stands on the path.
  set(QDACORE_PROGRAM_DIR ${CMAKE_INSTALL_LIBEXECDIR}/qdacore)
endif()

file(RELATIVE_PATH QDACORE_LIB_FROM_PROGRAM
  ${CMAKE_INSTALL_FULL_LIBEXECDIR}/qdacore ${CMAKE_INSTALL_FULL_LIBDIR})
set_target_properties(qdacore smbios qdamemory PROPERTIES INSTALL_RPATH "$ORIGIN")

install(TARGETS qdacore smbios qdamemory
  EXPORT qdacoreTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  FILE_SET status_names DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT qdacoreTargets
  NAMESPACE qdacore::
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/qdacore)

configure_package_config_file(
  ${PROJECT_SOURCE_DIR}/cmake/qdacoreConfig.cmake.in
  ${PROJECT_BINARY_DIR}/qdacoreConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/qdacore)
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/qdacoreConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/qdacoreConfig.cmake
  ${PROJECT_BINARY_DIR}/qdacoreConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/qdacore)

# Relative to the .pc file, so that an installation can be moved as a whole.
file(RELATIVE_PATH QDACORE_PREFIX_FROM_PC
  ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(${PROJECT_SOURCE_DIR}/cmake/qdacore.pc.in ${PROJECT_BINARY_DIR}/qdacore.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/qdacore.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

if(QDACORE_BUILD_HOST)
  set_target_properties(qda machine mof PROPERTIES
    INSTALL_RPATH "$ORIGIN/${QDACORE_LIB_FROM_PROGRAM}")
  install(TARGETS qda RUNTIME DESTINATION ${QDACORE_PROGRAM_DIR})
  install(TARGETS machine mof LIBRARY DESTINATION ${QDACORE_PROGRAM_DIR})
  if(NOT WIN32)
    install(FILES ${PROJECT_SOURCE_DIR}/docs/qda.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    install(FILES ${PROJECT_SOURCE_DIR}/qda/completion/qda.bash
      DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME qda)
    install(CODE "
      set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
      file(MAKE_DIRECTORY \"\${bin}\")
      file(CREATE_LINK ../${QDACORE_PROGRAM_DIR}/qda \"\${bin}/qda\" SYMBOLIC)")
  endif()
endif()
