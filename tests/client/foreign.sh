#!/bin/sh
# Runs foreign.js with the clients that scripts/setup has installed in the first folder. 77 means that they are missing.
if ! command -v node >/dev/null; then
    echo "Skipped: node is not installed."
    exit 77
fi
if ! [ -d "$1/node_modules/onvif" ] || ! [ -d "$1/node_modules/node-onvif" ]; then
    echo "Skipped: the clients are not installed; scripts/setup clients does that, if it reaches a registry of npm."
    exit 77
fi
exec node "$(dirname "$0")/foreign.js" "$@"
