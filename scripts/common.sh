# Shared by the scripts beside it; source it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

say() { printf '\n== %s\n' "$*"; }
fail() {
    printf '\n%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

project_version() { sed -n 's/^project(tidemark VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt; }

build_packages="g++ cmake ninja-build qt6-base-dev libgtest-dev libgmock-dev
    rapidjson-dev libshp-dev libexpat1-dev"
walk_packages="xvfb xauth openbox fonts-dejavu-extra"
bench_packages="libbenchmark-dev libgeos-dev gdal-bin"
windows_packages="g++-mingw-w64-x86-64-posix dpkg-dev googletest icoutils msitools wine wine64 wixl zip"
package_packages="appstream desktop-file-utils dpkg-dev git groff libxml2-utils lintian x11-utils xauth xvfb"
fuzz_packages="clang libclang-rt-14-dev"

# Where the Qt and the libraries that the Windows edition is linked with are kept.
windows_qt=$(realpath -m "${TIDEMARK_WINDOWS_QT:-$HOME/.cache/tidemark/windows-qt}")
windows_libraries=$(realpath -m "${TIDEMARK_WINDOWS_LIBRARIES:-$HOME/.cache/tidemark/windows-libraries}")

# Installs those of the Debian packages given that are not there yet.
install_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    say "Installing ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            fail "these Debian packages are needed: ${missing[*]}; install them or run this as root"
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update -qq || fail "apt-get update failed; is there a network?"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null ||
        fail "apt-get could not install ${missing[*]}"
}

# Installs what building the preset $1 takes.
install_for_preset() {
    install_packages $build_packages
    case $1 in
        release) install_packages $bench_packages ;;
        fuzz) install_packages $fuzz_packages ;;
        mingw)
            install_packages $windows_packages
            use_windows_libraries
            ;;
    esac
}

# Has the libraries of the readers of coast files for Windows, and tells CMake where.
use_windows_libraries() {
    scripts/windows-libraries
    export TIDEMARK_WINDOWS_LIBRARIES=$windows_libraries
}

# Unpacks the sources of the Debian package $1, with Debian's corrections, into a folder of that name
# in the current one, unless it is there. They come through a list of our own: the machine's stays as
# it is.
unpack_source() {
    [ ! -d "$1" ] || return 0
    say "Fetching the sources of $1"
    local release options
    release=$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)
    echo "deb-src http://deb.debian.org/debian $release main" >sources.list
    mkdir -p lists/partial
    options=(-o "Dir::Etc::SourceList=$PWD/sources.list" -o Dir::Etc::SourceParts=-
        -o "Dir::State::Lists=$PWD/lists")
    apt-get "${options[@]}" update -qq && apt-get "${options[@]}" source --download-only "$1" ||
        fail "the sources of $1 could not be fetched; is there a network?"
    rm -rf unpacked
    dpkg-source --no-check -x "$1"_*.dsc unpacked
    mv unpacked "$1"
}

# Configures and builds a preset: build_preset NAME [target...]
build_preset() {
    local preset=$1
    shift
    say "Building the preset $preset"
    local log
    log=$(cmake --preset "$preset" 2>&1) || {
        echo "$log"
        fail "cmake could not configure the preset $preset"
    }
    cmake --build --preset "$preset" ${1:+--target "$@"} || fail "the build of the preset $preset failed"
}

# Plays the sample through the real windows on a virtual display, at the scale factor $2 (1); all
# that it makes goes to $1.
play_walk() {
    local scale=${2:-1}
    install_packages $build_packages $walk_packages
    build_preset dev tidemark tidemark-walk
    say "Playing the sample through the real windows, on a virtual display"
    rm -rf "$1"
    mkdir -p "$1"
    QT_SCALE_FACTOR=$scale xvfb-run -a -s "-screen 0 $((1280 * scale))x$((860 * scale))x24" bash -c '
        openbox >/dev/null 2>&1 &
        sleep 1 # for the window manager to take over the display
        build/dev/bin/tidemark-walk "$1"' walk "$1" || fail "the walk through the windows failed"
}

# The moment that a package's files carry: the commit's, so that each build of it is the same. Who
# has it from elsewhere than git says it in SOURCE_DATE_EPOCH.
export_source_date() {
    SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null)} ||
        fail "not a git checkout: set SOURCE_DATE_EPOCH to the seconds of the release"
    export SOURCE_DATE_EPOCH
}

# Without a display, Qt wants a folder of its own for the run: one for all runs.
if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
    XDG_RUNTIME_DIR=${TMPDIR:-/tmp}/tidemark-runtime-$(id -u)
    mkdir -p -m 700 "$XDG_RUNTIME_DIR"
    export XDG_RUNTIME_DIR
fi
