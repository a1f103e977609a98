# has_display: whether the display named by the environment accepts connections. Sourced.

# socket_answers PATH: a socket file can outlive the server that made it, so connect to it.
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

has_display() {
    wayland_answers || x_answers
}
