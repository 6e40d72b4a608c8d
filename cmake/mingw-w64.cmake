# Toolchain for 64-bit Windows, from any other system: MinGW-w64 compiles, Wine runs the programs.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The libraries are self-contained: VecMat.dll and its companions need none of the compiler's DLLs.
foreach(kind EXE SHARED)
    string(APPEND CMAKE_${kind}_LINKER_FLAGS_INIT " -static")
endforeach()

find_program(wine_program NAMES wine64 wine HINTS /usr/lib/wine)
if(wine_program)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${wine_program})
endif()
