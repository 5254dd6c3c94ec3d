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
