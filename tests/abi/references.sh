#!/usr/bin/env bash
# Fails if a library refers to anything by which it could do input or output, read the environment, start a thread,
# print or throw. (Passing an exception on, as the standard containers do when there is no memory, is not throwing.)
#
# usage: references.sh NM LIBRARY...
set -euo pipefail

nm=$1
shift
[ $# -gt 0 ] || { echo "no library named" >&2; exit 2; }

forbidden='^(_?_?f?open(at)?(64)?|fopen(64)?|creat|socket|connect|send|recv|system|popen|fork|exec[a-z]*'
forbidden+='|(secure_)?getenv|setlocale|f?puts|f?printf|v?f?printf|__printf_chk|__fprintf_chk|fwrite|fputc|putchar|write'
forbidden+='|pthread_create|thrd_create|abort|exit|_exit|__cxa_throw)$'
forbidden+='|^std::(cout|cerr|clog|thread::|basic_[io]?fstream|filesystem)'
forbidden+='|^(QFile|QIODevice|QSaveFile|QDir|QSettings|QProcess|QThread|QTimer|QStandardPaths|QDebug|QMessageLogger)::'
forbidden+='|^(qgetenv|qEnvironmentVariable|qDebug|qWarning|qCritical|qFatal)'

result=0
for library in "$@"; do
    references=$("$nm" --dynamic --undefined-only --format=posix --demangle "$library" | sed 's/ U .*//; s/ w .*//; s/@.*//')
    [ -n "$references" ] || { echo "$library: no references found; is it a shared library?" >&2; exit 2; }
    if found=$(grep -E "$forbidden" <<<"$references"); then
        echo "$library refers to:" >&2
        echo "$found" >&2
        result=1
    fi
done
exit "$result"
