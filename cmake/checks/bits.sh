#!/usr/bin/env bash
# usage: bits.sh FOLDER [JOBS [VARIANT...]]
# Every operation gives the kept bits (tests/bits) in every variant of this table, or in the named ones. Builds below
# FOLDER.
set -euo pipefail

folder=$1
jobs=${2:-$(nproc)}
wanted=" ${*:3} "
cd "$(dirname "$0")/../.."

# name | compiler | options for everything | options for the program alone, which stands for a user's | fused
# The last column: what the program says of its own expressions, so that a variant that is meant to fuse does.
# Clang fuses within an expression unless told otherwise, GCC by -ffp-contract=fast; both where the processor can.
variants=(
    "gcc-O0      |g++    |-O0              |                                  |"
    "gcc-O2      |g++    |-O2              |                                  |"
    "gcc-O3      |g++    |-O3              |                                  |"
    "gcc-native  |g++    |-O3 -march=native|-ffp-contract=fast                |fused"
    "clang-O2    |clang++|-O2              |                                  |"
    "clang-user  |clang++|-O2              |-ffp-contract=fast -march=native  |fused"
    "clang-native|clang++|-O2 -march=native|                                  |fused"
)

can_fuse=no
grep -qsw fma /proc/cpuinfo && can_fuse=yes

# Each share of the shapes by a process of its own.
run_shares() { # program log
    local share failed=0
    local -a shares=()
    for ((share = 0; share < jobs; share++)); do
        "$1" --part "$share/$jobs" >"$2.$share" 2>&1 &
        shares+=($!)
    done
    for share in "${shares[@]}"; do
        wait "$share" || failed=1
    done
    cat "$2".*
    return $failed
}

run_variant() { # name compiler options program_options fused
    local build=$folder/$1 log=$folder/$1/bits.log status=0
    cmake -S . -B "$build" -G Ninja -DCMAKE_CXX_COMPILER="$2" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_CXX_FLAGS_RELEASE="$3" -DGKCNTR_BITS_FLAGS="$4" -DGKCNTR_EXAMPLES=OFF \
        -DGKCNTR_CAIRO=OFF >"$build.log" 2>&1 &&
        cmake --build "$build" --parallel "$jobs" --target bits >>"$build.log" 2>&1 || {
        cat "$build.log"
        return 1
    }
    rm -f "$log".*
    run_shares "$build/tests/bits/bits" "$log" | sort -u || status=1
    if [ "$5" = fused ] && [ $can_fuse = yes ] && ! grep -q 'are fused' "$log".*; then
        echo "this variant is meant to fuse a product and a sum, and does not"
        status=1
    fi
    return $status
}

trimmed() { sed 's/^ *//; s/ *$//' <<<"$1"; }

mkdir -p "$folder"
failed=0
for variant in "${variants[@]}"; do
    IFS='|' read -r name compiler options program_options fused <<<"$variant"
    name=$(trimmed "$name")
    [[ $wanted = *[^\ ]* && $wanted != *" $name "* ]] && continue
    printf '%-13s' "$name"
    if said=$(run_variant "$name" "$(trimmed "$compiler")" "$(trimmed "$options")" "$(trimmed "$program_options")" \
        "$(trimmed "$fused")"); then
        echo "the kept bits"
    else
        printf 'DIFFERS\n%s\n' "$said"
        failed=1
    fi
done
exit $failed
