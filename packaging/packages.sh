# shellcheck shell=bash disable=SC2034
# The Debian packages that Quenloft needs, and the one way to install what is missing of them.
# Sourced by ./run, ./test and .ci/run; does nothing by itself.

BUILD_PACKAGES=(g++ cmake ninja-build libgl-dev libpcg-cpp-dev qt6-base-dev)
# The toolkit brings what a window needs under X11; these add Wayland and a font to read.
RUN_PACKAGES=(fonts-dejavu-core qt6-wayland)
TEST_PACKAGES=(
    libbenchmark-dev libgmock-dev libgtest-dev
    # The start-up test opens the program on a screen of its own.
    fonts-dejavu-core openbox xdotool xvfb
)
DEB_PACKAGES=(dpkg-dev file gzip)
# What checks an installation for a desktop.
DESKTOP_CHECK_PACKAGES=(appstream desktop-file-utils lintian man-db shared-mime-info)
FUZZ_PACKAGES=(clang libclang-rt-14-dev)
CHECK_PACKAGES=(clang-format clang-tidy git)

# Prints those of the packages named that are not installed.
missing_packages() {
    local package
    for package in "$@"; do
        [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) == installed ]] ||
            echo "$package"
    done
}

# Installs those of the packages named that are missing. Ends the script with a sentence where it
# cannot.
need_packages() {
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        cat >&2 <<END
This is no Debian or relative of it (there is no apt-get), so nothing was installed or built.
Install what these Debian packages hold, under the names that your distribution gives them:
  $*
Then build by hand: cmake --preset release && cmake --build --preset release
END
        exit 1
    fi
    local missing as_root=()
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing and only root may install them (there is no sudo):" \
                "${missing[*]}" >&2
            exit 1
        fi
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300)
    "${apt[@]}" update ||
        echo "The package lists could not be renewed; going on with those at hand." >&2
    if ! "${apt[@]}" install -y --no-install-recommends "${missing[@]}" </dev/null; then
        echo "These packages could not be installed: ${missing[*]}" >&2
        exit 1
    fi
}
