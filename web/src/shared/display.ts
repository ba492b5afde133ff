// How quantities and names are written.

import type { Settings } from "../types";
import { texts } from "../words/texts";
import { disclosure, element } from "./dom";
import type { Page } from "./page";
import * as storage from "./storage";

type Choices<Key extends keyof Settings> = { value: Settings[Key]; label: string }[];

// details
//   summary
//   div         a fieldset a choice
// `more` is asked for once the panel is opened.
export function displayPanel(page: Page, changed: () => void, more: () => HTMLElement[] = () => []): HTMLElement {
    const body = element("div");
    return disclosure(element("summary", {}, texts.display), body, () => body.replaceChildren(...groupsOf(page, changed), ...more()));
}

function groupsOf(page: Page, changed: () => void): HTMLElement[] {
    return [
        group(page, changed, "volume", texts.volume, [
            { value: "mL", label: "mL, L" },
            { value: "cm3", label: "cm³, dm³" },
        ]),
        group(page, changed, "per", texts.per, [
            { value: "slash", label: "mol/L, mol/dm³" },
            { value: "power", label: "mol L⁻¹, mol dm⁻³" },
        ]),
        group(page, changed, "decimal", texts.decimal, [
            { value: ".", label: texts.point },
            { value: ",", label: texts.comma },
        ]),
        group(page, changed, "names", texts.names, [
            { value: "british", label: `${texts.british}: aluminium, ethanoate` },
            { value: "american", label: `${texts.american}: aluminum, acetate` },
        ]),
    ];
}

// Of an exercise alone; a sheet has its own.
export function massesChoice(page: Page, changed: () => void): HTMLElement {
    const { shown, table } = texts.massesBelow;
    return group(page, changed, "masses", texts.masses, [
        { value: "shown", label: shown },
        { value: "table", label: table },
    ]);
}

function group<Key extends keyof Settings>(page: Page, changed: () => void, key: Key, legend: string, choices: Choices<Key>): HTMLElement {
    const labels = choices.map(({ value, label }) => {
        const radio = element("input", { type: "radio", name: `setting-${key}`, checked: page.settings[key] === value });
        radio.addEventListener("change", () => {
            page.settings = { ...page.settings, [key]: value };
            storage.keepSettings(page.settings);
            changed();
        });
        return element("label", { class: "word" }, radio, label);
    });
    return element("fieldset", {}, element("legend", {}, legend), ...labels);
}
