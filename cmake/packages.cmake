# Debian packages: `cpack` in the build folder of the preset package.

set(CPACK_GENERATOR DEB)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_CONTACT "vornsdk-onvif maintainers <maintainers@vornsdk.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
    ${PROJECT_BINARY_DIR}/src ${PROJECT_BINARY_DIR}/src/xml)

set(details "It turns what ONVIF devices such as IP cameras answer into plain typed\n")
string(APPEND details "records. It reads sloppy and hostile XML, and does no input or output.")

set(runtime libvornsdk-onvif${PROJECT_VERSION_MAJOR})
set(debian ${PROJECT_BINARY_DIR}/debian)
configure_file(${CMAKE_CURRENT_LIST_DIR}/debian/shlibs.in ${debian}/shlibs @ONLY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/debian/triggers ${debian}/triggers COPYONLY)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${debian}/shlibs ${debian}/triggers)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "${details}")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvornsdk-onvif-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime} (= ${PROJECT_VERSION}), qt6-base-dev (>= 6.4)")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "${details}\n\nThis package holds what is needed to build programs.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME vornsdk-onvif-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${runtime} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION
    "${details}\n\nThis package holds onvif-inspect, which shows what is in a reply.")

set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_NAME libvornsdk-onvif-doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SUGGESTS libvornsdk-onvif-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS libvornsdk-onvif-doc)
set(CPACK_COMPONENT_DOCUMENTATION_DESCRIPTION
    "${details}\n\nThis package holds examples, replies to try them with, and the documentation.")

# Debian wants to know in each package what has changed and under which terms it may be used.
configure_file(${CMAKE_CURRENT_LIST_DIR}/debian/changelog.in ${debian}/changelog @ONLY)
foreach(component IN ITEMS Runtime Development Tools Documentation)
    string(TOUPPER ${component} upper)
    set(name ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    install(FILES ${debian}/changelog ${CMAKE_CURRENT_LIST_DIR}/debian/copyright
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name}
        COMPONENT ${component}
        EXCLUDE_FROM_ALL)
endforeach()

if(TARGET vornsdk-docs)
    install(FILES ${CMAKE_CURRENT_LIST_DIR}/debian/doc-base
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc-base
        RENAME ${CPACK_DEBIAN_DOCUMENTATION_PACKAGE_NAME}
        COMPONENT Documentation
        EXCLUDE_FROM_ALL)
endif()

# Compresses them, and the manual pages.
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian/compress.cmake)

include(CPack)
