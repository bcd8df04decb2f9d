#!/bin/sh
# First frame of a video: ours beside ffplay's, in one run. Needs a display or xvfb-run, and the videos made.
# usage: bench/video.sh build/release /path/to/Lesson_1.wmv
set -eu
build=$1
video=$2
runs=${3:-5}

echo "ffplay, start of the process to the first frame handed to its window:"
i=0
while [ "$i" -lt "$runs" ]; do
    start=$(date +%s%N)
    # The filter tells of each frame as it goes to the window; the first line is the first frame.
    ffplay -hide_banner -loglevel info -autoexit -t 0.3 -vf showinfo "$video" 2>&1 |
        stdbuf -oL tr '\r' '\n' | while read -r line; do
        case $line in
        *showinfo*" n:"*) echo "  $((($(date +%s%N) - start) / 1000000)) ms"; break ;;
        esac
    done
    i=$((i + 1))
done

echo "frmVideo2, opening of the window to its first frame painted:"
"$build/bin/bench_video" "$video" "$runs"
