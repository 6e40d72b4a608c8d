# The library and the three companion libraries that it imports.

# Where the companions are installed: beside the library, or in a folder below of its own.
set(VECMAT_COMPANIONS_SUBDIR "" CACHE STRING "Folder below that of the library in which the companions are installed")
if(VECMAT_COMPANIONS_SUBDIR)
    set(vecmat_companions_rpath "/${VECMAT_COMPANIONS_SUBDIR}")
endif()

# vecmat_shared_library(NAME [VERSIONED] SOURCE...): a shared library with the rules that all of the project's libraries
# follow. VERSIONED gives its symbols the version node of the interface: see Docs/versions.md. For WebAssembly it is static:
# one module has all.
function(vecmat_shared_library name)
    cmake_parse_arguments(PARSE_ARGV 1 library "VERSIONED" "" "")
    if(EMSCRIPTEN)
        add_library(${name} STATIC ${library_UNPARSED_ARGUMENTS})
    else()
        add_library(${name} SHARED ${library_UNPARSED_ARGUMENTS})
    endif()
    add_library(VecMat::${name} ALIAS ${name})
    set_target_properties(${name} PROPERTIES
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} INSTALL_RPATH "$ORIGIN")
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:library_options>)
    set_target_properties(${name} PROPERTIES DLL_NAME_WITH_SOVERSION OFF)
    if(WIN32)
        set_target_properties(${name} PROPERTIES PREFIX "" IMPORT_PREFIX "lib")
    endif()
    # On the first two the linker binds calls inside a library, and external calls to the library defining them.
    if(APPLE OR WIN32 OR EMSCRIPTEN)
        return()
    endif()
    # The linker script keeps instantiations of the standard library's templates out of the exports: they carry
    # default visibility of their own and would otherwise appear under the library's name.
    set(VECMAT_SYMBOL_NODE "")
    if(library_VERSIONED)
        set(VECMAT_SYMBOL_NODE "VECMAT_${PROJECT_VERSION_MAJOR} ")
    endif()
    set(script ${PROJECT_BINARY_DIR}/${name}.map)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/exports.map.in ${script} @ONLY)
    target_link_options(${name} PRIVATE -Wl,--version-script=${script})
    set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS ${script})
    # Calls inside a library stay inside, whatever else of the same name (`ddot`, `dscal`) the process has loaded; calls
    # to the companions go through the loader and can be taken over by another build.
    target_link_options(${name} PRIVATE -Wl,-Bsymbolic-functions)
    if(NOT VECMAT_SANITIZE AND NOT VECMAT_COUNT_STEPS) # whose runtime is in the program, not in the library
        target_link_options(${name} PRIVATE -Wl,--no-undefined)
    endif()
endfunction()

set(vecmat_source ${PROJECT_SOURCE_DIR}/Sources/Shared/VecMat)

# The elementary functions, compiled once for the library and the companion.
file(GLOB mathematics_sources CONFIGURE_DEPENDS ${vecmat_source}/base/detail/mathematics/*.cpp)
add_library(vecmat_mathematics STATIC ${mathematics_sources})
target_compile_features(vecmat_mathematics PRIVATE cxx_std_20)
target_link_libraries(vecmat_mathematics PRIVATE library_options)
target_include_directories(vecmat_mathematics INTERFACE $<BUILD_INTERFACE:${vecmat_source}>)

set(VECMAT_COMPANIONS CompanionRandom CompanionRuntime CompanionBasics)
set(companions_source ${PROJECT_SOURCE_DIR}/Sources/Shared/Companions)
foreach(companion IN LISTS VECMAT_COMPANIONS)
    if(VECMAT_COMPANIONS_DIR)
        find_library(VECMAT_${companion}_LIBRARY ${companion} PATHS ${VECMAT_COMPANIONS_DIR} NO_DEFAULT_PATH REQUIRED)
        add_library(VecMat::${companion} SHARED IMPORTED)
        set_target_properties(VecMat::${companion} PROPERTIES
            IMPORTED_LOCATION ${VECMAT_${companion}_LIBRARY}
            INTERFACE_INCLUDE_DIRECTORIES ${companions_source})
    else()
        file(GLOB companion_sources CONFIGURE_DEPENDS ${companions_source}/${companion}/*.cpp)
        # Without a version node: a caller of one would ask another build for that node, too.
        vecmat_shared_library(${companion} ${companion_sources})
        target_include_directories(${companion} PUBLIC
            $<BUILD_INTERFACE:${companions_source}>
            $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/VecMat/Companions>)
    endif()
    list(APPEND companion_targets VecMat::${companion})
endforeach()

if(TARGET CompanionBasics)
    target_link_libraries(CompanionBasics PRIVATE $<BUILD_INTERFACE:vecmat_mathematics>)
endif()
if(WIN32 AND TARGET CompanionRuntime)
    target_link_libraries(CompanionRuntime PRIVATE oleaut32) # which makes and frees the strings of its hosts
endif()

file(GLOB_RECURSE vecmat_sources CONFIGURE_DEPENDS ${vecmat_source}/*.cpp)
file(GLOB_RECURSE vecmat_kernels CONFIGURE_DEPENDS ${vecmat_source}/*.kernel.cpp)
list(REMOVE_ITEM vecmat_sources ${vecmat_kernels} ${mathematics_sources})
vecmat_shared_library(VecMat VERSIONED ${vecmat_sources})
# Reading the headers of the standard library would take more than half of the time of a build. Each file still includes
# what it needs: builds with a compiler cache, and those of .ci/run, do without (tools/lib/common.sh).
target_precompile_headers(VecMat PRIVATE
    <algorithm> <array> <cmath> <functional> <limits> <memory> <optional> <string> <string_view> <utility> <vector>)

# Running moments: a vector of mean and squares would make each step of the mean wait for the longer one of the squares.
file(GLOB moment_sources CONFIGURE_DEPENDS ${vecmat_source}/descriptive/*.cpp)
set_property(SOURCE ${moment_sources} APPEND PROPERTY COMPILE_OPTIONS -fno-tree-slp-vectorize)

# The kernels are compiled once for each instruction set; the choice is made at run time. Loops with adjacent results
# become vector instructions, provided the compiler knows that errno and the floating-point exception flags are never
# read.
set(vecmat_kernel_options -fno-math-errno -fno-trapping-math $<$<NOT:$<CONFIG:Debug>>:-O3>)
set(instruction_sets baseline)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i[3-6]86)$")
    list(APPEND instruction_sets avx2 avx512)
    set(avx2_options -mavx2 -mfma)
    set(avx512_options -mavx512f -mavx512dq -mavx512bw -mavx512vl -mprefer-vector-width=512)
    if(MINGW) # on Windows g++ assumes a stack aligned for wide vectors, which it isn't
        list(APPEND avx2_options -Wa,-muse-unaligned-vector-move)
        list(APPEND avx512_options -Wa,-muse-unaligned-vector-move)
    endif()
endif()
foreach(set IN LISTS instruction_sets)
    add_library(vecmat_kernels_${set} OBJECT ${vecmat_kernels})
    target_compile_features(vecmat_kernels_${set} PRIVATE cxx_std_20)
    target_compile_definitions(vecmat_kernels_${set} PRIVATE VECMAT_INSTRUCTION_SET=${set})
    target_compile_options(vecmat_kernels_${set} PRIVATE ${vecmat_kernel_options} ${${set}_options})
    target_link_libraries(vecmat_kernels_${set} PRIVATE library_options)
    target_sources(VecMat PRIVATE $<TARGET_OBJECTS:vecmat_kernels_${set}>)
endforeach()

if(WIN32)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    set(definition ${PROJECT_BINARY_DIR}/VecMat.def)
    add_custom_command(TARGET VecMat PRE_LINK COMMAND_EXPAND_LISTS VERBATIM
        COMMAND ${Python3_EXECUTABLE} -B ${PROJECT_SOURCE_DIR}/tools/lib/windows_exports.py
            ${PROJECT_SOURCE_DIR}/exports.tsv ${CMAKE_NM} $<TARGET_FILE_NAME:VecMat> ${definition}
            $<TARGET_OBJECTS:VecMat>)
    target_link_options(VecMat PRIVATE ${definition})
    set_property(TARGET VecMat APPEND PROPERTY LINK_DEPENDS ${PROJECT_SOURCE_DIR}/exports.tsv)
endif()

# The library reads the environment only if built to compare the instruction sets on one machine.
if(VECMAT_NARROWER_INSTRUCTIONS)
    set_property(SOURCE ${vecmat_source}/kernels/instruction_set.cpp APPEND PROPERTY
        COMPILE_DEFINITIONS VECMAT_NARROWER_INSTRUCTIONS)
endif()

target_include_directories(VecMat PUBLIC
    $<BUILD_INTERFACE:${vecmat_source}>
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/Bindings/c>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/VecMat>)
target_link_libraries(VecMat PRIVATE ${companion_targets} $<BUILD_INTERFACE:vecmat_mathematics>)
set_target_properties(VecMat PROPERTIES INSTALL_RPATH "$ORIGIN${vecmat_companions_rpath}")

# The guarded calls are a separate library: VecMat's exports are fixed.
vecmat_shared_library(VecMatGuarded VERSIONED Bindings/c/guard.cpp Bindings/c/VecMatGuarded.cpp)
target_include_directories(VecMatGuarded PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/Bindings/c>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/VecMat>)
target_link_libraries(VecMatGuarded PRIVATE VecMat)
