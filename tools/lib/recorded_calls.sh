# Shared by the parts that compare a binding's results with those in C++. Sourced, after common.sh.

# record_calls FOLDER LIBRARY_FOLDER SEEDS: calls every flat function of the library once for each seed, and writes the
# calls to FOLDER/calls.jsonl, which VECMAT_DUMPED_CALLS names from then on
record_calls() {
    local folder=$1 libraries=$2 seeds=$3 compiler=(c++)
    ! command -v ccache >/dev/null || compiler=(ccache c++)
    mkdir -p "$folder"
    rm -f "$folder"/*.o
    python3 -B "$root/tools/lib/flat_calls.py" "$folder/flat_calls_table.cpp"
    printf '%s\n' "$root"/Tests/support/flat_calls/*.cpp "$folder/flat_calls_table.cpp" \
        "$root/Tests/arguments/write_calls.cpp" |
        xargs -P "$(nproc)" -I{} sh -c '"$@" -o "$0/$(basename {} .cpp).o"' "$folder" "${compiler[@]}" -std=c++20 -O1 \
            -I"$root/Tests" -I"$root/Sources/Shared/VecMat" -I"$root/Sources/Shared/Companions" -I"$root/Bindings/c" -c {}
    c++ "$folder"/*.o -o "$folder/write_calls" "$libraries"/lib*.so.1 -Wl,-rpath,"$libraries"
    "$folder/write_calls" 1 "$seeds" >"$folder/calls.jsonl"
    export VECMAT_DUMPED_CALLS=$folder/calls.jsonl
}
