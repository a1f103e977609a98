#!/bin/sh
# Runs a command on a screen and an accessibility bus of its own:
# on-accessibility-bus.sh COMMAND [ARGUMENT]...
set -eu

if [ -z "${ON_ACCESSIBILITY_BUS:-}" ]; then
    XDG_RUNTIME_DIR=$(mktemp -d)
    trap 'rm -rf "$XDG_RUNTIME_DIR"' EXIT
    export XDG_RUNTIME_DIR ON_ACCESSIBILITY_BUS=1
    xvfb-run -a dbus-run-session -- "$0" "$@"
    exit
fi

# Asking for its address starts the accessibility bus.
dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress
QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 "$@"
