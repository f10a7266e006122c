#!/usr/bin/env bash
# usage: dll_exports.sh LIBRARY.dll LIBRARY.so
# The DLL exports the interface that the shared library exports. Let off are: what is weak in the shared library, for its
# body is in a header and every program has its own; what is made for it alone (names of types, guards); and, in the DLL,
# type information and tables that the compiler adds for inner and standard classes.
set -euo pipefail
cd "$(dirname "$0")"

names=$(mktemp -d)
trap 'rm -r "$names"' EXIT
./dll_names.sh "$1" >"$names/dll"
nm --dynamic --defined-only "$2" | awk 'NF == 3 { print $2, $3 }' | c++filt >"$names/kinds"
cut -c3- "$names/kinds" | sort -u >"$names/all"
sed -n '/^[TDRBV] /s/^. //p' "$names/kinds" |
    { grep -v '^\(typeinfo name\|guard variable\|construction vtable\) for \|^\(vtable\|typeinfo\) for std::' || true; } |
    sort -u >"$names/wanted"

missing=$(comm -13 "$names/dll" "$names/wanted")
foreign=$(comm -23 "$names/dll" "$names/all" | { grep -v '^\(typeinfo\|construction vtable\) for ' || true; })
[ -z "$missing" ] || printf '%s\n^ not exported by %s\n' "$missing" "$1"
[ -z "$foreign" ] || printf '%s\n^ exported by %s, but not of the interface\n' "$foreign" "$1"
[ -z "$missing$foreign" ] || exit 1
echo "$(wc -l <"$names/dll") names exported by the DLL, all of the interface; $(wc -l <"$names/wanted") were asked for"
