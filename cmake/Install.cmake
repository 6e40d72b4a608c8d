# cmake --install: headers, libraries, a CMake package (find_package(VecMat), target VecMat::VecMat), vecmat.pc, and
# the modules for macros.

include(CMakePackageConfigHelpers)

# The public headers are those that the umbrella names: all outside of access, kernels and the folders named detail.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${vecmat_source}/VecMat.h)
file(STRINGS ${vecmat_source}/VecMat.h public_headers REGEX "^#include \"")
list(TRANSFORM public_headers REPLACE "^#include \"([^\"]+)\".*" "\\1")
foreach(header IN ITEMS VecMat.h LISTS public_headers)
    get_filename_component(folder ${header} DIRECTORY)
    install(FILES ${vecmat_source}/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VecMat/${folder})
endforeach()
install(FILES Bindings/c/VecMatFlat.h Bindings/c/VecMatGuarded.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VecMat)
install(DIRECTORY Bindings/vba/ DESTINATION ${CMAKE_INSTALL_DATADIR}/VecMat FILES_MATCHING PATTERN "*.bas")
install(TARGETS VecMat VecMatGuarded EXPORT VecMatTargets)

if(VECMAT_COMPANIONS_DIR)
    # The companions stay in place, and the installed library finds them there.
    set_property(TARGET VecMat APPEND PROPERTY INSTALL_RPATH ${VECMAT_COMPANIONS_DIR})
else()
    foreach(companion IN LISTS VECMAT_COMPANIONS)
        install(DIRECTORY ${companions_source}/${companion}
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VecMat/Companions FILES_MATCHING PATTERN "*.h")
        install(TARGETS ${companion} EXPORT VecMatTargets
            LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}${vecmat_companions_rpath})
    endforeach()
endif()

set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/VecMat)
install(EXPORT VecMatTargets NAMESPACE VecMat:: DESTINATION ${package_directory})
configure_package_config_file(cmake/VecMatConfig.cmake.in ${PROJECT_BINARY_DIR}/VecMatConfig.cmake
    INSTALL_DESTINATION ${package_directory})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VecMatConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VecMatConfig.cmake ${PROJECT_BINARY_DIR}/VecMatConfigVersion.cmake
    DESTINATION ${package_directory})

# The prefix is relative to the file, so that an installed tree can be moved as a whole.
file(RELATIVE_PATH pkgconfig_to_prefix
    ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/vecmat.pc.in ${PROJECT_BINARY_DIR}/vecmat.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vecmat.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# What is installed explains itself: two manual pages, the pages of Docs and, where tools/docs has built it, the reference.
foreach(manual IN ITEMS man1/vecmat-digest.1 man3/vecmat.3)
    get_filename_component(page ${manual} NAME)
    get_filename_component(section ${manual} DIRECTORY)
    if(NOT page MATCHES "digest" OR VECMAT_DIGEST)
        configure_file(Docs/man/${page}.in ${PROJECT_BINARY_DIR}/man/${page} @ONLY)
        install(FILES ${PROJECT_BINARY_DIR}/man/${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/${section})
    endif()
endforeach()
set(documents ${CMAKE_INSTALL_DATADIR}/doc/vecmat)
install(FILES LICENSE CHANGELOG.md DESTINATION ${documents})
install(DIRECTORY Docs/ DESTINATION ${documents}
    FILES_MATCHING PATTERN "*.md" PATTERN "*.svg" PATTERN "*.png"
    PATTERN man EXCLUDE PATTERN site EXCLUDE PATTERN examples EXCLUDE)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/build/docs/html DESTINATION ${documents} OPTIONAL)
