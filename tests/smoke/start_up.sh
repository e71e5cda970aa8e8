#!/bin/sh
# Starts the built program on a screen of its own, rolls a table with the keyboard, saves the result and
# closes the program: start_up.sh BIN_FOLDER. Needs Xvfb, openbox and xdotool.
set -eu
bin=$(cd "$1" && pwd)
. "$(dirname "$0")/screen.sh"

# A copy: the settings of whoever builds here stay as they are.
cp "$bin/quenloft" "$work/quenloft"
mkdir "$work/library"
printf 'Guards\2441\r\n\r\n1\247@1d1@ guard: #names#.\r\n' >"$work/library/guards.tbl"
printf 'Names\2441\r\n\r\n1\247Ada\r\n' >"$work/library/names.tbl"
printf '[Settings]\r\nLibpath=%s\r\n' "$work/library" >"$work/quenloft.INI"

open_screen
start "$work/quenloft"
wait_for_window "the main window" '^Quenloft [0-9]'

# The library tree has the focus: typing finds a row, Return rolls it.
xdotool type --delay 50 'Guards'
xdotool key Return
export_to "$work/result.txt"
[ "$(head -n 1 "$work/result.txt" | tr -d '\r')" = "1 guard: Ada." ] ||
    fail "rolled: $(cat "$work/result.txt")"

quit_program
grep -q '^Geometry=' "$work/quenloft.INI" || fail "the window's place was not kept"
echo "start_up: a table was rolled and the program closed"
