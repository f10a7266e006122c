#!/usr/bin/env bash
# usage: dll_names.sh LIBRARY.dll
# The names a DLL exports, as C++ writes them, each once and sorted; spelled as a Linux library's, where size_t is an
# unsigned long, so that two lists can be compared.
set -euo pipefail

x86_64-w64-mingw32-objdump -p "$1" |
    awk '/^\[Ordinal\/Name Pointer\] Table/ { names = 1; next } NF == 0 { names = 0 } names { print $NF }' |
    c++filt -n | sed 's/unsigned long long/unsigned long/g' | sort -u
