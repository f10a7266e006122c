#!/usr/bin/env bash
# Every public header compiles for Windows, alone and in the company of <windows.h>: behind it with whatever it defines,
# before it, with wide characters, without the compiler's extensions, and behind every macro that some version of it is
# known to define. The standard headers come before those macros, for some of them do not survive min and max.
set -euo pipefail
cd "$(dirname "$0")/../.."

compiler=x86_64-w64-mingw32-g++-posix
standard=$(cat $(find platform cntr ch_core interop -name '*.h') | sed -n 's/^ *# *include *\(<[a-z_]*>\).*/#include \1/p' | sort -u)

macros() {
    local name
    echo '#define min(a, b) (((a) < (b)) ? (a) : (b))'
    echo '#define max(a, b) (((a) > (b)) ? (a) : (b))'
    echo '#define RGB(r, g, b) gone'
    for name in near far NEAR FAR IN OUT OPTIONAL ERROR NO_ERROR small hyper interface cdecl pascal DELETE CONST VOID \
        STRICT TRUE FALSE ABSOLUTE RELATIVE DIFFERENCE TRANSPARENT OPAQUE ALTERNATE WINDING DOMAIN OVERFLOW SING \
        GetObject GetMessage SendMessage CreateFile DrawText LoadImage CreateFont Yield; do
        echo "#undef $name"
        echo "#define $name"
    done
}

prefix=$(mktemp -d) # what comes before the header, compiled once
trap 'rm -r "$prefix"' EXIT
flags="-std=c++17 -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -I."
prepare() { # how, flags...: reads the lines that come before
    cat >"$prefix/$1.h"
    $compiler $flags "${@:2}" -x c++-header "$prefix/$1.h" -o "$prefix/$1.h.gch"
}

compile() { # how, header, flags...
    local how=$1 header=$2
    echo "#include \"$header\"" |
        $compiler $flags "${@:3}" -Winvalid-pch -include "$prefix/$how.h" -fsyntax-only -x c++ - ||
        echo "$header: does not compile for Windows ($how)"
}
mapfile -t public < <(
    find . -name '*.h' -printf '%P\n' | grep -E '^(gkcntr(_fwd)?\.h$|platform/|cntr/|ch_core/|interop/)' |
        grep -v -e '^platform/display/cairo/' -e '^interop/opencv\.h' | sort | comm -23 - <(cmake/checks/headers.sh --inner)
)
export compiler flags prefix
export -f compile

echo '#include <windows.h>' | prepare behind
echo '#include <windows.h>' | prepare unicode -DUNICODE -D_UNICODE
echo '#include <windows.h>' | prepare strict -fno-ms-extensions
printf '%s\n' "$standard" "$(macros)" | prepare macros
printf '%s\n' '#include "gkcntr.h"' '#include <windows.h>' | prepare before # compiles in itself

problems=$prefix/problems
{
    compile unicode gkcntr.h -DUNICODE -D_UNICODE
    compile strict gkcntr.h -fno-ms-extensions
    compile behind gkcntr.h -DGKCNTR_STATIC
    printf '%s\n' "${public[@]}" | xargs -P "$(nproc)" -I{} bash -c 'compile behind {}; compile macros {}'
} | tee "$problems"

[ ! -s "$problems" ] || exit 1
echo "${#public[@]} public headers compile beside <windows.h>"
