#!/usr/bin/env bash
# usage: block.sh NAME
# Prints the indented block behind <!-- NAME --> in docs/install.md, the one place that has the users' lines.
set -euo pipefail

awk -v mark="<!-- $1 -->" '
    $0 == mark { inside = 1; next }
    inside && /^    / { print substr($0, 5); lines++; next }
    inside && /^$/ { if (lines) print ""; next }
    inside { exit }
    END { exit !lines }
' "$(dirname "$0")/../../docs/install.md" || { echo "docs/install.md has no block called '$1'" >&2; exit 1; }
