# shellcheck shell=sh
# Sourced by the smoke tests: a screen of their own with a window manager, and waiting. Needs Xvfb,
# openbox and xdotool.
work=$(mktemp -d)
pids=""

finish() {
    for pid in $pids; do kill "$pid" 2>/dev/null || true; done
    rm -rf "$work"
}
trap finish EXIT

fail() {
    echo "$(basename "$0"): $1" >&2
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

# The home folder is the test's own, too.
open_screen() {
    mkdir "$work/runtime"
    chmod 700 "$work/runtime"
    Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
    pids="$pids $!"
    wait_for "the screen" test -s "$work/display"
    DISPLAY=:$(cat "$work/display")
    XDG_RUNTIME_DIR=$work/runtime
    HOME=$work
    export DISPLAY XDG_RUNTIME_DIR HOME
    unset QT_QPA_PLATFORM XDG_CONFIG_HOME XDG_STATE_HOME
    openbox >/dev/null 2>&1 &
    pids="$pids $!"
    wait_for "the window manager" sh -c 'xdotool get_num_desktops'
}

# start PROGRAM [ARGUMENT]
start() {
    "$@" >"$work/messages" 2>&1 &
    program=$!
    pids="$pids $program"
}

# wait_for_window WHAT NAME: until it is there and has the keys.
wait_for_window() {
    wait_for "$1" xdotool search --onlyvisible --name "$2"
    window=$(xdotool search --onlyvisible --name "$2" | head -n 1)
    wait_for "the focus" sh -c "[ \"\$(xdotool getwindowfocus)\" = $window ] || ! xdotool windowactivate --sync $window"
}

export_to() {
    xdotool key ctrl+e
    wait_for "the file dialog" xdotool search --onlyvisible --name '^Save As$'
    xdotool type --delay 20 "$1"
    xdotool key Return
    wait_for "the saved result" test -s "$1"
}

# Ends the program; it must end well and silently.
quit_program() {
    xdotool key ctrl+q
    wait_for "the end of the program" sh -c "! kill -0 $program"
    wait "$program" || fail "the program ended with $?"
    [ ! -s "$work/messages" ] || fail "the program wrote messages:"
}
