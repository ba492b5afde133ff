#!/usr/bin/env bash
# Every line that the README, its picture and the manual page show of a dialogue stands in one of the
# approved transcripts, which hold real ones.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

# shellcheck disable=SC2016 # The backticks are Markdown's.
shown() {
    sed -n '/^```text/,/^```$/ { /^```/!p }' README.md
    sed -n 's|^<text.* xml:space="preserve">\(.*\)</text>|\1|p' docs/dialogue.svg | sed 's/&gt;/>/g'
    sed -n '/^\$ chempractice/,/^\.Ed/ { /^\$/d; /^\.Ed/d; p }' man/chempractice.6
}

# What the person at the terminal adds: the menu number, the cursor, the interrupt.
typed() {
    printf '%s\n' 0 3 █ ^C
}

lines=$(shown | grep -c .)
echo "$lines lines shown"
[ "$lines" -ge 45 ]
! shown | grep -vxF -f <(typed; cat tests/process/approved/kind*.txt)
