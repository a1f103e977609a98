#!/bin/sh
# Runs a command on a screen and an accessibility bus of its own:
# on-accessibility-bus.sh COMMAND [ARGUMENT]...
set -eu

if [ -z "${ON_ACCESSIBILITY_BUS:-}" ]; then
    XDG_RUNTIME_DIR=$(mktemp -d)
    mkfifo "$XDG_RUNTIME_DIR/display"
    Xvfb -displayfd 3 -nolisten tcp 3<>"$XDG_RUNTIME_DIR/display" 2>/dev/null &
    screen=$!
    trap 'kill "$screen"; rm -rf "$XDG_RUNTIME_DIR"' EXIT
    read -r number <"$XDG_RUNTIME_DIR/display"
    export XDG_RUNTIME_DIR ON_ACCESSIBILITY_BUS=1 DISPLAY=":$number"
    dbus-run-session -- "$0" "$@"
    exit
fi

# Asking for its address starts the accessibility bus.
dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress
QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 "$@"
