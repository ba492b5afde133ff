// The mark: the library's sentence, with a word in front where it does not say so itself.
import { element, show } from "../dom";
import { seenSentence, spokenSentence } from "../sentence";
import { wholeSpoken } from "../spans";
import { texts } from "../texts";
import type { Mark } from "../types";
import type { Page } from "./page";

export function showMark(line: HTMLElement, mark: Mark | null, page: Page): void {
    line.hidden = mark === null;
    if (mark === null) {
        return;
    }
    line.dataset["verdict"] = mark.verdict;
    const word = element("strong", {}, texts.verdicts[mark.verdict] ?? "");
    const seen = element("span", { "aria-hidden": "true" }, word, " ", seenSentence(mark.sentence, page.settings, page.names));
    show(line, seen, wholeSpoken(spokenMark(mark, page)));
}

export function spokenMark(mark: Mark, page: Page): string {
    const word = mark.verdict === "correct" ? "" : (texts.verdicts[mark.verdict] ?? "");
    return `${word} ${spokenSentence(mark.sentence, page.settings, page.names)}`.trim();
}

// Once all is shown there is no button any more that could be pressed for a step.
export function withoutStep(mark: Mark): Mark {
    return { ...mark, sentence: mark.sentence.replace(texts.orPressStep, "") };
}
