#!/usr/bin/env bash
# usage: windows.sh ROOM   (with build/windows and build/windows-static built; ROOM is a folder for what is made)
# The ways of docs/install.md for 64-bit Windows; the programs run under Wine.
set -euo pipefail

gkcntr=$(realpath "$(dirname "$0")/../..")
mkdir -p "$1"
room=$(realpath "$1")
. "$gkcntr/tests/install/consumer.sh"

compiler=x86_64-w64-mingw32-g++-posix
run=$gkcntr/cmake/windows/run.sh
runtime="Z:$(dirname "$($compiler -print-file-name=libstdc++-6.dll)");Z:$(dirname "$($compiler -print-file-name=libwinpthread-1.dll)")"
run() { # program, folder of gkcntr.dll or nothing
    WINEPATH="$runtime${2:+;Z:$2}" "$run" "$1" >>"$room/log" 2>&1 || failed "$1"
}
# Not through a pipe: grep is content with the first match, and objdump, still writing, would fail.
needs_dll() { grep -q 'DLL Name: gkcntr.dll' < <(x86_64-w64-mingw32-objdump -p "$1"); }

# One server for all programs, until this script ends.
export GK_WINE_PREFIX=${GK_WINE_PREFIX:-$gkcntr/build/wine}
mkdir -p "$GK_WINE_PREFIX"
WINEPREFIX=$GK_WINE_PREFIX wineserver -p60
trap 'WINEPREFIX=$GK_WINE_PREFIX wineserver -k || true' EXIT

echo "-- the DLL"
export prefix=$room/windows_made
rm -rf "$prefix" "$room/windows_moved"
lines "install for Windows"
"$gkcntr/tests/install/installed.sh" "$prefix" release bin/gkcntr.dll lib/libgkcntr.dll.a \
    lib/libgkcntr_interop.a lib/pkgconfig/gkcntr{,_interop}.pc
mv "$prefix" "$room/windows_moved"
export prefix=$room/windows_moved

project windows CMakeLists.txt
lines "find for Windows"
run build/measure.exe "$prefix/bin"
printed "find_package, installed and moved"
needs_dll build/measure.exe || failed "build/measure.exe does not need gkcntr.dll"
project windows_pc CMakeLists.txt
lines "pkg-config for Windows"
run measure.exe "$prefix/bin"
printed "pkg-config"
needs_dll measure.exe || failed "measure.exe does not need gkcntr.dll"

in_build() { # preset: a program that uses the folder of a build
    cmake -S . -B build -DCMAKE_TOOLCHAIN_FILE="$gkcntr/cmake/windows/mingw64.cmake" \
        -Dgkcntr_DIR="$gkcntr/build/$1" >"$room/log" 2>&1 && cmake --build build >>"$room/log" 2>&1 || failed "$1"
    run build/measure.exe "$gkcntr/build/$1/bin"
    printed "find_package, in the folder of the build"
}
project windows_build CMakeLists.txt
in_build windows

echo "-- the static library"
export prefix=$room/windows_static_made
rm -rf "$prefix"
cmake --install "$gkcntr/build/windows-static" --prefix "$prefix" >"$room/log"
"$gkcntr/tests/install/installed.sh" "$prefix" release lib/libgkcntr{,_interop}.a \
    lib/pkgconfig/gkcntr{,_interop}.pc
project windows_static CMakeLists.txt
lines "find for Windows"
run build/measure.exe
printed "find_package, installed"
if needs_dll build/measure.exe; then failed "the static library needs the DLL"; fi
project windows_static_pc CMakeLists.txt
lines "pkg-config for Windows"
run measure.exe
printed "pkg-config"
project windows_static_build CMakeLists.txt
in_build windows-static

project windows_whole "CMakeLists.txt of the whole"
ln -s "$gkcntr" gkcntr
{ cmake -S . -B build -DCMAKE_TOOLCHAIN_FILE="$gkcntr/cmake/windows/mingw64.cmake" && cmake --build build; } \
    >"$room/log" 2>&1 || failed "a part of a project"
run build/measure.exe
printed "add_subdirectory"
