#!/usr/bin/env bash
# usage: packaged.sh ROOM   (where the packages are installed; ROOM is a folder for what is made)
# The ways of docs/install.md to a library in /usr.
set -euo pipefail

gkcntr=$(realpath "$(dirname "$0")/../..")
mkdir -p "$1"
room=$(realpath "$1")
. "$gkcntr/tests/install/consumer.sh"

export prefix=/usr
project installed CMakeLists.txt
lines find
printed "find_package"
project pc CMakeLists.txt
lines pkg-config
printed "pkg-config"
pictures
texts
