#!/usr/bin/env bash
# Fails if the binary interface of a library is not the one of its committed dump, and reports what has changed.
#
# usage: compare.sh DUMP LIBRARY             compares LIBRARY, which needs debug information, with DUMP
#        compare.sh --write DUMP LIBRARY     writes DUMP, to be committed with a change that is meant
set -euo pipefail

write=
if [ "$1" = --write ]; then
    write=1
    shift
fi
dump=$1
library=$2
suppressions=$(dirname "${BASH_SOURCE[0]}")/abi.suppr

if [ -n "$write" ]; then
    # Where the sources stood is of no interest.
    abidw --suppressions "$suppressions" --no-corpus-path --no-comp-dir-path --no-show-locs "$library" \
        | sed -E "s: path='[^']*/src/: path='src/:" | gzip -9n >"$dump"
    exit
fi

plain=$(mktemp --suffix=.abi)
trap 'rm -f "$plain"' EXIT
gzip -dc "$dump" >"$plain"
if ! abidiff --suppressions "$suppressions" --harmless "$plain" "$library"; then
    echo "The binary interface of $library differs from $dump: see above." >&2
    exit 1
fi
