#!/bin/sh
# Starts the built program on a screen of its own, rolls a table with the keyboard, saves the result and
# closes the program: start_up.sh BIN_FOLDER. Needs Xvfb, openbox and xdotool.
set -eu
bin=$(cd "$1" && pwd)
work=$(mktemp -d)
pids=""

finish() {
    for pid in $pids; do kill "$pid" 2>/dev/null || true; done
    rm -rf "$work"
}
trap finish EXIT

fail() {
    echo "start_up: $1" >&2
    cat "$work/messages" >&2 2>/dev/null || true
    exit 1
}

# Runs a command until it succeeds, for at most 20 seconds.
wait_for() {
    what=$1
    shift
    for _ in $(seq 200); do
        if "$@" >/dev/null 2>&1; then return 0; fi
        sleep 0.1
    done
    fail "$what did not come"
}

# A copy: the settings of whoever builds here stay as they are.
cp "$bin/quenloft" "$work/quenloft"
mkdir "$work/library" "$work/runtime"
chmod 700 "$work/runtime"
printf 'Guards\2441\r\n\r\n1\247@1d1@ guard: #names#.\r\n' >"$work/library/guards.tbl"
printf 'Names\2441\r\n\r\n1\247Ada\r\n' >"$work/library/names.tbl"
printf '[Settings]\r\nLibpath=%s\r\n' "$work/library" >"$work/quenloft.INI"

Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
pids="$pids $!"
wait_for "the screen" test -s "$work/display"
DISPLAY=:$(cat "$work/display")
XDG_RUNTIME_DIR=$work/runtime
HOME=$work
export DISPLAY XDG_RUNTIME_DIR HOME
unset QT_QPA_PLATFORM
openbox >/dev/null 2>&1 &
pids="$pids $!"
wait_for "the window manager" sh -c 'xdotool get_num_desktops'

"$work/quenloft" >"$work/messages" 2>&1 &
program=$!
pids="$pids $program"
wait_for "the main window" xdotool search --onlyvisible --name '^Quenloft [0-9]'
window=$(xdotool search --onlyvisible --name '^Quenloft [0-9]' | head -n 1)
wait_for "the focus" sh -c "[ \"\$(xdotool getwindowfocus)\" = $window ] || ! xdotool windowactivate --sync $window"

# The library tree has the focus: typing finds a row, Return rolls it.
xdotool type --delay 50 'Guards'
xdotool key Return
xdotool key ctrl+e
wait_for "the file dialog" xdotool search --onlyvisible --name '^Save As$'
xdotool type --delay 20 "$work/result.txt"
xdotool key Return
wait_for "the saved result" test -s "$work/result.txt"
[ "$(head -n 1 "$work/result.txt" | tr -d '\r')" = "1 guard: Ada." ] ||
    fail "rolled: $(cat "$work/result.txt")"

xdotool key ctrl+q
wait_for "the end of the program" sh -c "! kill -0 $program"
wait "$program" || fail "the program ended with $?"
[ ! -s "$work/messages" ] || fail "the program wrote messages:"
grep -q '^Geometry=' "$work/quenloft.INI" || fail "the window's place was not kept"
echo "start_up: a table was rolled and the program closed"
