#!/usr/bin/env bash
# Every piece of a dialogue that the documents, their picture and the manual page show stands in an
# approved transcript as a whole: question, answer and what is between them, line behind line. So it
# is what the program prints for the draws of that question.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

# The blocks of a text between lines of two patterns, each with a form feed behind it. The patterns
# come by the environment, since awks differ in what `-v` makes of a backslash.
blocks() {
    from=$1 to=$2 awk '
        !inside && $0 ~ ENVIRON["from"] { inside = 1; next }
        inside && $0 ~ ENVIRON["to"] { inside = 0; printf "\f"; next }
        inside'
}

texts() {
    blocks '^```text$' '^```$' <"$1"
}

# Those among a document's texts that are dialogues.
dialogues() {
    texts "$1" | awk 'BEGIN { RS = ORS = "\f" } /Press enter to continue|ANSWER:/'
}

picture() {
    sed -n 's|^<text.* xml:space="preserve">\(.*\)</text>|\1|p' docs/dialogue.svg |
        sed 's/&gt;/>/g; s/&lt;/</g; s/&amp;/\&/g'
    printf '\f'
}

manual() {
    blocks '^\$ chempractice' '^\.Ed' <man/chempractice.6
}

# Takes out what the person adds on the screen: the menu number, enter, the cursor, the interrupt.
printed() {
    sed -e '/^0\. Random$/ { n; /^[0-9]*$/d; }' \
        -e '/^Press enter to continue\.\.\.$/ { n; /^$/d; }' -e '/^█$/d; /^\^C$/d'
}

# Looks for each block of its input. Where $2 is "some" there has to be one.
check() {
    local block found=0
    while IFS= read -r -d $'\f' block; do
        found=$((found + 1))
        block=$(printed <<<"$block")
        [[ $transcripts == *$'\n'"$block"$'\n'* ]] || fail "$1: no transcript has this:"$'\n'"$block"
    done
    echo "$1: $found"
    [ "$found" -gt 0 ] || [ "$2" = any ] || fail "$1 shows no dialogue"
}

fail() {
    echo "$1"
    failed=1
}

failed=0
transcripts=$'\n'$(cat tests/process/approved/kind*.txt)$'\n'
check README.md some < <(texts README.md)
check docs/dialogue.svg some < <(picture)
check man/chempractice.6 some < <(manual)
for document in docs/*.md; do
    check "$document" any < <(dialogues "$document")
done
exit $failed
