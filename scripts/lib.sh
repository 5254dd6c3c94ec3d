# shellcheck shell=bash
# Shared by the scripts. To be sourced from the top folder.

# build PRESET: configures and builds; shows the tools' output only when they fail.
build() {
    local log
    log=$(mktemp)
    echo "Building (preset $1)"
    if ! { cmake --preset "$1" && cmake --build --preset "$1"; } >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        echo "The build with preset $1 failed; its output stands above." >&2
        return 1
    fi
    rm -f "$log"
}
