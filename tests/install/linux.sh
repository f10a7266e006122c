#!/usr/bin/env bash
# usage: linux.sh ROOM   (with build/release built; ROOM is a folder for what is made)
# The ways of docs/install.md on Linux: the shared library out of build/release, the static one as a part of a project.
set -euo pipefail

gkcntr=$(realpath "$(dirname "$0")/../..")
mkdir -p "$1"
room=$(realpath "$1")
. "$gkcntr/tests/install/consumer.sh"

echo "-- shared"
export prefix=$room/made
rm -rf "$prefix" "$room/moved"
lines install
"$gkcntr/tests/install/installed.sh" "$prefix" release lib/libgkcntr.so{,.0,.0.1.0} lib/libgkcntr_{cairo,interop}.a \
    lib/pkgconfig/gkcntr{,_cairo,_interop}.pc
mv "$prefix" "$room/moved" # nothing in it depends on where it lies
export prefix=$room/moved
grep -q 'soname: \[libgkcntr.so.0\]' < <(readelf -d "$prefix/lib/libgkcntr.so") || failed "the SONAME"

project installed CMakeLists.txt
lines find
printed "find_package, installed and moved"
project not_installed CMakeLists.txt
lines "find in the build"
printed "find_package, in the folder of the build"
project pc CMakeLists.txt
lines pkg-config
printed "pkg-config"

pictures
texts

echo "-- static"
project whole "CMakeLists.txt of the whole"
ln -s "$gkcntr" gkcntr
lines "build the whole"
printed "add_subdirectory"
if grep -oE '[^ ]*(gtest|gmock|benchmark|_test\b)[^ ]*' build/build.ninja; then
    failed "a part of a project brings more than the library"
fi
# The same build, now with the rules of installation.
export prefix=$room/static_made
rm -rf "$prefix"
{ cmake -DGKCNTR_INSTALL=ON build && cmake --build build && cmake --install build --prefix "$prefix"; } >"$room/log" 2>&1 ||
    failed "installing as a part of a project"
"$gkcntr/tests/install/installed.sh" "$prefix" noconfig lib/libgkcntr.a lib/pkgconfig/gkcntr.pc
static_build=$PWD/build/gkcntr

project static CMakeLists.txt
lines find
printed "find_package, installed"
lines pkg-config
printed "pkg-config"
cmake -S . -B in_build -Dgkcntr_DIR="$static_build" >"$room/log" 2>&1 && cmake --build in_build >>"$room/log" 2>&1 &&
    in_build/measure >>"$room/log" || failed "find_package, in the folder of the build"
printed "find_package, in the folder of the build"

project lacking "CMakeLists.txt of the picture"
if cmake -S . -B build -DCMAKE_PREFIX_PATH="$prefix" >"$room/log" 2>&1; then failed "a component that is not there is found"; fi
grep -q 'gkcntr was built without the component cairo' "$room/log" || failed "no word about the component that is not there"
echo "a component that is not there is named"

project fetched "CMakeLists.txt of the whole"
block FetchContent >fetch.cmake
sed -i 's/^add_subdirectory(gkcntr)$/include(fetch.cmake)/' CMakeLists.txt
cmake -S . -B build >"$room/log" 2>&1 || failed FetchContent
grep -q measure: <(ninja -C build -t targets all) || failed "FetchContent: no target"
echo "FetchContent"
