#!/usr/bin/env bash
# Every public header compiles by itself with both compilers, and brings in nothing but the standard library and
# other public headers. With --inner: lists the inner headers instead.
set -euo pipefail
cd "$(dirname "$0")/../.."

inner=$(grep -v '^#' cmake/inner_headers.txt | sort)
if [ "${1:-}" = --inner ]; then
    echo "$inner"
    exit
fi

problems=$(mktemp)
trap 'rm -f "$problems"' EXIT
complain() { echo "$*" | tee -a "$problems"; }

for header in $inner; do
    [ -f "$header" ] || complain "cmake/inner_headers.txt: $header does not exist"
done

# The bridge to OpenCV needs its headers; tests/interop compiles it alone where they are.
mapfile -t public < <(
    find . -name '*.h' -printf '%P\n' | grep -E '^(gkcntr(_fwd)?\.h$|platform/|cntr/|ch_core/|interop/)' |
        grep -vxF interop/opencv.h | sort | comm -23 - <(echo "$inner")
)

for header in "${public[@]}"; do
    while read -r included; do
        grep -qxF "$included" < <(printf '%s\n' "${public[@]}") ||
            complain "$header: includes \"$included\", which is not a public header"
    done < <(sed -n 's/^ *# *include *"\([^"]*\)".*/\1/p' "$header")
    while read -r included; do
        complain "$header: includes <$included>, which is not of the standard library"
    done < <(sed -n 's/^ *# *include *<\([^>]*[./][^>]*\)>.*/\1/p' "$header")
done

# The umbrella header brings every other one; the Cairo surface and the text formats are libraries of their own, which a
# user may not have.
if [ -f gkcntr.h ]; then
    brought=$(g++ -std=c++17 -I. -MM gkcntr.h | tr -s ' \\' '\n' | sort -u)
    for header in "${public[@]}"; do
        [[ $header = platform/display/cairo/* || $header = interop/* || $header = gkcntr_fwd.h ]] ||
            grep -qxF "$header" <<<"$brought" || complain "gkcntr.h: does not bring $header"
    done
fi

compile_alone() { # compiler, header
    echo "#include \"$2\"" |
        "$1" -std=c++17 -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -I. -fsyntax-only -x c++ - ||
        echo "$2: does not compile alone with $1"
}
export -f compile_alone
for compiler in g++ clang++; do
    printf '%s\n' "${public[@]}" | xargs -P "$(nproc)" -I{} bash -c "compile_alone $compiler {}" | tee -a "$problems"
done

[ ! -s "$problems" ] || exit 1
echo "${#public[@]} public headers stand alone"
