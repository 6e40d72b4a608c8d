# Shared by the parts that test the package for JavaScript. Sourced, after common.sh.

# Emscripten's scripts take a parser from Debian's packages, which a Node from elsewhere doesn't look through.
export NODE_PATH=/usr/share/nodejs

# need_to_build_for_javascript: what the package takes, in the browser, too
need_to_build_for_javascript() {
    need_build_tools
    need_program python3 python3
    need_program emcc emscripten
    need_program node nodejs
    need_program chromium chromium
}

# build_for_javascript TARGET [ARGUMENT...]: a target in build/wasm, configured with these arguments of CMake
build_for_javascript() {
    local arguments
    mapfile -t arguments < <(configure_arguments)
    quietly cmake --preset wasm "${arguments[@]}" "${@:2}"
    quietly cmake --build "$root/build/wasm" --target "$1"
}
