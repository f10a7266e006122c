#!/usr/bin/env bash
# usage: archive.sh ROOM ARCHIVE   (with build/windows built; ROOM is a folder for what is made)
# The archive for Windows holds one folder with what an installation of build/windows has, byte for byte.
set -euo pipefail

gkcntr=$(realpath "$(dirname "$0")/../..")
archive=$(realpath "$2")
mkdir -p "$1"
cd "$1"
rm -rf archive archive_expected
mkdir archive
(cd archive && cmake -E tar xf "$archive")
cmake --install "$gkcntr/build/windows" --prefix archive_expected >/dev/null
diff -r archive/* archive_expected
echo "$(find archive/* -type f | wc -l) files in the archive, those of an installation"
