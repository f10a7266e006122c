#!/usr/bin/env bash
# usage: exports.sh LIBRARY [--renew]
# The library exports exactly the names that tests/interface/exported_symbols.txt lists; --renew writes that list.
#
# Left out is what differs between compilers and levels of optimisation without being anybody's choice:
#   - weak instances of inline functions and standard templates, which every library has that uses them. The members of
#     the edgelet forms are weak as well, but instantiated on purpose, so they stay;
#   - what a compiler makes of a class beside its table and its type information: construction tables, VTTs, thunks,
#     guards, the text of a type's name. They come and go with the class;
#   - the type information of functions, by which a sanitizer compares the calls through pointers;
#   - how often a constructor or destructor is there: its variants have one name.
set -euo pipefail
export LC_ALL=C
list=$(dirname "$0")/../../tests/interface/exported_symbols.txt

exported=$(nm --dynamic --defined-only "$1" | awk 'NF == 3 { print $2, $3 }' | c++filt | awk '
    {
        weak = $1 ~ /[VWu]/
        sub(/^. /, "")
        if (/^(construction vtable|VTT|typeinfo name|guard variable|(non-)?virtual thunk|covariant return thunk) |^typeinfo for .*\(/) next
        if (weak && !/^((vtable|typeinfo) for )?gk/) next
        if (weak && !/^(vtable|typeinfo) for / && !/^gk[A-Za-z]+T<gkEdgelet>::/) next
        print
    }' | sort -u)

# Names that begin with gk, gf, gn or gstd_, what the compiler makes of such a class, and operators on our types.
foreign=$(echo "$exported" |
    grep -vE '^((vtable|typeinfo) for )?(gk|gf|gn|gstd_)' |
    grep -vE '^operator[^(]*\(.*gk[A-Z0-9_]' || true)
if [ -n "$foreign" ]; then
    echo "$foreign"
    echo "^ exported by $1, but not of its interface"
    exit 1
fi

if [ "${2:-}" = --renew ]; then
    echo "$exported" >"$list"
elif ! diff -u --label "$(basename "$list")" --label "$1" "$list" <(echo "$exported"); then
    echo "^ the exported names are no longer those of the list (+ is new, - is gone); ./dev renew exports takes them over"
    exit 1
fi
echo "$(echo "$exported" | wc -l) exported names, all of the interface"
