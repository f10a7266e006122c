#!/usr/bin/env bash
# usage: windows.sh RELEASE WINDOWS WINDOWS-STATIC   (three build folders, all built)
# What was built for Windows runs under Wine and gives what the same sources give on Linux: as many tests passed, the
# interface in the DLL's export table, and the same lines from the programs that print results.
set -euo pipefail

linux=$(realpath "$1") windows=$(realpath "$2") static=$(realpath "$3")
here=$(cd "$(dirname "$0")" && pwd)
run=$here/../windows/run.sh
export GK_WINE_PREFIX=${GK_WINE_PREFIX:-$(realpath -m "$here/../../build/wine")} # as run.sh has it
objdump=x86_64-w64-mingw32-objdump

echo "-- the DLL"
"$here/dll_exports.sh" "$windows/bin/gkcntr.dll" "$linux/libgkcntr.so"
needed=$($objdump -p "$windows/bin/gkcntr.dll" | sed -n 's/.*DLL Name: //p' | sort | paste -sd ' ')
echo "needs $needed"
[ "$needed" = "KERNEL32.dll libgcc_s_seh-1.dll libstdc++-6.dll msvcrt.dll" ]
needed=$($objdump -p "$static/bin/border_test.exe" | sed -n 's/.*DLL Name: //p' | sort | paste -sd ' ')
echo "a program with the static library needs $needed"
[ "$needed" = "KERNEL32.dll msvcrt.dll" ]

# One server for all programs; each would start its own. It ends with this script, or a minute after the last of them.
mkdir -p "$GK_WINE_PREFIX"
WINEPREFIX=$GK_WINE_PREFIX wineserver -p60
trap 'WINEPREFIX=$GK_WINE_PREFIX wineserver -k || true' EXIT
GK_WINE_SECONDS=180 "$run" wineboot --init >/dev/null 2>&1 || { echo "Wine does not start"; exit 1; }

counts=$windows/counts
rm -rf "$counts"
mkdir -p "$counts"
run_tests() { # build folder, ctest arguments...; the closing lines, and on failure what failed
    ctest --test-dir "$1" --parallel "$(nproc)" --timeout 600 --output-on-failure --no-tests=error "${@:2}" >"$counts/log" ||
        { cat "$counts/log"; return 1; }
    sed -n '/ tests passed, /p' "$counts/log"
}
echo "-- with the DLL"
GTEST_OUTPUT="xml:Z:${counts//\//\\}\\" run_tests "$windows"
echo "-- with the static library"
run_tests "$static" -R '^(border_test|Border\.|Example\.|examples\.)'

echo "-- counts"
if ctest --test-dir "$linux" -N | grep _NOT_BUILT; then exit 1; fi
asked=$(ctest --test-dir "$linux" -N -LE linux_only | sed -n 's/^Total Tests: //p')
in_programs=$(sed -n 's/^<testsuites tests="\([0-9]*\)" failures="0" disabled="0" errors="0".*/\1/p' "$counts"/*.xml |
    awk '{ sum += $1 } END { print sum + 0 }')
others=$(ctest --test-dir "$windows" -N -LE googletest | sed -n 's/^Total Tests: //p')
echo "Linux has $asked tests that need no library of Linux, under Wine $((in_programs + others)) passed"
ctest --test-dir "$linux" -N -V -L linux_only | sed -n 's/^.*Test command: \([^ ]*\).*/\1/p' | xargs -r -n 1 basename |
    sort | uniq -c | while read -r count program; do
    case $program in
        differential_test) why="compares with GEOS and OpenCV" ;;
        examples_accuracy_test) why="makes and blurs its pictures with OpenCV" ;;
        exports.sh) why="reads the names of an ELF library; windows.sh reads the DLL's" ;;
        examples_demo_test) why="runs the demo, which needs OpenCV" ;;
        fuzz_replay_demo_options) why="reads the command line of the demo, which needs OpenCV" ;;
        gdb) why="shows shapes of a program for Linux in its debugger" ;;
        hostile_test) why="counts memory by an operator new of its own, which a DLL would not use" ;;
        interop_opencv_test) why="works with OpenCV" ;;
        memory_cairo_test) why="draws with Cairo, and lets requests for memory fail by an operator new of its own" ;;
        memory_test) why="lets requests for memory fail by an operator new of its own, which a DLL would not use" ;;
        python*) why="changes sources to see whether tests notice, and needs no library" ;;
        platform_cairo_test) why="draws with Cairo" ;;
        platform_trig_accuracy) why="compares with MPFR" ;;
        *) echo "$program: has the label linux_only and no reason here" && exit 1 ;;
    esac
    echo "on Linux only: $program, $count tests, $why"
done
[ "$asked" = $((in_programs + others)) ]

# Results told as hashes, where the tests have such a program.
if [ -f "$windows/bin/bits.exe" ]; then
    echo "-- bits"
    "$run" "$windows/bin/bits.exe" | tr -d '\r' >"$counts/bits.windows"
    "$(find "$linux/tests" -type f -name bits -executable)" >"$counts/bits.linux"
    cmp "$counts/bits.windows" "$counts/bits.linux"
    echo "the same on both: $(cat "$counts/bits.linux")"
fi
