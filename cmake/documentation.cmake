# What is installed to read: the examples with replies to try them with, and HTML where it is made.

install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples
    DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT Documentation
    FILES_MATCHING REGEX "\\.(cpp|h|json|txt|cmake)$")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/samples
    DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples
    COMPONENT Documentation
    FILES_MATCHING PATTERN "*.xml")

if(VORNSDK_ONVIF_BUILD_DOCS)
    find_program(DOXYGEN_PROGRAM doxygen)
    if(DOXYGEN_PROGRAM)
        # What another version of Doxygen warns of stops no build.
        add_custom_target(vornsdk-docs ALL
            COMMAND ${PROJECT_SOURCE_DIR}/docs/html.sh ${PROJECT_BINARY_DIR}/docs "WARN_AS_ERROR = NO"
            VERBATIM)
        install(DIRECTORY ${PROJECT_BINARY_DIR}/docs/html
            DESTINATION ${CMAKE_INSTALL_DOCDIR}
            COMPONENT Documentation)
    else()
        message(WARNING "Doxygen was not found: there will be no HTML documentation. Install it (on Debian doxygen).")
    endif()
endif()
