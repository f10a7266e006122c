#!/usr/bin/env bash
# The marks of platform/export.h do for MSVC what they do for the compilers we build with: exported where the DLL is built,
# imported where it is used, neither for the static library. Clang takes MSVC's side and shows what it made of each.
set -euo pipefail
cd "$(dirname "$0")/../.."

source=$(mktemp)
trap 'rm -f "$source"' EXIT
cat >"$source" <<'TEXT'
#include "platform/export.h"

class GKCNTR_API Plain {
public:
    virtual ~Plain();
    static int datum;
    int plain() const;
};

template <class T> class Box {
public:
    T boxed() const;
};
extern template class GKCNTR_TEMPLATE_API Box<int>;

#if defined(GKCNTR_BUILDING)
Plain::~Plain() = default;
int Plain::datum = 1;
int Plain::plain() const { return datum; }
template <class T> T Box<T>::boxed() const { return T(); }
template class GKCNTR_TEMPLATE_EXPORT Box<int>;
#else
int use() { return Plain().plain() + Plain::datum + Box<int>().boxed(); }
#endif
TEXT

marked() { # storage class, macros...: how many of the names carry it
    clang++ --target=x86_64-pc-windows-msvc -std=c++17 -Wall -Wextra -Wpedantic -Werror -I. -S -emit-llvm -o - -x c++ \
        "${@:2}" "$source" | grep -E '^(define|declare|@)' | grep -E '\?(plain|datum|boxed)@' | grep -c " $1 " || true
}

failed=0
expect() { # count, storage class, macros...
    local found
    found=$(marked "${@:2}")
    [ "$found" = "$1" ] || { echo "${*:3}: $found of 3 names are $2, not $1"; failed=1; }
}
expect 3 dllexport -DGKCNTR_BUILDING
expect 0 dllimport -DGKCNTR_BUILDING
expect 3 dllimport -DUSING
expect 0 dllexport -DUSING
for how in -DGKCNTR_BUILDING -DUSING; do
    expect 0 dllexport $how -DGKCNTR_STATIC
    expect 0 dllimport $how -DGKCNTR_STATIC
done
[ $failed = 0 ] || exit 1
echo "classes, data and templates are exported and imported as MSVC wants it"
