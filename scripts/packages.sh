# The Debian packages the project stands on, each with what it is for, and how the missing ones are
# installed. Sourced.

build_packages() {
    cat <<'LIST'
g++                  compiles the program
cmake                describes the build
ninja-build          runs the build
pkg-config           finds libraries for the build
qt6-base-dev         windows, events and drawing
qt6-svg-dev          draws the icons
qt6-tools-dev        tells the build about the tools below
qt6-l10n-tools       compiles the translations
librsvg2-bin         renders the icon of the menu entry as PNG
qt6-wayland          lets the game run on Wayland desktops
nlohmann-json3-dev   reads the table of high scores
libicu-dev           counts the characters of a name as people see them
uuid-dev             gives every run its identity
libpulse-dev         plays the two sounds through the desktop's sound server
fonts-inter          the typeface of the texts
fonts-elstob         the typeface of the headlines
fonts-jetbrains-mono the typeface of the numbers and keys
LIST
}

private_display_packages() {
    cat <<'LIST'
xvfb                 a display of its own for a machine without one
openbox              the window manager on that display
x11vnc               lets you look at that display
LIST
}

package_packages() {
    build_packages
    cat <<'LIST'
dpkg-dev             finds what the program needs and writes it into the package
file                 tells programs from other files
LIST
}

bare_root_packages() {
    package_packages
    cat <<'LIST'
debootstrap          makes a Debian with nothing in it
util-linux           keeps what is mounted there away from this system
xvfb                 a display of its own to play on
openbox              the window manager on that display
xdotool              presses real keys
imagemagick          takes screenshots
LIST
}

check_packages() {
    package_packages
    cat <<'LIST'
clang-14             the second compiler, with the sanitizers
libclang-rt-14-dev   the sanitizers' run-time library
llvm-14              names the lines in the sanitizers' reports
clang-format         checks the layout of the code
clang-tidy           checks the code for likely mistakes
libgtest-dev         runs the unit tests
librapidcheck-dev    tries properties on random values
strace               makes system calls fail under test, and shows those the program makes
devscripts           checks how the program is hardened
xvfb                 a display of its own for the desktop tests
openbox              the window manager on that display
weston               a Wayland desktop without a screen, for the desktop tests
xdotool              presses real keys and moves the pointer
x11-utils            reads the state of windows
x11-xkb-utils        switches keyboard layouts
imagemagick          takes screenshots
dbus                 the message bus for accessibility
at-spi2-core         the accessibility bus
python3-gi           reads the screen as assistive programs do
python3-cbor2        reads the settings file
python3-pytest       runs the desktop tests
pulseaudio           a real sound server for the sound tests
pulseaudio-utils     records what that server plays
lintian              judges the package as Debian does
desktop-file-utils   judges the entry in the desktop's menu
appstream            judges the page in software catalogues
man-db               judges the manual page
fonts-noto-core      Arabic and Devanagari letters for the tests of the translations
fonts-wqy-zenhei     Chinese, Japanese and Korean ones: the smallest package with all three
fonts-noto-color-emoji  the emoji in players' names, for the pictures of every screen
LIST
}

bench_packages() {
    build_packages
    cat <<'LIST'
libbenchmark-dev     times the code
xvfb                 a display of its own for the program
openbox              the window manager on that display
x11-utils            tells when the window manager is up
libxtst6             presses keys as a keyboard does
dbus                 the message bus that a desktop has
python3              measures the whole program
LIST
}

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Reads "name purpose" lines and prints those of packages that are not there.
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
        echo "Installing needs root: run this as root, or install sudo." >&2
        return 1
    fi
}

# install_missing LIST: installs what is missing of the packages that the function LIST names.
install_missing() {
    if ! is_debian; then
        echo "This is not Debian or one of its children. Please install what serves as:" >&2
        "$1" >&2
        return 1
    fi
    local missing names
    missing=$("$1" | missing_packages)
    [ -n "$missing" ] || return 0
    echo "Installing Debian packages that are missing:"
    echo "$missing" | sed 's/^/  /'
    names=$(echo "$missing" | cut -d ' ' -f 1)
    # shellcheck disable=SC2086 # one word a package
    as_root apt-get update -qq &&
        as_root env DEBIAN_FRONTEND=noninteractive apt-get install -qq -y \
            --no-install-recommends $names >/dev/null
}
