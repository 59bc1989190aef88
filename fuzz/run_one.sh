#!/usr/bin/env bash
# run_one.sh PROGRAM SECONDS: runs one fuzz target on its seeds for a time; status 1 on a finding.
set -u
program=$1
seconds=$2
name=$(basename "$program" Fuzz)
here=$(cd "$(dirname "$0")" && pwd)
seeds=$here/corpus/$(echo "$name" | tr '[:upper:]' '[:lower:]')
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/corpus"

dictionary=()
[ -f "$seeds.dict" ] && dictionary=("-dict=$seeds.dict")
known=()
[ -d "$seeds" ] && known=("$seeds")

if ! "$program" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=3000 -print_final_stats=1 \
    -artifact_prefix="$work/" "${dictionary[@]}" "$work/corpus" "${known[@]}" > "$work/log" 2>&1; then
    echo "$name: a finding"
    tail -n 40 "$work/log"
    for artifact in "$work"/crash-* "$work"/oom-* "$work"/timeout-*; do
        [ -f "$artifact" ] && echo "input (base64): $(base64 -w0 "$artifact" | head -c 4000)"
    done
    exit 1
fi
echo "$name: $(grep -c . "$work/log") log lines, $(sed -n 's/stat::number_of_executed_units: *//p' "$work/log") runs, no finding"
