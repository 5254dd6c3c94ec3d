#!/usr/bin/env bash
# Makes HTML of the pages beside this script and of the headers' comments, with Doxygen.
#
# usage: html.sh FOLDER [SETTING...]     FOLDER/html becomes the documentation; SETTING is one of Doxygen's
set -euo pipefail
folder=$(realpath -m "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/.."

style=/usr/share/doxygen-awesome-css
mkdir -p "$folder"
rm -rf "$folder/html"
# Doxygen's own layout, so that it fits each version; without the lists of all classes and files.
doxygen -l "$folder/layout.xml"
sed -i -E '/<tab type="(class|namespace|file|globals|hierarchy)[a-z]*"/s/visible="yes"/visible="no"/
    s/(<tab type="(modules|topics)" visible="yes") title=""/\1 title="Records and queries"/' "$folder/layout.xml"
{
    cat docs/Doxyfile
    echo "OUTPUT_DIRECTORY = \"$folder\""
    echo "LAYOUT_FILE = \"$folder/layout.xml\""
    if [ -d "$style" ]; then
        echo "HTML_EXTRA_STYLESHEET = $style/doxygen-awesome.css $style/doxygen-awesome-sidebar-only.css"
        # Of its own dark colours, which came with 1.9.5, the style sheet wants none.
        ! doxygen -s -g - | grep '^HTML_COLORSTYLE ' >/dev/null || echo "HTML_COLORSTYLE = LIGHT"
    fi
    printf '%s\n' "${@:2}"
} | doxygen - >/dev/null
