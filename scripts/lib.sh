# shellcheck shell=bash
# Shared by the scripts. To be sourced from the top folder.

# build PRESET [TARGET...]: configures and builds; shows the tools' output only when they fail.
build() {
    local log preset=$1
    shift
    log=$(mktemp)
    echo "Building (preset $preset)"
    if ! { cmake --preset "$preset" && cmake --build --preset "$preset" ${1+--target "$@"}; } >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        echo "The build with preset $preset failed; its output stands above." >&2
        return 1
    fi
    rm -f "$log"
}

# run_tests PRESET [CTEST-OPTION...]: runs the tests that are built, and says what came of them.
run_tests() {
    # On a bare system programs of Qt 6.8 and later warn that the locale is not one of UTF-8.
    [ "$(locale charmap 2>/dev/null)" = UTF-8 ] || export LC_ALL=C.UTF-8
    local failed=0 folder=build/$1/Testing
    rm -rf "$folder/cases" "$folder/tests.xml" # a program that crashes leaves nothing new
    # Some tests wait for each other more than they work, so there are more at a time than processors.
    ctest --preset "$1" --parallel "$((2 * $(nproc)))" --output-junit "$PWD/$folder/tests.xml" "${@:2}" || failed=1
    [ ! -e "$folder/tests.xml" ] || awk -f tests/summary.awk -v cases="$folder/cases" "$folder/tests.xml"
    return $failed
}
