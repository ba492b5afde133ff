// Which exercises: kinds and levels as a set, the paper, how many.
import { addressOf } from "../address";
import { button, element, show } from "../dom";
import { texts } from "../texts";
import type { KindInfo, PracticeRoute } from "../types";
import { type Page, randomPaper } from "./page";

const lengths = [0, 5, 10, 20];
const usualLevel = "2";

// details
//   summary
//   form    a row of three boxes a kind, the paper, how many, Start
export function choicePanel(route: PracticeRoute, page: Page): HTMLElement {
    const chosen = new Set(entriesOf(route.kinds, page.kinds));
    const boxes = page.kinds.map((info) => kindBoxes(info, chosen));
    const paper = element("input", { id: "paper", type: "text", inputmode: "numeric", value: route.paper, "aria-describedby": "paper-hint", autocomplete: "off" });
    const length = lengthField(route.set);
    const message = element("p", { class: "message", role: "alert" });
    const form = element(
        "form",
        { class: "choice", autocomplete: "off" },
        element("fieldset", {}, element("legend", {}, texts.chooseKinds), ...boxes),
        element("label", { for: "paper" }, texts.choosePaper),
        element("div", { class: "field" }, paper, button(texts.newPaper, () => (paper.value = String(randomPaper())))),
        element("p", { id: "paper-hint", class: "hint" }, texts.choosePaperHint),
        element("label", { for: "length" }, texts.chooseLength),
        length,
        message,
        element("button", { type: "submit", class: "main" }, texts.start),
    );
    form.addEventListener("submit", (event) => {
        event.preventDefault();
        const kinds = [...form.querySelectorAll<HTMLInputElement>("input[type=checkbox]:checked")].map((box) => box.value);
        const complaint = kinds.length === 0 ? texts.chooseNone : isPaper(paper.value) ? "" : texts.wrongPaper;
        show(message, complaint);
        if (complaint === "") {
            page.go(addressOf({ view: "practice", paper: Number(paper.value), number: 1, kinds: shortest(kinds, page.kinds), set: Number(length.value) }));
        }
    });
    return element("details", {}, element("summary", {}, texts.chooseTitle), form);
}

function isPaper(text: string): boolean {
    return /^\s*[1-9]\d{0,5}\s*$/.test(text);
}

// The set of an address, level by level: "mixed" is level 2 of each kind.
function entriesOf(kinds: string, all: KindInfo[]): string[] {
    const entries = kinds === "mixed" ? all.map((info) => info.kind) : kinds.split(",");
    return entries.map((entry) => (entry.includes(":") ? entry : `${entry}:${usualLevel}`));
}

function shortest(entries: string[], all: KindInfo[]): string {
    const isMixed = entries.length === all.length && entries.every((entry) => entry.endsWith(`:${usualLevel}`));
    return isMixed ? "mixed" : entries.map((entry) => entry.replace(`:${usualLevel}`, "")).join(",");
}

function kindBoxes(info: KindInfo, chosen: ReadonlySet<string>): HTMLElement {
    const levels = info.levels.map((text, at) => {
        const value = `${info.kind}:${at + 1}`;
        const box = element("input", { type: "checkbox", value, checked: chosen.has(value) });
        return element("label", { class: "level" }, box, `${at + 1}. ${text}`);
    });
    return element("fieldset", { class: "kind" }, element("legend", {}, info.title), ...levels);
}

function lengthField(present: number): HTMLSelectElement {
    const offered = lengths.includes(present) ? lengths : [...lengths, present];
    const options = offered.map((count) =>
        element("option", { value: count, selected: count === present }, count === 0 ? texts.endless : texts.setOf(count)),
    );
    return element("select", { id: "length" }, ...options);
}
