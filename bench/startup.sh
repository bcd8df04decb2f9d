#!/usr/bin/env bash
# From process start to the painted course table, side by side with the smallest program of its kind.
# usage: startup.sh BIN_FOLDER ROOT [RUNS]
set -eu
bin=$1
export MENDORI_ROOT=$2
runs=${3:-21}
screen=$(mktemp)
cat >"$screen" <<'JSON'
{"synchronousWindowSystemEvents": true, "windowFrameMargins": false, "screens": [{"name": "bench", "x": 0, "y": 0,
 "width": 1280, "height": 1024, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]}
JSON
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen:configfile=$screen}

measure() { BENCH_START=$EPOCHREALTIME "$1" 2>/dev/null; }
median() { sort -n | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }

measure "$bin/startup_program" >/dev/null
measure "$bin/startup_smallest" >/dev/null
program=$(mktemp)
smallest=$(mktemp)
for _ in $(seq "$runs"); do
    measure "$bin/startup_program" >>"$program"
    measure "$bin/startup_smallest" >>"$smallest"
done
echo "program  ready after $(cut -d' ' -f1 "$program" | median) ms (21 ms of them waited by design), $(cut -d' ' -f2 "$program" | median) kB"
echo "smallest ready after $(cut -d' ' -f1 "$smallest" | median) ms, $(cut -d' ' -f2 "$smallest" | median) kB"
rm -f "$program" "$smallest" "$screen"
