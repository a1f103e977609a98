# A private X display with a window manager. Sourced by play.

# Whether the display that the environment names answers.
has_display() {
    if [ -n "${WAYLAND_DISPLAY:-}" ]; then
        case $WAYLAND_DISPLAY in
            /*) [ -S "$WAYLAND_DISPLAY" ] && return 0 ;;
            *) [ -S "${XDG_RUNTIME_DIR:-/nonexistent}/$WAYLAND_DISPLAY" ] && return 0 ;;
        esac
    fi
    [ -n "${DISPLAY:-}" ] || return 1
    case $DISPLAY in
        :*) local number=${DISPLAY#:} && [ -S "/tmp/.X11-unix/X${number%%.*}" ] ;;
        *) return 0 ;;
    esac
}

# Starts the display and exports DISPLAY. Its processes are in display_processes.
start_private_display() {
    local number_file
    number_file=$(mktemp)
    Xvfb -displayfd 3 -screen 0 1920x1080x24 -nolisten tcp 3>"$number_file" 2>/dev/null &
    display_processes=$!
    for _ in $(seq 100); do
        [ -s "$number_file" ] && break
        sleep 0.1
    done
    DISPLAY=:$(cat "$number_file")
    rm -f "$number_file"
    [ "$DISPLAY" != : ] || return 1
    export DISPLAY
    unset WAYLAND_DISPLAY
    openbox >/dev/null 2>&1 &
    display_processes="$display_processes $!"
}

stop_private_display() {
    # shellcheck disable=SC2086 # one word a process
    [ -z "${display_processes:-}" ] || kill $display_processes 2>/dev/null
    wait
}
