# shellcheck shell=bash disable=SC2034
# What the scripts of this folder share; each of them sources it.
#
#   root                     the project's folder, set here
#   jobs                     how many jobs a build may run at once, set here
#   need_packages NAME...    makes sure of these Debian packages: installs the missing ones where
#                            there is apt-get, elsewhere says what is missing and fails
#   build_and_test PRESET    configures, builds and runs all tests by a workflow of
#                            CMakePresets.json
#
# A NAME is a package, or SIGN:PACKAGE with the command or the header that shows that it is there,
# so that other systems are asked for the thing itself:
#
#   need_packages c++:g++ cmake make gtest/gtest.h:libgtest-dev clang-14
#
# Everything that it prints goes to standard error, and it leaves standard input alone.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(getconf _NPROCESSORS_ONLN)

need_packages() {
    local name missing=()
    for name in "$@"; do
        is_there "${name%%:*}" || missing+=("${name##*:}")
    done
    [ ${#missing[@]} -eq 0 ] || install_packages "${missing[@]}"
} </dev/null >&2

build_and_test() {
    CMAKE_BUILD_PARALLEL_LEVEL=$jobs CTEST_PARALLEL_LEVEL=$jobs cmake --workflow --preset "$1"
}

is_there() {
    case $1 in
    *.h) echo "#include <$1>" | c++ -E -x c++ - >/dev/null 2>&1 ;;
    *) command -v "$1" >/dev/null || dpkg-query -W -f '${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed ;;
    esac
}

install_packages() {
    local as_root=()
    if ! command -v apt-get >/dev/null; then
        give_up "$*" "install what your system calls these"
    fi
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || give_up "$*" "as root: apt-get install $*"
        as_root=(sudo)
    fi
    echo "Installing: $*"
    "${as_root[@]}" apt-get update -q || give_up "$*" "apt-get update failed, see above"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "$@" ||
        give_up "$*" "apt-get install failed, see above"
}

give_up() {
    echo "$(basename "$0"): missing: $1 ($2)"
    exit 1
}
