#!/usr/bin/env bash
# Follows each link of the HTML documentation and looks at each picture, in a browser. What is elsewhere on the network is
# not asked for. Exits with 77 where there is no browser.
#
# usage: test.sh FOLDER          FOLDER holds the documentation
set -euo pipefail
here=$(dirname "${BASH_SOURCE[0]}")
folder=$(realpath "$1")

if ! command -v chromium >/dev/null; then
    echo "docs test: skipped, as chromium is missing: scripts/setup browser"
    exit 77
fi

profile=$(mktemp -d)
trap 'rm -rf "$profile" "$folder/check-links.html"' EXIT
pages=$(cd "$folder" && find . -name '*.html' ! -name check-links.html | sed 's:^\./\(.*\):<iframe src="\1"></iframe>:' | sort)
lists=$(cd "$folder" && find . -name 'navtreeindex*.js' | sed 's:^\./\(.*\):<script src="\1"></script>:')
printf '%s\n' "$(<"$here/check.html")" "$lists" "$pages" >"$folder/check-links.html"
chromium --headless --no-sandbox --disable-gpu --disable-quic --no-first-run --disable-background-networking \
    --disable-component-update --disable-sync --allow-file-access-from-files --user-data-dir="$profile" \
    --dump-dom "file://$folder/check-links.html" >"$profile/dom" 2>"$profile/errors" || { cat "$profile/errors" >&2; exit 1; }
sed -n 's/^RESULT //p' "$profile/dom"
grep -q '^RESULT [1-9].*[1-9].* pictures, 0 wrong$' "$profile/dom" || { echo "docs test: failed" >&2; exit 1; }
