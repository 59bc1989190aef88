#!/usr/bin/env bash
# What `run` refuses before it installs or builds anything: one line or the usage, status 2, no results.
set -u

run=$1
folder=$(mktemp -d)
trap 'rm -rf -- "$folder"' EXIT
cd -- "$folder" || exit 1
failures=0

# expect NAME LINES TEXT ARGUMENTS...: status 2, that many lines (0: any) on the error stream, TEXT among them.
expect() {
    local name=$1 lines=$2 text=$3 status count
    shift 3
    "$run" "$@" >stdout 2>stderr
    status=$?
    count=$(wc -l <stderr)
    if [ $status -ne 2 ] || [ -s stdout ] || ! grep -qF -- "$text" stderr || [ -e out ] ||
        { [ "$lines" -ne 0 ] && [ "$count" -ne "$lines" ]; }; then
        echo "$name: status $status, error stream:"
        cat stderr
        failures=$((failures + 1))
    fi
}

mkdir "a folder.bvh"
touch clip.bvh
expect missing_clip 1 "no such & <clip>.bvh:0: the clip cannot be opened" "no such & <clip>.bvh"
expect missing_take 1 "none.bvh:0: the clip cannot be opened" clip.bvh --take none.bvh
expect missing_mesh 1 "none.obj:0: the model cannot be opened" clip.bvh --mesh none.obj
expect missing_merge 1 "none.zms:0: the scene cannot be opened" --merge none.zms
expect mesh_of_no_size 0 "usage:" --mesh-scale 0.0
expect clip_of_no_size 0 "usage:" --scale .
expect path_for_wine 1 "é.bvh:0:" --windows --out é.bvh clip.bvh
expect folder_as_clip 1 "a folder.bvh" "a folder.bvh" --out out
expect missing_clip_with_dash 1 "-x.bvh" -- -x.bvh
expect unknown_option 0 "usage:" --macintosh
expect two_clips 0 "usage:" a.bvh b.bvh
expect out_without_folder 0 "usage:" --out
expect empty_out 0 "usage:" --out ""
expect empty_clip 0 "usage:" ""

exit $((failures > 0))
