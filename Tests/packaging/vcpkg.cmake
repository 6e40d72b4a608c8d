# vcpkg.cmake: runs the port as vcpkg would, with stand-ins of the helper functions that a port calls. PORT is its folder,
# WORK the folder for what it makes, ARGUMENTS what every configuration here takes.
get_filename_component(PORT_NAME ${PORT} NAME)
set(CURRENT_PACKAGES_DIR ${WORK}/packages)

function(run)
    execute_process(COMMAND ${ARGN} OUTPUT_FILE ${WORK}/port.log ERROR_FILE ${WORK}/port.log RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        file(READ ${WORK}/port.log log)
        message(FATAL_ERROR "${ARGN}\n${log}")
    endif()
endfunction()

function(vcpkg_cmake_configure)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "SOURCE_PATH" "OPTIONS")
    run(${CMAKE_COMMAND} -S ${arg_SOURCE_PATH} -B ${WORK} ${ARGUMENTS} -DCMAKE_BUILD_TYPE=Release
        -DCMAKE_INSTALL_LIBDIR=lib ${arg_OPTIONS})
endfunction()

function(vcpkg_cmake_install)
    run(${CMAKE_COMMAND} --build ${WORK})
    run(${CMAKE_COMMAND} --install ${WORK} --prefix ${CURRENT_PACKAGES_DIR})
endfunction()

# The files move to share/<name>, and their way to the prefix stays right.
function(vcpkg_cmake_config_fixup)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "PACKAGE_NAME;CONFIG_PATH" "")
    file(GLOB configs ${CURRENT_PACKAGES_DIR}/${arg_CONFIG_PATH}/*)
    file(COPY ${configs} DESTINATION ${CURRENT_PACKAGES_DIR}/share/${arg_PACKAGE_NAME})
    file(REMOVE_RECURSE ${CURRENT_PACKAGES_DIR}/${arg_CONFIG_PATH})
    file(GLOB configs ${CURRENT_PACKAGES_DIR}/share/${arg_PACKAGE_NAME}/*.cmake)
    foreach(config IN LISTS configs)
        file(READ ${config} text)
        string(REPLACE "/../../../" "/../../" text "${text}")
        string(REPLACE "get_filename_component(_IMPORT_PREFIX \"\${_IMPORT_PREFIX}\" PATH)\nget_filename_component(_IMPORT_PREFIX \"\${_IMPORT_PREFIX}\" PATH)\nget_filename_component(_IMPORT_PREFIX \"\${_IMPORT_PREFIX}\" PATH)"
            "get_filename_component(_IMPORT_PREFIX \"\${_IMPORT_PREFIX}\" PATH)\nget_filename_component(_IMPORT_PREFIX \"\${_IMPORT_PREFIX}\" PATH)" text "${text}")
        file(WRITE ${config} "${text}")
    endforeach()
endfunction()

function(vcpkg_fixup_pkgconfig)
endfunction()

function(vcpkg_install_copyright)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "FILE_LIST")
    configure_file(${arg_FILE_LIST} ${CURRENT_PACKAGES_DIR}/share/${PORT_NAME}/copyright COPYONLY)
endfunction()

set(PORT_FILE ${PORT}/portfile.cmake)
set(PORT ${PORT_NAME})
include(${PORT_FILE})
foreach(needed IN ITEMS share/VecMat/VecMatConfig.cmake share/vecmat/usage share/vecmat/copyright lib/libVecMat.so)
    if(NOT EXISTS ${CURRENT_PACKAGES_DIR}/${needed})
        message(FATAL_ERROR "the port makes no ${needed}")
    endif()
endforeach()
