# SPDX-License-Identifier: MIT
# What a host gets: the library with the names that it may use, the public headers, a package for
# find_package(DataExport), the program, the images of the pages and the licence.
include(CMakePackageConfigHelpers)

# The sources mark what is offered; the linker keeps template instances of others inside.
set(DATAEXPORT_NAMES "${CMAKE_SOURCE_DIR}/cmake/exported_names.map")
target_link_options(dataexport PRIVATE "LINKER:--version-script=${DATAEXPORT_NAMES}")
set_property(TARGET dataexport APPEND PROPERTY LINK_DEPENDS "${DATAEXPORT_NAMES}")

# Headers keep their paths: "model/PRBackup.h" is include/dataexport/model/PRBackup.h.
set(DATAEXPORT_INSTALL_HEADERS "${CMAKE_INSTALL_INCLUDEDIR}/dataexport")
file(STRINGS cmake/public_headers.txt DATAEXPORT_PUBLIC_HEADERS REGEX "^[^#]")
foreach(pattern IN LISTS DATAEXPORT_PUBLIC_HEADERS)
    file(GLOB headers CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/${pattern}")
    if(NOT headers)
        message(FATAL_ERROR "cmake/public_headers.txt: no header ${pattern}")
    endif()
    get_filename_component(folder "${pattern}" DIRECTORY)
    install(FILES ${headers} DESTINATION "${DATAEXPORT_INSTALL_HEADERS}/${folder}")
endforeach()

install(TARGETS dataexport EXPORT DataExportTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    INCLUDES DESTINATION "${DATAEXPORT_INSTALL_HEADERS}")

# The program finds the library beside it, wherever the prefix is moved to.
if(TARGET dataexport_program)
    file(RELATIVE_PATH DATAEXPORT_LIBRARY_FROM_PROGRAM
        "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
    set_target_properties(dataexport_program PROPERTIES
        INSTALL_RPATH "$ORIGIN/${DATAEXPORT_LIBRARY_FROM_PROGRAM}")
    install(TARGETS dataexport_program RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()

set(DATAEXPORT_INSTALL_PACKAGE "${CMAKE_INSTALL_LIBDIR}/cmake/DataExport")
configure_package_config_file(cmake/DataExportConfig.cmake.in
    "${CMAKE_BINARY_DIR}/DataExportConfig.cmake"
    INSTALL_DESTINATION "${DATAEXPORT_INSTALL_PACKAGE}")
# Before version 1 each minor version may change what a host sees.
write_basic_package_version_file("${CMAKE_BINARY_DIR}/DataExportConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
install(FILES
    "${CMAKE_BINARY_DIR}/DataExportConfig.cmake"
    "${CMAKE_BINARY_DIR}/DataExportConfigVersion.cmake"
    DESTINATION "${DATAEXPORT_INSTALL_PACKAGE}")
install(EXPORT DataExportTargets NAMESPACE DataExport::
    DESTINATION "${DATAEXPORT_INSTALL_PACKAGE}")

# OvResourceMgr looks for share/dataexport/DataExport above the library. The build drew the images.
install(DIRECTORY "${CMAKE_BINARY_DIR}/resources/DataExport"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/dataexport")
if(EXISTS "${CMAKE_SOURCE_DIR}/docs/dataexport.1")
    install(FILES docs/dataexport.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
endif()
install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}")
