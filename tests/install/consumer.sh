# For the scripts beside it, to be sourced with $gkcntr, the folder of the sources, and $room, a folder for what is made:
# users' projects as docs/install.md has them.

export CMAKE_GENERATOR=Ninja CMAKE_BUILD_PARALLEL_LEVEL=${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)} gkcntr
block() { "$gkcntr/tests/install/block.sh" "$1"; }

failed() { # what...; shows what the last lines said
    echo "FAILED: $*" >&2
    tail -n 40 "$room/log" >&2
    exit 1
}

project() { # name, block of its CMakeLists.txt: a fresh folder with the program, in which the next lines run
    rm -rf "${room:?}/$1"
    mkdir -p "$room/$1"
    cd "$room/$1"
    block main.cpp >main.cpp
    block "$2" >CMakeLists.txt
}

lines() { # block: its lines, as the user types them
    bash -euo pipefail -c "$(block "$1")" >"$room/log" 2>&1 || failed "$1, in $PWD"
}

printed() { # what [block]: the last lines are the program's
    [ "$(tail -n 2 "$room/log" | tr -d '\r')" = "$(block "${2:-output}" | sed '/^$/d')" ] || failed "$1: it printed something else"
    echo "$1"
}

pictured() { # what: the program has written its picture
    [ "$(head -c 4 bow.png | tail -c 3)" = PNG ] || failed "$1: it wrote no picture"
    rm bow.png
    echo "$1"
}

pictures() { # the component cairo of what $prefix holds
    project cairo "CMakeLists.txt of the picture"
    block picture.cpp >picture.cpp
    lines "find cairo"
    pictured "the component cairo, find_package"
    lines "pkg-config cairo"
    pictured "the component cairo, pkg-config"
}

texts() { # the component interop of what $prefix holds
    project interop "CMakeLists.txt of the text"
    block text.cpp >text.cpp
    lines "find interop"
    printed "the component interop, find_package" "output of the text"
    lines "pkg-config interop"
    printed "the component interop, pkg-config" "output of the text"
}
