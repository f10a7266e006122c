#!/usr/bin/env bash
# usage: run.sh PROGRAM.exe ARGUMENTS...
# Runs a program built with mingw64.cmake under Wine. GK_WINE_PREFIX names the folder that plays the Windows system,
# build/wine without it.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
export WINEPREFIX=${GK_WINE_PREFIX:-$here/build/wine}
export WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml='
export LC_ALL=C.UTF-8 # in which every file name of Windows can be written
mkdir -p "$WINEPREFIX"

# A crash must end the program and not wait in a dialogue; nor may anything else wait.
exec timeout --kill-after=10 "${GK_WINE_SECONDS:-600}" wine "$@"
