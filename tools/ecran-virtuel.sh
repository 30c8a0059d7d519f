#!/usr/bin/env bash
# ecran-virtuel.sh PICTURE PROGRAM: starts a program on a virtual X display, waits for its first window, saves what
# the display shows as a PNG picture and ends the program.
set -euo pipefail
picture=$1
program=$2

export picture program
xvfb-run -a -s "-screen 0 1280x900x24" bash -c '
    "$program" &
    pid=$!
    trap "kill $pid 2>/dev/null || true" EXIT
    for _ in $(seq 100); do
        kill -0 $pid 2>/dev/null || exit 1
        xwininfo -name Savorel >/dev/null 2>&1 && break
        sleep 0.1
    done
    sleep 1
    import -window root "$picture"
'
