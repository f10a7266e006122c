#!/usr/bin/env bash
# usage: abi.sh FOLDER
# Programs linked with the last version run with this library: compared with the last tag, no exported name is gone and
# no type they know has changed, unless the major version has. Names may be added. FOLDER is for what is built.
set -euo pipefail
cd "$(dirname "$0")/../.."

tag=$(git describe --tags --match 'v[0-9]*' --abbrev=0 2>/dev/null) || {
    echo "no version has a tag yet, so there is nothing to compare with"
    exit
}
folder=$1
rm -rf "$folder/sources"
mkdir -p "$folder/sources"
git archive "$tag" | tar -x -C "$folder/sources"

build() { # sources, folder; with the names and types that abidiff reads
    cmake -G Ninja -S "$1" -B "$2" -DCMAKE_BUILD_TYPE=None -DCMAKE_CXX_FLAGS='-g -O1' -DBUILD_SHARED_LIBS=ON \
        -DGKCNTR_TESTS=OFF -DGKCNTR_EXAMPLES=OFF -DGKCNTR_CAIRO=OFF -DGKCNTR_INTEROP=OFF -DGKCNTR_WERROR=OFF >"$folder/log" 2>&1 &&
        cmake --build "$2" --target gkcntr --parallel "$(nproc)" >>"$folder/log" 2>&1 || { cat "$folder/log"; exit 1; }
}
build "$folder/sources" "$folder/then"
build . "$folder/now"

name() { readelf -d "$1/libgkcntr.so" | sed -n 's/.*soname: \[\(.*\)\]/\1/p'; }
if [ "$(name "$folder/then")" != "$(name "$folder/now")" ]; then
    echo "$tag is $(name "$folder/then"), this is $(name "$folder/now"): programs are linked anew"
    exit
fi
# Instances of standard templates come and go with the bodies that use them.
cat >"$folder/standard.suppr" <<'TEXT'
[suppress_function]
  symbol_name_regexp = ^_ZN?K?S
[suppress_variable]
  symbol_name_regexp = ^_Z(TV|TI|TS|GV)?N?K?S
TEXT
if ! abidiff --exported-interfaces-only --no-added-syms --suppressions "$folder/standard.suppr" \
    "$folder/then/libgkcntr.so" "$folder/now/libgkcntr.so"; then
    echo "^ programs linked with $tag would break; such a change takes a new major version"
    exit 1
fi
echo "programs linked with $tag run with this library"
