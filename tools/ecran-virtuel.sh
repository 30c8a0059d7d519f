#!/usr/bin/env bash
# ecran-virtuel.sh PICTURE PROGRAM: starts a program on a virtual X display, waits for its main window, saves what the
# display shows as a PNG picture and ends the program. Fails when no window as large as the main one comes.
set -euo pipefail
picture=$1
program=$2

export picture program
xvfb-run -a -s "-screen 0 1280x900x24" bash -c '
    main_window_shown() { xwininfo -name Savorel 2>/dev/null | awk "/Width:/ { w = \$2 } END { exit !(w >= 700) }"; }

    "$program" &
    pid=$!
    trap "kill $pid 2>/dev/null || true" EXIT
    for _ in $(seq 200); do
        main_window_shown && break
        kill -0 $pid 2>/dev/null || break
        sleep 0.1
    done
    main_window_shown || { echo "the main window did not come" >&2; exit 1; }
    sleep 1
    import -window root "$picture"
'
