# The zip for Windows: what a host needs, and the licences of what is linked in.
configure_file(resources/windows/README.txt ${CMAKE_BINARY_DIR}/package/README.txt @ONLY
               NEWLINE_STYLE CRLF)
configure_file(LICENSE ${CMAKE_BINARY_DIR}/package/LICENSE.txt @ONLY NEWLINE_STYLE CRLF)

install(TARGETS QuTavAndroidExt LIBRARY DESTINATION .)
install(TARGETS qutav RUNTIME DESTINATION .)
install(FILES ${CMAKE_BINARY_DIR}/package/README.txt ${CMAKE_BINARY_DIR}/package/LICENSE.txt
        DESTINATION .)
install(DIRECTORY ${QUTAV_WINDOWS_PREFIX}/licences DESTINATION .)

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME ${PROJECT_NAME}-${PROJECT_VERSION}-windows-x64)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR})
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
