#!/usr/bin/env bash
# No file of the tree says what means nothing to its readers: a path or host of the machine it was written on, a
# reference to a document they do not have, a mark of unfinished work, a test that asserts nothing. The brackets keep
# the patterns from finding themselves.
set -euo pipefail
cd "$(dirname "$0")/../.."

bad=0
refuse() { # what it is, case flag, pattern, find arguments...
    local what=$1 flag=$2 pattern=$3 found
    shift 3
    found=$(find . \( -path ./build -o -path ./.git \) -prune -o -type f "$@" -print0 |
        xargs -0 -r grep -HnIE $flag "$pattern" || true)
    if [ -n "$found" ]; then
        printf '%s\n^ %s\n' "$found" "$what"
        bad=1
    fi
}

refuse 'a document or a machine that the reader does not have' -i \
    '\b[s]pec(ification)?s?\b|\b[P]arts? [1-6]\b|/[w]ork/|/[f]arm/|/[h]ome/|/[r]oot/|bash_[j]obs|deb[.]d[e]bian|[r]egistry[.]n'
refuse 'unfinished work' '' '\b([T]ODO|[F]IXME|[X]XX|[H]ACK|not [i]mplemented yet|[s]tub)\b' \
    \( -name '*.h' -o -name '*.cpp' -o -name '*.cmake' -o -name 'CMakeLists.txt' -o -name '*.sh' -o -name dev \)
refuse 'a test that asserts nothing' '' '[D]ISABLED_|[G]TEST_SKIP|EXPECT_TRUE\([t]rue\)|ASSERT_TRUE\([t]rue\)|[S]UCCEED\(\)' \
    -path './tests/*'
[ $bad = 0 ] && echo "nothing found"
exit $bad
