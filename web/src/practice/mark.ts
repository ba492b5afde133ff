// The mark: the library's sentence, with a word in front where it does not say so itself.
import { element, show } from "../shared/dom";
import type { Page } from "../shared/page";
import { wholeSpoken } from "../text/line";
import { seenOf, speech } from "../text/seen-and-spoken";
import type { Mark } from "../types";
import { texts } from "../words/texts";

// p.mark
//   span         what is seen: .marked where it was given for another text than stands in the field, the word,
//                the sentence
//   .spoken
export function showMark(line: HTMLElement, mark: Mark | null, of: string | null, page: Page): void {
    line.hidden = mark === null;
    line.classList.toggle("stale", of !== null);
    if (mark === null) {
        return;
    }
    line.dataset.verdict = mark.verdict;
    const word = element("strong", {}, texts.verdicts[mark.verdict] ?? "");
    const text = of === null ? [] : [element("span", { class: "marked" }, texts.markOf(of))];
    const seen = element("span", { "aria-hidden": "true" }, ...text, word, " ", seenOf(mark.sentence));
    const said = `${of === null ? "" : `${texts.markOf(of)}: `}${spokenMark(mark, page)}`;
    show(line, seen, wholeSpoken(said));
}

export function spokenMark(mark: Mark, page: Page): string {
    const word = mark.verdict === "correct" ? "" : (texts.verdicts[mark.verdict] ?? "");
    return `${word} ${speech(mark.sentence, page.settings)}`.trim();
}

// With a way on, where the library knows nothing of the mistake.
export function withStep(mark: Mark): Mark {
    return mark.verdict === "wrong" ? { ...mark, sentence: [...mark.sentence, { text: ` ${texts.orStep}` }] } : mark;
}
