#!/usr/bin/env bash
# Uses the library as programs outside its tree do: installed and moved, found by CMake and by pkg-config, added as a
# subfolder, shared and static, with GCC and Clang, as C++17, C++20 and C++23, over a utility library of the program's
# own, and from its Debian packages, whose examples print what the documentation says.
#
# usage: test.sh SOURCE WORK     SOURCE is the top folder; WORK is emptied and used
set -euo pipefail

source=$(realpath "$1")
work=$(realpath -m "$2")
rm -rf "$work"
mkdir -p "$work"

version=$(sed -nE 's/^ *VERSION ([0-9.]+)$/\1/p' "$source/CMakeLists.txt")
warnings="-Wall -Wextra -Wpedantic -Wconversion -Werror"
definitions="-DQT_NO_KEYWORDS -DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII"
mapfile -t headers < <(cd "$source/include" && find . -name "*.h" | sed "s:^\./::" | sort)
headers+=(vorn/onvif/version.h vorn/util/version.h) # generated
header_list=$(IFS=';' && echo "${headers[*]}")

# quietly COMMAND...: shows the output only if the command fails
quietly() {
    local log=$work/log
    if ! "$@" >"$log" 2>&1; then
        cat "$log" >&2
        echo "package test: failed: $*" >&2
        return 1
    fi
}

# check NAME COMMAND...: COMMAND runs the consumer, which has to find everything good
check() {
    local name=$1
    shift
    quietly "$@" "$source/samples"
    grep -q ': good$' "$work/log"
    echo "  $name: good"
}

# consume NAME CMAKE-OPTION...: builds the consumer with CMake, in the folder that $build names afterwards, and runs it
consume() {
    local name=$1
    shift
    build=$work/build-${name//[^A-Za-z0-9+]/-}
    quietly cmake -S "$source/tests/package/consumer" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug "$@"
    quietly cmake --build "$build"
    check "$name" "$build/consumer"
}

# inspect PROGRAM: PROGRAM has to show each sample as it is expected
inspect() {
    local program=$1 sample code count=0
    for sample in "$source"/samples/*/*.xml; do
        code=0
        "$program" "$sample" >"$work/shown" || code=$?
        echo "exit code $code" >>"$work/shown"
        cmp "$work/shown" "$sample.expected" || { echo "package test: $sample is shown otherwise" >&2; return 1; }
        count=$((count + 1))
    done
    [ "$count" -gt 0 ]
    echo "  its onvif-inspect: $count samples shown as expected"
}

# refuse NAME SENTENCE COMMAND...: COMMAND has to fail and to say SENTENCE
refuse() {
    local name=$1 sentence=$2
    shift 2
    if "$@" >"$work/log" 2>&1; then
        echo "package test: should have failed: $*" >&2
        return 1
    fi
    tr -s ' \n' '  ' <"$work/log" | grep -qF "$sentence" || { cat "$work/log" >&2; echo "package test: \"$sentence\" was not said" >&2; return 1; }
    echo "  $name: refused with a sentence"
}

strict=("-DCMAKE_CXX_FLAGS=$warnings $definitions")

for kind in shared static; do
    echo "Installing the $kind libraries"
    quietly cmake -S "$source" -B "$work/$kind" -G Ninja -DCMAKE_BUILD_TYPE=Release -DVORNSDK_ONVIF_BUILD_TESTS=OFF \
        -DBUILD_SHARED_LIBS="$([ $kind = shared ] && echo ON || echo OFF)"
    quietly cmake --build "$work/$kind"
    quietly cmake --install "$work/$kind" --prefix "$work/first-$kind"
    # What is installed must not know where it was.
    mv "$work/first-$kind" "$work/moved-$kind"
    ! grep -rlF -e "$source" -e "$work" "$work/moved-$kind" || { echo "package test: the above name a folder of the build" >&2; exit 1; }
    quietly "$work/moved-$kind/bin/onvif-inspect" "$source/samples/short-prefixes/GetDeviceInformation.xml"

    options=("${strict[@]}")
    if [ $kind = shared ]; then
        options+=("-DPUBLIC_HEADERS=$header_list")
    else
        diff -r "$work/moved-shared/include" "$work/moved-static/include" # so that each header is tried by the above
    fi
    for standard in 17 20 23; do
        for compiler in g++ clang++; do
            consume "$kind, find_package, C++$standard, $compiler" -DCMAKE_PREFIX_PATH="$work/moved-$kind" "${options[@]}" \
                -DCMAKE_CXX_STANDARD=$standard -DCMAKE_CXX_COMPILER=$compiler
        done
    done

    pkg_config_path=$(dirname "$(find "$work/moved-$kind" -name vornsdk-onvif.pc)")
    flags=$(PKG_CONFIG_PATH=$pkg_config_path pkg-config --cflags --libs vornsdk-onvif)
    # shellcheck disable=SC2086 # the flags are words
    quietly g++ -std=c++17 -fPIC $definitions -o "$work/with-pkg-config" "$source/tests/package/consumer/main.cpp" $flags
    check "$kind, pkg-config" env LD_LIBRARY_PATH="$(dirname "$pkg_config_path")" "$work/with-pkg-config"

    consume "$kind, add_subdirectory" -DLIBRARY_SOURCE="$source" \
        -DBUILD_SHARED_LIBS="$([ $kind = shared ] && echo ON || echo OFF)"
done
for variant in "shared views" "shared nodes" "static nodes"; do
    read -r kind offers <<<"$variant"
    consume "$kind, add_subdirectory, own VornSDK::Util with $offers" -DLIBRARY_SOURCE="$source" -DOWN_UTIL="$offers" \
        -DVORNSDK_ONVIF_BUILD_TOOLS=ON -DBUILD_SHARED_LIBS="$([ "$kind" = shared ] && echo ON || echo OFF)"
    inspect "$build/vornsdk-onvif/bin/onvif-inspect"
done

echo "Asking for what is not there"
refuse "a version to come" "version: $version" \
    cmake -S "$source/tests/package/asking" -B "$work/asking" -G Ninja -DCMAKE_PREFIX_PATH="$work/moved-shared" -DVERSION=2.0
mkdir -p "$work/old/lib/cmake/Qt6"
echo 'set(PACKAGE_VERSION 6.2.0)' >"$work/old/lib/cmake/Qt6/Qt6ConfigVersion.cmake"
echo 'set(Qt6_FOUND TRUE)' >"$work/old/lib/cmake/Qt6/Qt6Config.cmake"
refuse "an old Qt" "Qt 6.4 or later with its modules Core and Xml was not found: install it" \
    cmake -S "$source" -B "$work/old-qt" -G Ninja -DCMAKE_PREFIX_PATH="$work/old" \
    -DCMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF -DCMAKE_FIND_USE_SYSTEM_ENVIRONMENT_PATH=OFF \
    -DCMAKE_MAKE_PROGRAM="$(command -v ninja)" -DCMAKE_CXX_COMPILER="$(command -v g++)"
refuse "no GoogleTest" "GoogleTest was not found: install it (on Debian libgtest-dev)" \
    cmake -S "$source" -B "$work/no-gtest" -G Ninja -DCMAKE_DISABLE_FIND_PACKAGE_GTest=ON
refuse "no Qt" "Qt 6.4 or later with its modules Core and Xml was not found: install it" \
    cmake -S "$source" -B "$work/no-qt" -G Ninja -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON
refuse "no pugixml" "pugixml 1.11 or later was not found: install it" \
    cmake -S "$source" -B "$work/no-pugixml" -G Ninja -DCMAKE_DISABLE_FIND_PACKAGE_pugixml=ON
mkdir "$work/in-source"
cp -r "$source/CMakeLists.txt" "$source/cmake" "$work/in-source"
refuse "a build in the source folder" "Build in a folder of its own" cmake -S "$work/in-source" -B "$work/in-source"

echo "Making the Debian packages"
quietly cmake --preset package -S "$source" -B "$work/debian"
quietly cmake --build "$work/debian"
(cd "$work/debian" && quietly cpack)
packages=("$work"/debian/*.deb)
names=$(for package in "${packages[@]}"; do dpkg-deb --field "$package" Package; done)
[ "$names" = $'libvornsdk-onvif-dev\nlibvornsdk-onvif-doc\nlibvornsdk-onvif1\nvornsdk-onvif-tools' ] || { echo "package test: wrong packages: $names" >&2; exit 1; }
quietly lintian --fail-on error "${packages[@]}"
for package in "${packages[@]}"; do
    dpkg-deb --extract "$package" "$work/root"
    echo "  $(basename "$package")"
done
libraries=$(dirname "$(find "$work/root" -name libvornsdk-onvif.so)")
diff -r "$work/moved-shared/include" "$work/root/usr/include"
consume "Debian packages" -DCMAKE_PREFIX_PATH="$work/root/usr" "${strict[@]}"
quietly env LD_LIBRARY_PATH="$libraries" "$work/root/usr/bin/onvif-inspect" \
    "$source/samples/short-prefixes/GetDeviceInformation.xml"
documentation=$work/root/usr/share/doc/libvornsdk-onvif-doc
quietly cmake -S "$documentation/examples" -B "$work/examples" -G Ninja -DCMAKE_PREFIX_PATH="$work/root/usr"
quietly cmake --build "$work/examples"
quietly env LD_LIBRARY_PATH="$libraries" ctest --test-dir "$work/examples" --no-tests=error
echo "  their examples: $(grep 'tests passed' "$work/log")"
for program in camera-report simulated-device; do
    quietly env LD_LIBRARY_PATH="$libraries" "$work/examples/bin/$program" --help
done
if command -v doxygen >/dev/null; then
    [ -e "$documentation/html/index.html" ]
    grep -rqF WrongCamera "$documentation/html" # which the page of traps shows
    ! grep -rlF -e "$source" -e "$work" "$documentation" || { echo "package test: the above name a folder of the build" >&2; exit 1; }
    echo "  their HTML: $(find "$documentation/html" -name '*.html' | wc -l) pages"
else
    echo "  their HTML: skipped, as doxygen is missing: scripts/setup docs"
fi
echo "All package tests passed"
