# shellcheck shell=bash disable=SC2034
# What the scripts of this folder share; each of them sources it.
#
#   root                     the project's folder, set here
#   page_tools               the folder of the page's tools, once they are installed, set here
#   jobs                     how many jobs a build may run at once, set here
#   need_packages NAME...    makes sure of these Debian packages: installs the missing ones where
#                            there is apt-get, elsewhere says what is missing and fails
#   to_build, to_test        the names for it of what the program needs, and its tests as well
#   configure FOLDER OPTION...
#                            has CMake configure this build folder of the project
#   build_and_test PRESET OPTION...
#                            configures build/PRESET by CMakePresets.json, builds it, runs its tests
#                            by CTest with these options
#   build_module FOLDER      builds the lesson as a WebAssembly module there, with what it needs; checks
#                            that run at the same time take turns, as by the next one
#   build_tests [TARGET...]  configures and builds build/test, or some of it; checks that run at the same
#                            time take turns
#   install_page_tools       installs what the page is built, checked and tested with, as
#                            web/package-lock.json has it; checks that run at the same time take turns
#   own_files FOLDER PATTERN...
#                            the files below a folder with such names but those that were built or
#                            installed, each ended with a NUL; a tarball has no git that could tell
#
# A NAME is a package, or SIGN:PACKAGE with the command or the header that shows that it is there,
# so that other systems are asked for the thing itself:
#
#   need_packages "${to_build[@]}" gtest/gtest.h:libgtest-dev clang-14
#
# Everything that need_packages prints goes to standard error, and it leaves standard input alone.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
page_tools=$root/web/node_modules/.bin
jobs=$(getconf _NPROCESSORS_ONLN)
case ${CMAKE_GENERATOR-} in
Ninja*) to_build=(c++:g++ cmake ninja:ninja-build) ;;
*) to_build=(c++:g++ cmake make) ;;
esac
to_test=("${to_build[@]}" gtest/gtest.h:libgtest-dev gmock/gmock.h:libgmock-dev nlohmann/json.hpp:nlohmann-json3-dev \
    python3)

need_packages() {
    local name missing=()
    for name in "$@"; do
        is_there "${name%%:*}" || missing+=("${name##*:}")
    done
    [ ${#missing[@]} -eq 0 ] || install_packages "${missing[@]}"
} </dev/null >&2

configure() {
    is_ours "$1" || forget "$1"
    cmake -S "$root" -B "$@"
}

build_and_test() {
    configure "$root/build/$1" --preset "$1"
    cmake --build "$root/build/$1" --parallel "$jobs"
    ctest --test-dir "$root/build/$1" --output-on-failure --parallel "$jobs" "${@:2}"
}

build_module() {
    need_packages "${to_build[@]}" clang wasm-ld:lld llvm-ar:llvm wasm-opt:binaryen wasi-libc \
        libc++-dev-wasm32 libclang-rt-dev-wasm32
    mkdir -p "$root/build"
    exec 8>"$root/build/module.lock"
    flock 8
    configure "$1" --preset wasm
    cmake --build "$1" --target chempractice_lesson_module --parallel "$jobs"
    exec 8>&-
}

build_tests() {
    mkdir -p "$root/build"
    exec 8>"$root/build/test.lock"
    flock 8
    configure "$root/build/test" --preset test
    cmake --build "$root/build/test" --parallel "$jobs" ${1:+--target "$@"}
    exec 8>&-
}

install_page_tools() {
    need_packages node:nodejs npm
    mkdir -p "$root/build"
    exec 8>"$root/build/npm.lock"
    flock 8
    # npm writes this list last, so it tells that all of it is there.
    if [ ! "$root/web/node_modules/.package-lock.json" -nt "$root/web/package-lock.json" ]; then
        npm --prefix "$root/web" ci --ignore-scripts --no-progress >&2
    fi
    exec 8>&-
}

own_files() {
    local name names=()
    for name in "${@:2}"; do
        names+=(-o -name "$name")
    done
    find "$1" \( -name build -o -name node_modules -o -name .git \) -prune -o \
        -type f \( "${names[@]:1}" \) -print0
}

# A build folder that was copied along with the project belongs to the place it was copied from.
is_ours() {
    [ ! -e "$1/CMakeCache.txt" ] ||
        [ "$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$1/CMakeCache.txt")" -ef "$root" ]
}

# What CMake keeps of the place, and the object files; other things that were made stay.
forget() {
    echo "$1 was configured for another place and is built anew." >&2
    find "$1" \( -name CMakeCache.txt -o -name CMakeFiles \) -prune -exec rm -r {} +
}

is_there() {
    case $1 in
    *.h | *.hpp) echo "#include <$1>" | c++ -E -x c++ - >/dev/null 2>&1 ;;
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
    mkdir -p "$root/build"
    exec 9>"$root/build/packages.lock"
    flock 9 # Another check may be at it.
    "${as_root[@]}" apt-get update -q || give_up "$*" "apt-get update failed, see above"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "$@" ||
        give_up "$*" "apt-get install failed, see above"
    exec 9>&-
}

give_up() {
    echo "$(basename "$0"): missing: $1 ($2)"
    exit 1
}
