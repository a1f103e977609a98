#!/bin/sh
# on-accessibility-bus.sh COMMAND [ARGUMENT]...
# Runs a Qt program with its accessibility bridge on, on a D-Bus session bus and an AT-SPI bus of
# its own.
set -eu

if [ -z "${ON_PRIVATE_SESSION_BUS:-}" ]; then
    ON_PRIVATE_SESSION_BUS=1 exec dbus-run-session -- "$0" "$@"
fi

# Asking for its address starts the AT-SPI bus.
dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress
QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 exec "$@"
