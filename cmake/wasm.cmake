# Toolchain for WebAssembly: Emscripten compiles, Node runs the programs.
set(EMSCRIPTEN_SYSTEM_PROCESSOR wasm32 CACHE STRING "Processor for which Emscripten compiles")
find_path(emscripten_root emscripten.py PATHS $ENV{EMSDK}/upstream/emscripten /usr/share/emscripten
    NO_CMAKE_FIND_ROOT_PATH REQUIRED)
include(${emscripten_root}/cmake/Modules/Platform/Emscripten.cmake)

# 128-bit vectors, which every engine of today has, never the relaxed ones: their results depend on the machine.
# WebAssembly's own exceptions cost nothing where none is thrown; those through JavaScript slow down each call that might.
foreach(language C CXX)
    string(APPEND CMAKE_${language}_FLAGS_INIT " -msimd128 -fwasm-exceptions")
endforeach()
