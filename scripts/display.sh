# The display the game plays on: the machine's own where there is one, else a private one with a
# window manager. Sourced, after processes.sh.

# Whether something listens at the Unix socket $1; a socket file outlives a server that was killed.
socket_answers() {
    perl -MSocket -e 'socket(my $s, AF_UNIX, SOCK_STREAM, 0) or exit 1;
        connect($s, sockaddr_un($ARGV[0])) or exit 1' "$1" 2>/dev/null
}

wayland_answers() {
    case ${WAYLAND_DISPLAY:-} in
        "") return 1 ;;
        /*) socket_answers "$WAYLAND_DISPLAY" ;;
        *) socket_answers "${XDG_RUNTIME_DIR:-/nonexistent}/$WAYLAND_DISPLAY" ;;
    esac
}

x_answers() {
    local host number
    [ -n "${DISPLAY:-}" ] || return 1
    host=${DISPLAY%:*}
    number=${DISPLAY##*:}
    number=${number%%.*}
    case $host in
        "" | unix | /*) socket_answers "/tmp/.X11-unix/X$number" ;;
        *) timeout 3 bash -c ": >/dev/tcp/$host/$((6000 + number))" 2>/dev/null ;;
    esac
}

# Whether the display that the environment names answers.
has_display() {
    wayland_answers || x_answers
}

# wait_for FILE: until FILE has content, for ten seconds at most.
wait_for() {
    for _ in $(seq 100); do
        [ ! -s "$1" ] || return 0
        sleep 0.1
    done
    return 1
}

# Starts the display and exports DISPLAY. Its processes are in display_processes, what they say in
# the folder $1.
start_private_display() {
    local folder=$1
    start Xvfb -displayfd 3 -screen 0 1920x1080x24 -nolisten tcp \
        3>"$folder/number" >"$folder/display.log" 2>&1
    display_processes=$!
    wait_for "$folder/number" || return 1
    DISPLAY=:$(cat "$folder/number")
    export DISPLAY
    unset WAYLAND_DISPLAY XAUTHORITY
    # Without a bus of the user's own, one would be launched on the side and outlive the game.
    export DBUS_SESSION_BUS_ADDRESS=${DBUS_SESSION_BUS_ADDRESS:-disabled:}
    if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
        mkdir -m 700 "$folder/run"
        export XDG_RUNTIME_DIR=$folder/run
    fi
    # A window that asks for full screen before the manager is up would not get it.
    # It takes the command apart itself: the folder's name, which may hold anything, goes around it.
    start env managed="$folder/managed" openbox --startup "sh -c 'echo yes >\"\$managed\"'" \
        >"$folder/manager.log" 2>&1
    display_processes="$! $display_processes"
    wait_for "$folder/managed"
}
