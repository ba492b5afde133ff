// The data that the exercises use, read from the library.
import { element } from "../shared/dom";
import type { Page } from "../shared/page";
import { texts } from "../words/texts";
import { elementsWithSearch } from "./elements";
import { ionTables } from "./ions";
import { pairsNotAsked } from "./pairs";
import { solubility } from "./solubility";

export function showTables(main: HTMLElement, page: Page): () => void {
    const tables = page.lesson.tables();
    const heading = element("h1", { tabindex: -1 }, texts.tablesTitle);
    main.replaceChildren(
        element(
            "article",
            { class: "tables" },
            heading,
            section(texts.elementsTitle, "", elementsWithSearch(tables.elements, page)),
            section(texts.ionsTitle, "", ionTables(tables.ions, page)),
            section(texts.solubilityTitle, texts.rulesNote, solubility(tables, page)),
            section(texts.differTitle, texts.differNote, pairsNotAsked(tables.pairs, page)),
        ),
    );
    return () => heading.focus();
}

function section(title: string, note: string, body: Node): HTMLElement {
    const notes = note === "" ? [] : [element("p", { class: "hint" }, note)];
    return element("section", {}, element("h2", {}, title), ...notes, body);
}
