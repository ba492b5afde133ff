// The titres of a titration, the rough one first.
import { element } from "../shared/dom";
import { typesetLine } from "../text/line";
import { localNumber } from "../text/units";
import type { GivenQuantity, Settings } from "../types";
import { texts } from "../words/texts";

// table
//   caption   V in mL
//   tr        one for each titration, side by side: rough, 1, 2, 3. They wrap where the text is large,
//             and so their roles have to be told.
export function titresOf({ titres }: GivenQuantity, unit: string, settings: Settings): HTMLElement[] {
    if (titres === undefined) {
        return [];
    }
    const caption = element("caption", {}, ...typesetLine([{ quantity: "V" }, { text: texts.drawings.inUnit }, { unit }], settings));
    const rows = titres.map((titre, at) =>
        element(
            "tr",
            { role: "row" },
            element("th", { scope: "row", role: "rowheader" }, at === 0 ? texts.drawings.rough : String(at)),
            element("td", { role: "cell" }, localNumber(titre.toFixed(2), settings)),
        ),
    );
    return [element("table", { class: "titres", role: "table" }, caption, element("tbody", { role: "rowgroup" }, ...rows))];
}
