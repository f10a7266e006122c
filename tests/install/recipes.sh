#!/usr/bin/env bash
# usage: recipes.sh ROOM   (a folder for what is made)
# The recipes in packaging/ for other package managers, as far as they can be tried without these: the port for vcpkg runs
# with stand-ins, the recipe for Conan is only compiled. Both tell the version of the library.
set -euo pipefail

gkcntr=$(realpath "$(dirname "$0")/../..")
mkdir -p "$1"
room=$(realpath "$1")
cd "$gkcntr"

version=$(sed -n 's/^project(gkcntr VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
python3 - "$version" <<'TEXT'
import json, pathlib, sys

version = sys.argv[1]
port = json.loads(pathlib.Path("packaging/vcpkg/gkcntr/vcpkg.json").read_text())
assert port["version"] == version, f"vcpkg.json has version {port['version']}, the library {version}"
text = pathlib.Path("packaging/conan/conanfile.py").read_text()
compile(text, "conanfile.py", "exec")
cut = [line for line in text.splitlines() if "self.version = " in line][0].split("self.version = ")[1]
found = eval(cut, {"text": pathlib.Path("CMakeLists.txt").read_text()})
assert found == version, f"conanfile.py finds version {found}, the library has {version}"
TEXT
cmake -D ROOM="$room" -P tests/install/vcpkg.cmake
echo "the recipes have version $version, and the port installs the library"
