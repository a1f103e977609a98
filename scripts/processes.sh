# Background processes that must not outlive the script. Sourced.

# start COMMAND...: runs a command in the background, in a separate process group: Ctrl-C then
# reaches only the script, which can end the whole group. Its id is in $!.
start() {
    set -m
    "$@" &
    set +m
}

# end_group ID...: sends SIGTERM to each process group, and SIGKILL after five seconds.
end_group() {
    local id
    for id in "$@"; do
        kill -- "-$id" 2>/dev/null || continue
        for _ in $(seq 50); do
            kill -0 -- "-$id" 2>/dev/null || continue 2
            sleep 0.1
        done
        kill -KILL -- "-$id" 2>/dev/null
    done
}
