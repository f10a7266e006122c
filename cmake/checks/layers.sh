#!/usr/bin/env bash
# Every include of the library points the way cmake/layers.txt allows.
set -euo pipefail
cd "$(dirname "$0")/../.."

find . -type f \( -name '*.h' -o -name '*.cpp' \) -printf '%P\n' | grep -E '^(platform|cntr|ch_core|interop)/' | sort | xargs -r awk '
    function under(path, room) { return path == room || index(path, room "/") == 1 }

    FILENAME == "cmake/layers.txt" {
        if ($0 ~ /^[^#]+:/) { room = $1; sub(/:$/, "", room); $1 = ""; allowed[room] = $0 }
        next
    }

    # The longest room that holds the file decides.
    FNR == 1 {
        room = ""
        for (r in allowed) if (under(FILENAME, r) && length(r) > length(room)) room = r
        count = split(allowed[room], may, " ")
        files++
    }

    /^ *# *include *"/ {
        split($0, part, "\"")
        for (i = 1; i <= count; i++) if (under(part[2], may[i])) next
        printf "%s:%d: %s must not include \"%s\"\n", FILENAME, FNR, room, part[2]
        bad = 1
    }

    END { if (!bad) print files " files include the right way"; exit bad }
' cmake/layers.txt
