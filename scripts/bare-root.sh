# A Debian with nothing in it, in the folder $root; $folder takes the logs. Sourced by try-package.

# The release and the archives of this system, as sources.list lines. apt knows them however they
# are written down.
archives() {
    apt-get indextargets --format 'deb $(REPO_URI) $(CODENAME) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' | sort -u
}

# A way to the archives that apt was told of counts in the bare root too.
export_proxy() {
    local http_proxy_setting=
    eval "$(apt-config shell http_proxy_setting Acquire::http::Proxy)"
    [ -z "$http_proxy_setting" ] || export http_proxy=$http_proxy_setting
}

# in_root COMMAND...: runs a command in the bare root. What it mounts and starts ends with it.
in_root() {
    unshare --mount --pid --fork --kill-child bash -c '
        mount -t proc proc "$0/proc" && mount --rbind /dev "$0/dev" &&
            mkdir -p "$0/tmp/.X11-unix" && mount --rbind /tmp/.X11-unix "$0/tmp/.X11-unix" &&
            exec chroot "$0" "$@"' "$root" "$@"
}

in_root_apt() {
    in_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -y --no-install-recommends "$@" \
        >"$folder/apt.log" 2>&1 || {
        tail -n 20 "$folder/apt.log" >&2
        return 1
    }
}

make_bare_root() {
    local codename mirror
    codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
    mirror=$(archives | grep " $codename main$" | cut -d ' ' -f 2 | head -n 1)
    [ -n "$mirror" ] || {
        echo "apt knows no archive of $codename here; apt-get update may be due." >&2
        return 1
    }
    export_proxy
    mkdir -p /tmp/.X11-unix
    # What debootstrap mounts goes with its own view of the file system.
    unshare --mount debootstrap --variant=minbase "$codename" "$root" "$mirror" || return 1
    archives >"$root/etc/apt/sources.list"
    in_root_apt update
}
