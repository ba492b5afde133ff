// The number of a paper, with a way to another one.
import { announce, button, element } from "../shared/dom";
import { isPaper, randomPaper } from "../shared/paper";
import type { Problem } from "../shared/problems";
import { texts } from "../words/texts";

export interface PaperField {
    element: HTMLElement;
    read(): number;
    problems(): Problem[];
}

// div.paper
//   label
//   div.field    input, New paper
//   p#paper-hint
export function paperField(present: number): PaperField {
    const input = element("input", {
        id: "paper",
        type: "text",
        inputmode: "numeric",
        value: present,
        autocomplete: "off",
        "aria-describedby": "paper-hint",
    });
    const anew = button(texts.newPaper, () => {
        input.value = String(randomPaper());
        input.dispatchEvent(new Event("input", { bubbles: true }));
        announce(texts.paper(Number(input.value)));
    });
    const box = element(
        "div",
        { class: "paper asked" },
        element("label", { for: "paper" }, texts.choosePaper),
        element("div", { class: "field" }, input, anew),
        element("p", { id: "paper-hint", class: "hint" }, texts.choosePaperHint),
    );
    const problems = () => (isPaper(input.value.trim()) ? [] : [{ field: input, sentence: texts.wrongPaper }]);
    return { element: box, read: () => Number(input.value), problems };
}
