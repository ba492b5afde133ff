#!/usr/bin/env bash
# embedding_test.sh
#
# Inside another project this one leaves that project's choices alone: it sets no build type and no
# switch for tests, adds no tests, and installs nothing.
set -euo pipefail

source=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
place=$(mktemp -d)
trap 'rm -r "$place"' EXIT

cat >"$place/CMakeLists.txt" <<END
cmake_minimum_required(VERSION 3.25)
project(classroom LANGUAGES CXX)
enable_testing()
add_subdirectory("$source" chempractice)
END

# expect_none WHAT TEXT
expect_none() {
    if [ -n "$2" ]; then
        printf '%s:\n%s\n' "$1" "$2"
        exit 1
    fi
}

# cached REGEX: what CMake has stored for the whole project under such names, but empty values.
cached() {
    grep -E "^($1):[A-Z]+=." "$place/build/CMakeCache.txt"
}

env -u CMAKE_BUILD_TYPE cmake -S "$place" -B "$place/build" >/dev/null
expect_none "choices" "$(cached 'CMAKE_BUILD_TYPE|BUILD_TESTING|CMAKE_COMPILE_WARNING_AS_ERROR')"
expect_none "tests" "$(ctest --test-dir "$place/build" -N | grep 'Test *#')"
DESTDIR=$place/stage cmake --install "$place/build" >/dev/null
expect_none "installed files" "$(find "$place/stage" -type f 2>/dev/null)"
