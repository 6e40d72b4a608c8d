# Shared by the commands in tools. Sourced, with the repository's root in $root.

# Packages to install before anything is built; filled by need_program and need_file.
missing=()

# need_program PROGRAM PACKAGE: the package is to be installed if the program is not found
need_program() {
    command -v "$1" >/dev/null || missing+=("$2")
}

# need_file FILE PACKAGE...: the packages are to be installed if no file matches the pattern
need_file() {
    compgen -G "$1" >/dev/null || missing+=("${@:2}")
}

need_build_tools() {
    need_program c++ g++
    need_program cmake cmake
    need_program ninja ninja-build
}

install_missing() {
    [ ${#missing[@]} -gt 0 ] || return 0
    command -v apt-get >/dev/null || { echo "Please install: ${missing[*]}" >&2; return 1; }
    local as_root=()
    [ "$(id -u)" = 0 ] || as_root=(sudo)
    echo "Installing ${missing[*]}"
    quietly "${as_root[@]}" apt-get update
    quietly "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
    missing=()
}

# Runs a command and shows its output only if it fails.
quietly() {
    local log status=0
    log=$(mktemp)
    "$@" >"$log" 2>&1 </dev/null || status=$?
    if [ $status != 0 ]; then
        cat "$log" >&2
        echo "Failed with status $status: $*" >&2
    fi
    rm -f "$log"
    return $status
}

# Arguments for every configuration: a compiler cache if installed, warnings as errors in continuous integration. Neither
# takes precompiled headers: the cache doesn't see through them, and they would hide that a file lacks an include.
configure_arguments() {
    printf '%s\n' -G Ninja
    if command -v ccache >/dev/null; then printf '%s\n' -DCMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
    if [ -n "${CI:-}" ]; then printf '%s\n' -DCMAKE_COMPILE_WARNING_AS_ERROR=ON; fi
    if [ -n "${CI:-}" ] || command -v ccache >/dev/null; then printf '%s\n' -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON; fi
}
