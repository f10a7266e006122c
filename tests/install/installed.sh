#!/usr/bin/env bash
# usage: installed.sh FOLDER CONFIGURATION FILE...
# FOLDER, an installation, holds the public headers, the files of the CMake package, the licence, the FILEs, and nothing
# else; and no text in it says where it was made. The .pc files among the FILEs tell whose headers and package files are
# expected.
set -euo pipefail
export LC_ALL=C

folder=$(realpath "$1")
configuration=$2
shift 2
root=$(realpath "$(dirname "$0")/../..")

headers() { # library
    case $1 in
        gkcntr) echo gkcntr.h && sed -n 's,^#include "\(.*\)"$,\1,p' "$root/gkcntr.h" ;;
        gkcntr_interop) (cd "$root" && find interop -name '*.h' | sort | comm -23 - <(sort cmake/inner_headers.txt)) ;;
        gkcntr_cairo) echo platform/display/cairo/cairo_tablet.h ;;
    esac
}

expected() { # files...
    local library
    for library in $(printf '%s\n' "$@" | sed -n 's,^lib/pkgconfig/\(.*\)\.pc$,\1,p'); do
        headers "$library" | sed 's,^,include/gkcntr/,'
        printf 'lib/cmake/gkcntr/%s\n' "${library}Targets.cmake" "${library}Targets-$configuration.cmake"
    done
    printf 'lib/cmake/gkcntr/%s\n' gkcntrConfig.cmake gkcntrConfigVersion.cmake
    echo share/licenses/gkcntr/LICENSE
    printf '%s\n' "$@"
}

# No inner header can be among them: those of gkcntr.h are public, which ./dev check headers sees to.
if ! diff -u --label expected --label installed <(expected "$@" | sort) \
    <(cd "$folder" && find . ! -type d -printf '%P\n' | sort); then
    echo "^ not what is to be installed in $folder"
    exit 1
fi
if grep -rIlF "$root" "$folder"; then
    echo "^ says where it was made, in $root"
    exit 1
fi
echo "$(expected "$@" | grep -c '\.h$') headers and what finds them, nothing else"
