# Shared by the parts that test the R package. Sourced, after common.sh and recorded_calls.sh.

r_build=$root/build/r

# need_to_build_for_r: what the package's installation and its tests take
need_to_build_for_r() {
    local name
    need_build_tools
    need_program python3 python3
    need_program pkg-config pkgconf
    need_program R r-base-core
    need_file /usr/share/R/include/Rinternals.h r-base-dev
    need_program make make
    for name in cpp11 data.table jsonlite knitr matrixStats rmarkdown testthat; do
        need_file "/usr/lib/R/site-library/$name" "r-cran-$(printf %s "$name" | tr '[:upper:]' '[:lower:]')"
    done
}

# build_for_r [--short]: the library as the package's users install it, the recorded calls, and the package's files in build/r/stage
build_for_r() {
    local arguments short=${1:-} jobs
    mkdir -p "$r_build"
    jobs=$(nproc)
    export MAKEFLAGS=-j$jobs

    mapfile -t arguments < <(configure_arguments)
    quietly cmake -S . -B "$r_build/library" "${arguments[@]}" -DCMAKE_BUILD_TYPE=Release -DVECMAT_TESTS=OFF \
        -DVECMAT_DIGEST=OFF -DCMAKE_INSTALL_PREFIX="$r_build/prefix"
    quietly cmake --build "$r_build/library"
    quietly cmake --install "$r_build/library"

    record_calls "$r_build/dump" "$(dirname "$(find "$r_build/prefix" -name libVecMat.so)")" "$([ "$short" ] && echo 6 || echo 30)"

    # R compiles as it is told to by its user: by the compiler cache, if there is one.
    export R_MAKEVARS_USER=$r_build/Makevars
    printf 'CXX20 = %s\nCXX20FLAGS = %s\n' \
        "$(command -v ccache >/dev/null && echo 'ccache g++' || echo g++)" "$([ "$short" ] && echo -O1 || echo -O2)" >"$R_MAKEVARS_USER"
    # R compiles a package in folders of other names, which make no difference.
    export CCACHE_NOHASHDIR=1 CCACHE_BASEDIR=
    export LC_ALL=C.UTF-8 TZ=UTC

    export PKG_CONFIG_PATH
    PKG_CONFIG_PATH=$(dirname "$(find "$r_build/prefix" -name vecmat.pc)")
    python3 -B tools/lib/r_package.py "$r_build/stage"
}

# install_r_package LIBRARY: into a folder of R's packages of its own
install_r_package() {
    rm -rf "$1"
    mkdir -p "$1"
    quietly R CMD INSTALL --no-docs --library="$1" "$r_build/stage/vecmat"
}
