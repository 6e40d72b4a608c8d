# Shared by the parts that test the package for JavaScript. Sourced, after common.sh.

# Emscripten's scripts take a parser from Debian's packages, which a Node from elsewhere doesn't look through.
export NODE_PATH=/usr/share/nodejs

# need_to_build_for_javascript: what the package and its installation take
need_to_build_for_javascript() {
    need_build_tools
    need_program python3 python3
    need_program emcc emscripten
    need_program node nodejs
    need_program npm npm
}

# build_for_javascript TARGET [ARGUMENT...]: a target in build/wasm, configured with these arguments of CMake
build_for_javascript() {
    local arguments
    mapfile -t arguments < <(configure_arguments)
    quietly cmake --preset wasm "${arguments[@]}" "${@:2}"
    quietly cmake --build "$root/build/wasm" --target "$1"
}

# install_javascript_package FOLDER: as its users get it, packed and installed by npm, with its tests beside it
install_javascript_package() {
    local place=$1
    rm -rf "$place"
    mkdir -p "$place"
    (cd "$root/build/wasm/package" && quietly npm pack --pack-destination "$place")
    cp -r "$root/Bindings/js/tests" "$place/tests"
    cp "$root/Bindings/js/tests/package.json" "$place/package.json"
    (cd "$place" && quietly npm install --no-audit --no-fund --no-save --offline ./vecmat-*.tgz)
}
