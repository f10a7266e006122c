#!/usr/bin/env bash
# docs/operations.md is true: every exported name of contours, regions, sets, edgelet shapes, moments and errors has a
# row, so has every public header of the platform, and every row names an operation and tests that are there.
set -euo pipefail
export LC_ALL=C
cd "$(dirname "$0")/../.."

# Sorted lines of the first list that are not in the second.
without() { comm -23 <(sort -u <<<"$1") <(sort -u <<<"$2") | sed '/^$/d'; }

bad=0
refuse() { # lines, what they are
    [ -z "$1" ] || { printf '%s\n^ %s\n' "$1" "$2"; bad=1; }
}

# Names as a reader writes them: the linker's demangler spells out allocators and puts const behind.
exported=$(grep -E '^(gkContour|gkRegion|gk_InertiaData|gnContour|gf_)' tests/interface/exported_symbols.txt | sed -E '
    s/std::__cxx11::basic_string<wchar_t, std::char_traits<wchar_t>, std::allocator<wchar_t> >/std::wstring/g
    s/, std::allocator<[^,()]*> >/>/g
    s/> >/>>/g; s/> >/>>/g
    s/([A-Za-z_:0-9<>]+) const&/const \1\&/g')

# A row is | `operation` | tests |, its class the heading above it in back quotes.
cells=$(awk -F'`' '/^## / { class = NF > 1 ? $2 "::" : "" } /^\| `/ { print ($2 ~ /\.h$/ ? "" : class) $2 }' docs/operations.md)
operations=$(grep -v '\.h$' <<<"$cells")
refuse "$(without "$exported" "$operations")" 'exported, but without a row in docs/operations.md'
refuse "$(sort <<<"$cells" | uniq -d)" 'more than one row in docs/operations.md'

# What a row names and the library does not export is inline: its header tells it.
while read -r inline; do
    name=${inline%%(*}
    name=${name##*::}
    grep -qF -- "$name(" cntr/*.h ch_core/*.h || refuse "$inline" 'a row of docs/operations.md, but no operation'
done < <(without "$operations" "$exported")

public=$(comm -23 <(find platform/*/ interop/ -name '*.h' | sort) <(sort cmake/inner_headers.txt))
headers=$(grep '\.h$' <<<"$cells")
refuse "$(without "$public" "$headers")" 'public, but without a row in docs/operations.md'
refuse "$(without "$headers" "$public")" 'a row of docs/operations.md, but no public header'

named=$(sed -nE 's/^\| `.*` \| (.*) \|$/\1/p' docs/operations.md | sed 's/, /\n/g')
there=$(grep -rhE '^(TYPED_)?TEST(_F|_P)?\(' tests --include='*.cpp' | sed -E 's/^[A-Z_]*\((\w+), *(\w+).*/\1.\2/')
refuse "$(without "$named" "$there")" 'named in docs/operations.md, but no test'
refuse "$(grep -E '^\| `' docs/operations.md | grep -vE '^\| `[^`]+` \| [A-Za-z0-9]+\.[A-Za-z0-9]+(, [A-Za-z0-9]+\.[A-Za-z0-9]+)* \|$' || true)" \
    'a row without a test'

[ $bad = 0 ] && echo "$(wc -l <<<"$operations") operations and $(wc -l <<<"$headers") headers, each with a test"
exit $bad
