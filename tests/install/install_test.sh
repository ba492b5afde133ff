#!/usr/bin/env bash
# install_test.sh BUILD_FOLDER [LAUNCHER...]
#
# Installs the build with a prefix, and with a prefix below a staging folder: every file is where the
# system expects it, nothing else is there, and the program starts.
set -euo pipefail

build=$1
launcher=("${@:2}")
source=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)

place=$(mktemp -d)
trap 'rm -r "$place"' EXIT

expected() {
    cat <<'END'
bin/chempractice
share/doc/chempractice/CHANGELOG.md
share/doc/chempractice/LICENSE
share/doc/chempractice/README.md
share/man/man6/chempractice.6
END
    (cd "$source" && find docs -type f -printf 'share/doc/chempractice/%p\n')
}

# expect_installed FOLDER WHERE: FOLDER below WHERE holds all files that WHERE holds.
expect_installed() {
    expected | sed "s|^|$1/|" | sort >"$place/expected"
    (cd "$place" && find "$2" -type f | sort) >"$place/found"
    diff "$place/expected" "$place/found"

    echo 'Chemical calculations practice' >"$place/expected"
    { "${launcher[@]}" "$place/$1/bin/chempractice" || true; } </dev/null 2>&1 | head -n 1 >"$place/found"
    diff "$place/expected" "$place/found"
}

cmake --install "$build" --prefix "$place/own" >/dev/null
expect_installed own own

DESTDIR=$place/stage cmake --install "$build" --prefix /opt/practice >/dev/null
expect_installed stage/opt/practice stage
