# What `cmake --install` and CPack put where.

include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/vornsdk-onvif)

if(NOT TARGET vornsdk-util)
    message(FATAL_ERROR "VORNSDK_ONVIF_INSTALL cannot install a VornSDK::Util that the surrounding project brings: set it "
        "to OFF, and install both libraries from there.")
endif()
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_BINDIR}")
    message(FATAL_ERROR "What is installed can be moved only if its folders are relative: give CMAKE_INSTALL_LIBDIR, "
        "CMAKE_INSTALL_INCLUDEDIR and CMAKE_INSTALL_BINDIR without the prefix.")
endif()

install(TARGETS vornsdk-util vornsdk-onvif
    EXPORT vornsdk-onvif-targets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT Development)
install(EXPORT vornsdk-onvif-targets
    NAMESPACE VornSDK::
    DESTINATION ${package_dir}
    COMPONENT Development)

get_target_property(library_type vornsdk-onvif TYPE)
configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/vornsdk-onvif-config.cmake.in
    ${PROJECT_BINARY_DIR}/vornsdk-onvif-config.cmake
    INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(
    ${PROJECT_BINARY_DIR}/vornsdk-onvif-config-version.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
        ${PROJECT_BINARY_DIR}/vornsdk-onvif-config.cmake
        ${PROJECT_BINARY_DIR}/vornsdk-onvif-config-version.cmake
    DESTINATION ${package_dir}
    COMPONENT Development)

# The .pc file finds the rest from where it stands itself.
file(RELATIVE_PATH prefix_from_pc /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
set(pc_libraries "-lvornsdk-onvif -lvornsdk-util")
set(pc_definitions "")
set(pc_requires "Qt6Core >= 6.4, Qt6Xml >= 6.4")
if(library_type STREQUAL "STATIC_LIBRARY")
    set(pc_definitions " -DVORNSDK_ONVIF_STATIC -DVORNSDK_UTIL_STATIC")
    string(APPEND pc_requires ", pugixml >= 1.11")
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/vornsdk-onvif.pc.in ${PROJECT_BINARY_DIR}/vornsdk-onvif.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vornsdk-onvif.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT Development)

if(TARGET onvif-inspect)
    file(RELATIVE_PATH libraries_from_tools /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
    set_target_properties(onvif-inspect PROPERTIES INSTALL_RPATH "${VORNSDK_ORIGIN}/${libraries_from_tools}")
    install(TARGETS onvif-inspect RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Tools)
    configure_file(${PROJECT_SOURCE_DIR}/docs/onvif-inspect.1.in ${PROJECT_BINARY_DIR}/onvif-inspect.1 @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/onvif-inspect.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
        COMPONENT Tools)
endif()
