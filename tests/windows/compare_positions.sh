#!/usr/bin/env bash
# compare_positions.sh ONE.csv OTHER.csv: whether two sessions played the same motion. Frames and nodes agree
# exactly, coordinates to a hundredth of a millimetre: the compilers round intermediate results differently.
set -euo pipefail

rows=$(($(wc -l <"$1") - 1))
[ "$rows" -gt 0 ] && [ "$(wc -l <"$2")" -eq $((rows + 1)) ] || {
    echo "$1 and $2 differ in length, or are empty" >&2
    exit 1
}
paste -d '\n' -- "$1" "$2" | tr -d '\r' | awk -F, -v limit=1e-5 '
    function fail(cause) { print cause; failed = 1; exit 1 }
    NR <= 2 { if ($0 != "frame,node,x,y,z") { fail("unexpected heading: " $0) } next }
    {
        label = $0
        sub(/,[^,]*,[^,]*,[^,]*$/, "", label)
        for (i = 0; i < 3; ++i) value[i] = $(NF - i) + 0
    }
    NR % 2 { for (i = 0; i < 3; ++i) first[i] = value[i]; firstLabel = label; next }
    {
        if (label != firstLabel) fail(firstLabel " against " label)
        for (i = 0; i < 3; ++i) {
            off = value[i] - first[i]
            if (off < 0) off = -off
            if (off > worst) worst = off
            if (!(off <= limit)) fail(label " is off by " off " m")
        }
    }
    END { if (!failed) printf "%d positions agree, worst difference %g m\n", NR / 2 - 1, worst }'
