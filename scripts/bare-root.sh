# A minimal Debian in the folder $root; logs go to $folder. Sourced.

# This system's release and archives as sources.list lines, whatever format apt is configured in.
archives() {
    apt-get indextargets --format 'deb $(REPO_URI) $(CODENAME) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' | sort -u
}

# Passes apt's proxy setting on to debootstrap and to the apt in the minimal Debian.
export_proxy() {
    local http_proxy_setting=
    eval "$(apt-config shell http_proxy_setting Acquire::http::Proxy)"
    [ -z "$http_proxy_setting" ] || export http_proxy=$http_proxy_setting
}

# in_root COMMAND...: runs a command in the minimal Debian, in new mount and PID namespaces,
# so that its mounts and processes end with it.
in_root() {
    unshare --mount --pid --fork --kill-child bash -c '
        mount -t proc proc "$0/proc" && mount --rbind /dev "$0/dev" &&
            mkdir -p -m 1777 "$0/tmp/.X11-unix" && mount --rbind /tmp/.X11-unix "$0/tmp/.X11-unix" &&
            exec chroot "$0" "$@"' "$root" "$@"
}

in_root_apt() {
    in_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -y --no-install-recommends "$@" \
        >"$folder/apt.log" 2>&1 || {
        tail -n 20 "$folder/apt.log" >&2
        return 1
    }
}

# make_bare_root [RELEASE]: of this system's release unless another one is named.
make_bare_root() {
    local codename release mirror
    codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
    release=${1:-$codename}
    mirror=$(archives | grep " $codename main$" | cut -d ' ' -f 2 | head -n 1)
    [ -n "$mirror" ] || {
        echo "apt lists no archive of $codename; run apt-get update first." >&2
        return 1
    }
    export_proxy
    mkdir -p /tmp/.X11-unix
    # In a mount namespace, so that debootstrap's mounts vanish with it.
    unshare --mount debootstrap --variant=minbase "$release" "$root" "$mirror" || return 1
    archives | sed "s/ $codename/ $release/" >"$root/etc/apt/sources.list"
    in_root_apt update
}
