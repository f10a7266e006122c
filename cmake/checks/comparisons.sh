#!/usr/bin/env bash
# usage: comparisons.sh PROGRAM LEAST [JOBS]
# Every operation gives the plain definition's answers, LEAST times at the least: JOBS processes, each with its share of
# the shapes, and one table of what all of them compared.
set -euo pipefail

program=$1
least=$2
jobs=${3:-$(nproc)}
tables=$(mktemp -d)
trap 'rm -r "$tables"' EXIT

shares=()
for ((share = 0; share < jobs; share++)); do
    "$program" --least "$least" --part "$share/$jobs" >"$tables/$share" 2>&1 &
    shares+=($!)
done
failed=0
for share in "${shares[@]}"; do
    wait "$share" || failed=1
done

printf '%-28s %11s %9s %9s\n' operation comparisons errors shapes
awk '
    NF == 4 && $2 $3 $4 ~ /^[0-9]+$/ {
        if (!($1 in compared)) names[++count] = $1
        compared[$1] += $2; errors[$1] += $3; shapes[$1] += $4
        next
    }
    { said = said $0 "\n" }
    END {
        for (i = 1; i <= count; i++) {
            name = names[i]
            printf "%-28s %11d %9d %9d\n", name, compared[name], errors[name], shapes[name]
            total += compared[name]
        }
        printf "%s%d comparisons of %d operations\n", said, total, count
    }' "$tables"/*
exit $failed
