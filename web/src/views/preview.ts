// The pages of the present sheet, made in slices: a class set has dozens.
import { announce, element, show } from "../dom";
import { countOf } from "../sheet";
import { inSlices, type Work } from "../slices";
import { texts } from "../texts";
import type { SheetRoute } from "../types";
import { leaves } from "./leaves";
import type { Page } from "./page";

export interface Preview {
    size: HTMLElement; // how many pages, in words
    box: HTMLElement; // the pages
    show(route: SheetRoute, isNews: boolean): void;
    finish(): void; // at once what is left to do
    clear(): void;
}

export function previewOf(page: Page): Preview {
    const size = element("p", { class: "size" });
    const box = element("section", { class: "leaves", "aria-label": texts.pages, tabindex: 0 });
    let work: Work | null = null;

    function clear(): void {
        work?.stop();
        show(box);
        show(size);
    }

    return {
        size,
        box,
        show(route, isNews) {
            clear();
            box.className = `leaves ${route.size.toLowerCase()}`;
            const done = () => {
                show(size, texts.sheetSize(countOf(route.entries), route.versions, box.childElementCount));
                if (isNews) {
                    announce(size.textContent ?? "");
                }
            };
            // Who goes to another view takes the box away.
            work = inSlices(leaves(box, route, page), () => box.isConnected, done);
        },
        finish: () => work?.finish(),
        clear,
    };
}
