// The signs to insert into an answer, as buttons.
import { button, element, spoken } from "../shared/dom";
import { signed } from "../text/pieces";
import type { Ask } from "../types";
import { texts } from "../words/texts";

const signs: Partial<Record<Ask["form"], string[]>> = {
    formula: ["(", ")", "."],
    ion: ["^+", "^2+", "^3+", "^-", "^2-", "^3-"],
    equation: ["->", "+", "(", ")"],
    solubility: ["(", ")"],
};

// div.keys
export function answerKeys(ask: Ask, input: HTMLInputElement, update: () => void): HTMLElement {
    const buttons = (signs[ask.form] ?? []).map((sign) => keyOf(sign, input, update));
    return element("div", { class: "keys", role: "group", "aria-label": texts.keysFor, hidden: buttons.length === 0 }, ...buttons);
}

function keyOf(sign: string, input: HTMLInputElement, update: () => void): HTMLElement {
    const press = () => {
        input.setRangeText(sign, input.selectionStart ?? 0, input.selectionEnd ?? 0, "end");
        input.focus();
        update();
    };
    const made = button("", press);
    made.replaceChildren(element("span", { "aria-hidden": "true" }, signOf(sign)), spoken(texts.keyNames[sign] ?? sign));
    // The field keeps the focus, and a tablet its keyboard.
    made.addEventListener("pointerdown", (event) => event.preventDefault());
    return made;
}

// As it is printed: "->" is an arrow, "^2-" a charge.
function signOf(sign: string): Node | string {
    return sign.startsWith("^") ? element("sup", {}, signed(sign.slice(1))) : sign.replace("->", "→");
}
