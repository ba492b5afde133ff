// The ions with their charges, cations beside anions.
import { element, scrollBox } from "../shared/dom";
import type { Page } from "../shared/page";
import { typeset } from "../text/line";
import type { IonInfo } from "../types";
import { texts } from "../words/texts";

export function ionTables(ions: IonInfo[], page: Page): HTMLElement {
    const [cations, anions] = [ions.filter((ion) => ion.charge > 0), ions.filter((ion) => ion.charge < 0)];
    return scrollBox("halves box", texts.ionsTitle, half(texts.cations, cations, page), half(texts.anions, anions, page));
}

function half(title: string, ions: IonInfo[], page: Page): HTMLElement {
    const heads = [texts.ionName, texts.ionFormula].map((head) => element("th", { scope: "col" }, head));
    return element(
        "table",
        {},
        element("caption", {}, title),
        element("thead", {}, element("tr", {}, ...heads)),
        element("tbody", {}, ...ions.map((ion) => ionRow(ion, page))),
    );
}

function ionRow(ion: IonInfo, page: Page): HTMLElement {
    const size = Math.abs(ion.charge) === 1 ? "" : String(Math.abs(ion.charge));
    const charge = `${size}${ion.charge < 0 ? "-" : "+"}`;
    return element(
        "tr",
        {},
        element("th", { scope: "row" }, ion.name),
        element("td", {}, typeset([{ ion: ion.formula, charge }], page.settings)),
    );
}
