# The Debian packages that the project needs, each with its purpose, and a function that installs
# the missing ones. Sourced.

build_packages() {
    cat <<'LIST'
g++                  compiler
cmake                build system
ninja-build          build tool that CMake generates files for
pkgconf              finds libuuid and libpulse for CMake
qt6-base-dev         Qt: windows, events, drawing, D-Bus
qt6-svg-dev          Qt SVG, which draws the icons
qt6-tools-dev        CMake files of Qt Linguist
qt6-l10n-tools       Qt Linguist's lupdate and lrelease, for the translations
librsvg2-bin         rsvg-convert, which renders the application icon to PNG
qt6-wayland          Qt's Wayland plugin
libicu-dev           ICU: finds the user-perceived characters of a name
uuid-dev             libuuid: one UUID per run
libwayland-dev       Wayland client library, for the activation token of a second start
wayland-protocols    the description of that protocol
libxcb1-dev          X11 client library, for requests that Qt does not make
libxcb-shape0-dev    its SHAPE extension: where the window takes the pointer
libpulse-dev         PulseAudio client library for the two sounds
libfontconfig-dev    fontconfig, which finds the fonts that Qt uses
LIST
}

private_display_packages() {
    cat <<'LIST'
xvfb                 X server without a screen
openbox              window manager
LIST
}

viewer_packages() {
    cat <<'LIST'
x11vnc               shows that X server to a VNC viewer
LIST
}

package_packages() {
    build_packages
    cat <<'LIST'
build-essential      what dpkg-buildpackage takes for granted
debhelper            builds the package by the files in debian
dpkg-dev             dpkg-buildpackage
LIST
}

root_packages() {
    cat <<'LIST'
debootstrap          makes a minimal Debian in a folder
util-linux           unshare, for mount and PID namespaces
LIST
}

bare_root_packages() {
    package_packages
    root_packages
    cat <<'LIST'
autopkgtest          runs the tests of the package in a minimal Debian
lintian              checks the Debian package
piuparts             installs, purges and looks for what is left behind
python3-pytest       test runner for Python
LIST
}

# Installed only in the minimal Debian of Tests/Desktops/run.
desktops_packages() {
    cat <<'LIST'
libqt6widgets6       run-time libraries of the game
libqt6svg6           .
^libicu[0-9]+$       .
libuuid1             .
libpulse0            .
qt6-wayland          Qt's Wayland plugin
gnome-shell          desktop
kwin-wayland         Wayland compositor of KDE Plasma
kwin-x11             window manager of KDE Plasma
xfwm4                window manager of Xfce
marco                window manager of MATE
mate-settings-daemon-common  settings schemas that marco needs
metacity             window manager
openbox              window manager
icewm                window manager
fluxbox              window manager
i3-wm                tiling window manager
sway                 tiling Wayland compositor
weston               Wayland compositor and small Wayland programs
xvfb                 X server without a screen
libgl1-mesa-dri      software rendering
xdotool              sends key presses and moves the pointer
x11-utils            xprop, xwininfo, xmessage
imagemagick          takes screenshots
dbus                 D-Bus session bus
at-spi2-core         AT-SPI accessibility bus
dconf-gsettings-backend  stores settings
libglib2.0-bin       gsettings
python3-gi           D-Bus and AT-SPI for Python
python3-cbor2        reads the preferences file
fonts-dejavu-core    a font for the desktops
LIST
}

# Installed only in the minimal Debian of scripts/test-arm64.
arm64_packages() {
    cat <<'LIST'
crossbuild-essential-arm64  cross compilers
qemu-user-static     runs programs for arm64
cmake                build system
ninja-build          build tool that CMake generates files for
pkgconf              finds libraries for CMake
qt6-base-dev         moc and rcc, which run on the host
qt6-tools-dev        CMake files of Qt Linguist
qt6-l10n-tools       lrelease, which CMake looks for
wayland-protocols    the description of a Wayland protocol
locales              sources of the locales that the tests of the score table run in
qt6-base-dev:arm64   libraries of the game and of the tests
qt6-svg-dev:arm64    .
libicu-dev:arm64     .
uuid-dev:arm64       .
libwayland-dev:arm64 .
libxcb1-dev:arm64    .
libxcb-shape0-dev:arm64  .
libpulse-dev:arm64   .
libfontconfig-dev:arm64  .
libgtest-dev:arm64   .
librapidcheck-dev:arm64  .
LIST
}

check_packages() {
    package_packages
    cat <<'LIST'
clang                second compiler, for sanitizers and fuzzers
libclang-rt-dev      run-time library of the sanitizers and of libFuzzer
llvm                 llvm-symbolizer: line numbers in the sanitizers' reports
clang-format         checks the formatting of the code
clang-tidy           static analysis
libgtest-dev         GoogleTest, for the unit tests
librapidcheck-dev    property-based tests
locales              sources of the locales that the tests of the score table run in
strace               traces system calls and makes them fail, for tests
devscripts           hardening-check, which inspects the released binary
xvfb                 X server without a screen
openbox              window manager
xfwm4                window manager of Xfce
weston               Wayland compositor
sway                 tiling Wayland compositor
xdotool              sends key presses and moves the pointer
x11-utils            xprop, which reads the state of windows
x11-xkb-utils        setxkbmap, which switches keyboard layouts
x11-xserver-utils    xrandr, which changes the resolution of the screen
imagemagick          takes screenshots
dbus                 D-Bus session bus for the desktop tests
at-spi2-core         AT-SPI accessibility bus
python3-gi           AT-SPI client library for Python
orca                 screen reader
speech-dispatcher    speech server of that screen reader
python3-cbor2        reads the preferences file
python3-pytest       test runner for Python
pulseaudio           sound server for the sound tests
pulseaudio-utils     parec, which records what that server plays
desktop-file-utils   checks the desktop entry
appstream            checks the metainfo file
man-db               checks the manual page
fonts-noto-core      Arabic and Devanagari fonts, for the translations
fonts-wqy-zenhei     Chinese, Japanese and Korean font (the smallest package with all three)
fonts-noto-color-emoji  emoji in player names, for the screenshots of every screen
LIST
}

bench_packages() {
    build_packages
    cat <<'LIST'
libbenchmark-dev     Google Benchmark
xvfb                 X server without a screen
openbox              window manager
x11-utils            xprop, which reads the state of windows
libxtst6             XTEST extension, which simulates key presses
dbus                 D-Bus session bus
python3              runs the measurements of the whole program
python3-cbor2        reads the preferences file
LIST
}

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Reads "name purpose" lines and prints those of packages that are not installed.
missing_packages() {
    while read -r name purpose; do
        is_installed "$name" || printf '%-20s %s\n' "$name" "$purpose"
    done
}

is_debian() {
    [ -r /etc/os-release ] || return 1
    (
        . /etc/os-release
        case " ${ID:-} ${ID_LIKE:-} " in *" debian "*) exit 0 ;; *) exit 1 ;; esac
    )
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "Installing packages needs root: run this as root, or install sudo." >&2
        return 1
    fi
}

# install_missing LIST: installs the missing ones of the packages that the function LIST prints.
install_missing() {
    if ! is_debian; then
        echo "This system is not based on Debian. Please install the equivalents of these packages:" >&2
        "$1" >&2
        return 1
    fi
    local missing names
    missing=$("$1" | missing_packages)
    [ -n "$missing" ] || return 0
    echo "Installing missing Debian packages:"
    echo "$missing" | sed 's/^/  /'
    names=$(echo "$missing" | cut -d ' ' -f 1)
    # shellcheck disable=SC2086 # one word a package
    as_root apt-get update -qq &&
        as_root env DEBIAN_FRONTEND=noninteractive apt-get install -qq -y \
            --no-install-recommends $names >/dev/null
}
