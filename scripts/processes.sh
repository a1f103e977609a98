# Starting what must not outlive us, and ending it. Sourced.

# start COMMAND...: in the background and in a process group of its own, so that Ctrl-C reaches
# only the script and the script can end the command whole. Its id is in $!.
start() {
    set -m
    "$@" &
    set +m
}

# end_group ID...: asks each group to end; one that has not after five seconds is killed.
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
