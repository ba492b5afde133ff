#!/usr/bin/env bash
# install_test.sh BUILD_FOLDER [LAUNCHER...]
#
# Installs the build with a prefix, and with a prefix below a staging folder: every file is where the
# system expects it, nothing else is there, the documents link to what is there, and the program
# starts.
set -euo pipefail

build=$1
launcher=("${@:2}")

place=$(mktemp -d)
trap 'rm -r "$place"' EXIT

expected() {
    cat <<'END'
bin/chempractice
share/doc/chempractice/CHANGELOG.md
share/doc/chempractice/LICENSE
share/doc/chempractice/NOTICES.md
share/doc/chempractice/README.md
share/doc/chempractice/docs/dialogue.svg
share/doc/chempractice/docs/lesson.md
share/doc/chempractice/docs/page.png
share/doc/chempractice/docs/peculiarities.md
share/doc/chempractice/docs/sheet.png
share/man/man6/chempractice.6
END
}

# links DOCUMENT: the files that it links to, but nothing on other machines.
links() {
    { grep -oE '\]\([^):#]+[)#]' "$1" || true; } | sed "s|^](|$(dirname "$1")/|; s|.\$||"
}

expect_links_lead_to_files() {
    local document link
    while IFS= read -r document; do
        while IFS= read -r link; do
            [ -f "$link" ] || { echo "$document: no $link" && return 1; }
        done < <(links "$document")
    done < <(find "$1" -name '*.md')
}

# expect_installed FOLDER WHERE: FOLDER below WHERE holds all files that WHERE holds.
expect_installed() {
    expected | sed "s|^|$1/|" | sort >"$place/expected"
    (cd "$place" && find "$2" -type f | sort) >"$place/found"
    diff "$place/expected" "$place/found"
    expect_links_lead_to_files "$place/$1"

    echo 'Chemical calculations practice' >"$place/expected"
    { "${launcher[@]}" "$place/$1/bin/chempractice" || true; } </dev/null 2>&1 | head -n 1 >"$place/found"
    diff "$place/expected" "$place/found"
}

cmake --install "$build" --prefix "$place/own" >/dev/null
expect_installed own own

DESTDIR=$place/stage cmake --install "$build" --prefix /opt/practice >/dev/null
expect_installed stage/opt/practice stage
