#!/usr/bin/env bash
# Fails if what the libraries export is not exactly what the list says.
#
# usage: exports.sh NM LIST LIBRARY...                 compares with the file LIST
#        exports.sh NM --lists-vary LIST LIBRARY...    likewise, where QList has not the members that LIST has
#        exports.sh NM --print LIBRARY...              prints the list, to be committed with a change that is meant
set -euo pipefail

nm=$1
list=$2
shift 2
members=as-listed
if [ "$list" = --lists-vary ]; then
    members=vary
    list=$1
    shift
fi

# What a compiler may inline and then leave out, or not: a defaulted constructor, and what other operations call.
optional='::QList\(\)$|::emplace<'

# On s390x, a long double is called after what it is.
exports() {
    "$nm" --dynamic --defined-only --demangle "$@" \
        | sed -nE 's/__float128/long double/; s/^[0-9a-f]+ [A-Za-z] (.*)@@VORNSDK_1$/\1/p' \
        | grep -vE "$optional" | LC_ALL=C sort -u
}

if [ "$list" = --print ]; then
    exports "$@"
    exit
fi

# Without the members of QList, but with the operations that each has had from the start, for each type of element.
comparable() {
    if [ $members = as-listed ]; then
        cat
        return
    fi
    local operations='append|at|begin|capacity|clear|constBegin|constData|constEnd|count|data|detach|end|first|insert|isEmpty'
    operations+='|last|length|prepend|remove|removeAt|removeFirst|removeLast|replace|reserve|resize|size|squeeze|swap|takeAt'
    sed -E "s/^(QList<[^>]*>::($operations))\(.*/\1/; t; /QList<vorn::/d" | LC_ALL=C sort -u
}

exported=$(exports "$@")
[ -n "$exported" ] || { echo "$*: no symbols found; are they shared libraries?" >&2; exit 2; }
if ! diff --unified=0 --label "committed list" --label "exported" <(comparable <"$list") <(comparable <<<"$exported"); then
    echo "What the libraries export has changed: - is missing now, + is new." >&2
    exit 1
fi

# Symbols without the version of the libraries are not theirs to export.
if "$nm" --dynamic --defined-only --demangle "$@" | grep -E '^[0-9a-f]+ ' | grep -vE '@@VORNSDK_1$| A VORNSDK_1$'; then
    echo "The libraries export the above beside their own." >&2
    exit 1
fi
