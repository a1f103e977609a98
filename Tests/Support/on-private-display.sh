#!/usr/bin/env bash
# Runs a command on a display of its own, under a window manager:
# on-private-display.sh COMMAND [ARGUMENT]...
scripts=$(dirname "$0")/../../scripts
. "$scripts/processes.sh"
. "$scripts/display.sh"

folder=$(mktemp -d) || exit 1
display_processes=

clean_up() {
    # shellcheck disable=SC2086 # one word an id, or none
    end_group $display_processes
    wait 2>/dev/null
    rm -rf "$folder"
}
trap clean_up EXIT
trap 'exit 1' INT TERM HUP

# What the desktop about wants of programs is none of the command's business.
export DBUS_SESSION_BUS_ADDRESS=disabled:
if ! start_private_display "$folder"; then
    cat "$folder"/*.log >&2
    echo "No private display could be started." >&2
    exit 1
fi
"$@"
