#!/usr/bin/env bash
# usage: header_cost.sh [--renew]
# What gkcntr.h costs whoever includes it. No macro comes along but the marks of exported names and the guards against
# double inclusion. The preprocessed lines are those that cmake/header_lines.txt keeps, give or take 3 %; --renew writes
# that file. Lines belong to a standard library; with another compiler nothing can be compared. The time of an empty
# program that includes it is shown, not judged. gkcntr_fwd.h, which is there to cost nothing, includes nothing.
set -euo pipefail
export LC_ALL=C
cd "$(dirname "$0")/../.."
kept=cmake/header_lines.txt
margin=3 # per cent: another patch of the standard library is no news, another of its headers is
compiler="GNU $(g++ -dumpfullversion) $(g++ -dumpmachine)"

including() { # headers...
    printf '#include %s\n' "$@"
}
macros() { # reads the source
    g++ -std=c++17 -I. -x c++ -E -dM - | sed -E 's/^#define ([A-Za-z0-9_]+).*/\1/' | sort -u
}

bad=0
# Whatever the standard headers define is theirs.
mapfile -t standard < <(cat $(find platform cntr ch_core -name '*.h') | sed -n 's/^ *# *include *\(<[a-z_]*>\).*/\1/p' | sort -u)
leaked=$(comm -23 <(including '"gkcntr.h"' '"gkcntr_fwd.h"' | macros) <(including "${standard[@]}" | macros) |
    grep -vxE 'GKCNTR_(TEMPLATE_)?(API|EXPORT)|GK_[A-Z0-9_]+_H' || true)
if [ -n "$leaked" ]; then
    printf '%s\n^ macros that a program gets by including gkcntr.h\n' "$leaked"
    bad=1
fi

if grep -n '^ *# *include' gkcntr_fwd.h; then
    echo '^ gkcntr_fwd.h includes something'
    bad=1
fi

lines=$(including '"gkcntr.h"' | g++ -std=c++17 -I. -x c++ -E -P - | wc -l)
if [ "${1:-}" = --renew ]; then
    printf 'compiler: %s\nlines: %s\n' "$compiler" "$lines" >"$kept"
elif ! grep -qxF "compiler: $compiler" "$kept"; then
    echo "the lines are of another $(grep '^compiler:' "$kept"); this is $compiler, so nothing can be compared"
else
    before=$(sed -n 's/^lines: //p' "$kept")
    if [ $((lines * 100)) -gt $((before * (100 + margin))) ] || [ $((lines * 100)) -lt $((before * (100 - margin))) ]; then
        echo "gkcntr.h has $lines preprocessed lines, and $before are kept;"
        echo "^ ./dev renew headers takes the new number over, when the reason is known"
        bad=1
    fi
fi

object=$(mktemp)
trap 'rm -f "$object"' EXIT
best=
for _ in 1 2 3 4 5; do
    from=$(date +%s%N)
    including '"gkcntr.h"' | g++ -std=c++17 -O0 -I. -x c++ -c -o "$object" -
    took=$((($(date +%s%N) - from) / 1000000))
    [ -n "$best" ] && [ "$best" -le "$took" ] || best=$took
done
echo "gkcntr.h: $lines preprocessed lines, compiled alone in $best ms, best of 5"
exit $bad
