#!/usr/bin/env bash
# usage: exports.sh LIBRARY
# The library exports its own interface and nothing else: names that begin with gk, gf, gn or gstd_, what the compiler
# makes for them (tables, type information, thunks), and operators on them. Weak instances of standard templates
# cannot be told from what every other library exports, and are left out.
set -euo pipefail

names=$(nm --dynamic --defined-only "$1" | awk 'NF == 3 { print $2, $3 }' | c++filt)
foreign=$(echo "$names" | awk '
    { kind = $1; name = $0; sub(/^. /, "", name) }
    {
        called = name
        sub(/\(.*/, "", called)
        if (kind ~ /[VWu]/ && called ~ /(^| )(std|__gnu_cxx)::/) next
        while (sub(/^(construction vtable|vtable|typeinfo name|typeinfo|VTT|guard variable|(non-)?virtual thunk|covariant return thunk|TLS (init|wrapper) function) (for|to) /, "", name)) {}
        if (name ~ /^(gk|gf|gn|gstd_)/) next                                # a class, a function
        if (name ~ /^([^ (]+ )?operator[^(]*\(/ && name ~ /gk[A-Z0-9_]/) next   # an operator on one of our types
        if (name ~ /^[a-z:<> ]*[ *&](gk|gf|gn)[A-Za-z_]*</) next            # a template, shown with its return type
        print
    }')
if [ -n "$foreign" ]; then
    echo "$foreign"
    echo "^ exported by $1, but not of its interface"
    exit 1
fi
echo "$(echo "$names" | wc -l) exported names, all of the interface"
