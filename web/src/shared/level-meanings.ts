// What each level of a kind asks for, in one line. A screen reader has it with each field.

import type { KindInfo } from "../types";
import { element } from "./dom";

export function meaningsOf({ levels }: KindInfo): HTMLElement {
    const parts = levels.flatMap((text, at) => [
        element("strong", {}, String(at + 1)),
        `\u00A0${text}${at < levels.length - 1 ? "; " : ""}`,
    ]);
    return element("p", { class: "meanings", "aria-hidden": "true" }, ...parts);
}
