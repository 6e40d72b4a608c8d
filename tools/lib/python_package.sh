# Shared by the parts that test the Python package. Sourced, after common.sh.

# Debian's interpreter, which sees Debian's packages: another one may come first on the path.
system_python=/usr/bin/python3

# need_python_packages NAME...: Debian's packages of these modules
need_python_packages() {
    local name
    for name in "$@"; do
        need_file "/usr/lib/python3/dist-packages/$name" "python3-$name"
    done
}

# need_to_build_for_python: what the package's installation takes
need_to_build_for_python() {
    need_build_tools
    need_file "$system_python" python3
    need_file '/usr/include/python3*/Python.h' python3-dev
    need_file '/usr/lib/python3*/ensurepip/__init__.py' python3-venv
    need_python_packages numpy setuptools wheel
}

# install_python_package ENVIRONMENT: into a virtual environment of its own; the library is built once for all of them, as
# that for R is, so that a compiler cache serves both
install_python_package() {
    local -x CMAKE_ARGS
    CMAKE_ARGS=$(configure_arguments | sed -n '/^-D/p' | paste -sd ' ')
    [ -x "$1/bin/pip" ] || "$system_python" -m venv --system-site-packages "$1"
    rm -rf "$root/Bindings/python/build" "$1"/lib/python3*/site-packages/vecmat
    VECMAT_BUILD_DIRECTORY=$root/build/python/library quietly "$1/bin/pip" install --no-build-isolation --no-deps \
        --force-reinstall "$root/Bindings/python"
}
