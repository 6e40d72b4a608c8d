# The last step of cmake --install: a list of what has been installed, with checksums. Python 3 writes it, where there is one.
find_package(Python3 COMPONENTS Interpreter)
if(Python3_FOUND)
    set(list_of_parts ${CMAKE_INSTALL_DATADIR}/doc/vecmat/vecmat.spdx.json)
    configure_file(cmake/sbom.cmake.in ${PROJECT_BINARY_DIR}/sbom.cmake @ONLY)
    install(SCRIPT ${PROJECT_BINARY_DIR}/sbom.cmake)
endif()
