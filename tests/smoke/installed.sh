#!/bin/sh
# The installed program as it starts for the first time, with a table from a file manager:
# installed.sh PACKAGE.deb. The package is unpacked, not installed. Needs Xvfb, openbox and xdotool.
set -eu
package=$1
. "$(dirname "$0")/screen.sh"

dpkg-deb -x "$package" "$work/root"
usr=$work/root/usr
settings=$work/.config/quenloft/quenloft.INI
printf 'Guards\2441\r\n\r\n1\247A guard.\r\n' >"$work/guards.tbl"

[ -n "$("$usr/bin/quenloft-roll" "$usr/share/quenloft/library/Tonight.tbl")" ] ||
    fail "the sample library did not roll"

open_screen
cd "$work"
start "$usr/bin/quenloft" guards.tbl
wait_for_window "the offer of the sample library" '^Quenloft [0-9]'
xdotool key Escape
wait_for "the settings" grep -q "^Libpath=$usr/share/quenloft/library" "$settings"
wait_for_window "the main window" '^Quenloft [0-9]'
export_to "$work/result.txt"
grep -q 'A guard.' "$work/result.txt" || fail "exported: $(cat "$work/result.txt")"

quit_program
grep -q '^File0=.*guards.tbl' "$settings" || fail "the table is no recent file"
[ ! -e "$usr/bin/quenloft.INI" ] || fail "there are settings beside the program"
echo "installed: the package starts, offers its library and opens a table"
