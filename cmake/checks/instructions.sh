#!/usr/bin/env bash
# usage: instructions.sh PROGRAM COUNTS [--renew]
# Each fixed work of tests/instructions takes as many instructions as the file COUNTS keeps, give or take 3 %; --renew
# writes that file. Less is a gain, which is worth keeping: renew as well. Counts belong to a compiler; with another one
# nothing can be compared.
set -euo pipefail
export LC_ALL=C
program=$1
kept=$2
margin=3 # per cent; counts repeat to the last instruction but for what the C library does otherwise on another machine

compiler=$("$program" --compiler)
if [ "${3:-}" != --renew ] && ! grep -qxF "compiler: $compiler" "$kept"; then
    echo "the counts are of another $(grep '^compiler:' "$kept"); this is $compiler, so nothing can be compared"
    exit 0
fi

count() { # program, workload: "workload: instructions"
    local said
    said=$(valgrind --tool=callgrind --callgrind-out-file=/dev/null --collect-atstart=no --toggle-collect=gk_measured \
        "$1" "$2" 2>&1) || { echo "$said" >&2; return 1; }
    echo "$2: $(sed -n 's/^==[0-9]*== Collected : \([0-9]*\)$/\1/p' <<<"$said")"
}
export -f count

counted=$("$program" --list | xargs -d '\n' -P "$(nproc)" -I{} bash -c 'count "$@"' count "$program" {} | sort)

if [ "${3:-}" = --renew ]; then
    printf 'compiler: %s\n%s\n' "$compiler" "$counted" >"$kept"
    echo "$(wc -l <<<"$counted") counts are kept"
    exit
fi
awk -F ': ' -v margin=$margin '
    $1 == "compiler" { next }
    NR == FNR { kept[$1] = $2; next }
    !($1 in kept) { printf "%-36s %12.0f, and no count is kept\n", $1, $2; bad = 1; next }
    {
        change = 100 * ($2 - kept[$1]) / kept[$1]
        far = change > margin || change < -margin
        printf "%-36s %12.0f %+7.2f %%%s\n", $1, $2, change, far ? (change > 0 ? "  MORE" : "  LESS") : ""
        if (far) bad = 1
        delete kept[$1]
    }
    END {
        for (name in kept) { printf "%-36s is kept and no workload\n", name; bad = 1 }
        if (bad) print "^ not the kept counts; ./dev renew instructions takes them over, when the reason is known"
        exit bad
    }' "$kept" - <<<"$counted"
