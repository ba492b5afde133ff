// The pages of the present sheet, made in slices: a class set has dozens.
import { element, show } from "../shared/dom";
import { countOf } from "../shared/exercise-list";
import type { Page } from "../shared/page";
import { inSlices, type Work } from "../shared/slices";
import type { SheetRoute } from "../types";
import { texts } from "../words/texts";
import { leaves } from "./leaves";

export interface Preview {
    size: HTMLElement; // how many pages, and how many of them blank, in words
    stale: HTMLElement; // what is told while the pages are not of what stands in the form
    box: HTMLElement; // the pages
    show(route: SheetRoute, shown: (size: string) => void): void;
    setStale(isStale: boolean): void;
    reach(): void; // puts the focus there
    finish(): void; // at once what is left to do
}

export function previewOf(page: Page): Preview {
    const size = element("p", { class: "size" });
    const box = element("section", { class: "leaves", "aria-label": texts.pages, tabindex: 0 });
    const stale = element("p", { class: "stale", hidden: true }, texts.stalePages);
    let work: Work | null = null;

    return {
        size,
        stale,
        box,
        setStale(isStale) {
            stale.hidden = !isStale;
            box.classList.toggle("of-before", isStale);
        },
        reach() {
            box.focus({ preventScroll: true });
            size.scrollIntoView();
        },
        show(route, shown) {
            work?.stop();
            empty(box, size);
            work = fill(box, route, page, () => {
                show(size, sizeOf(route, box));
                shown(size.textContent ?? "");
            });
        },
        finish: () => work?.finish(),
    };
}

// Who goes to another view takes the box away.
function fill(box: HTMLElement, route: SheetRoute, page: Page, filled: () => void): Work {
    box.classList.remove("a4", "letter");
    box.classList.add(route.size.toLowerCase());
    const done = () => {
        box.style.removeProperty("min-block-size");
        filled();
    };
    return inSlices(leaves(box, route, page), () => box.isConnected, done);
}

// As high as before until it is filled again, so that nothing on the screen moves.
function empty(box: HTMLElement, size: HTMLElement): void {
    box.style.setProperty("min-block-size", `${box.offsetHeight}px`);
    if (box.contains(document.activeElement)) {
        box.focus({ preventScroll: true }); // Not lost with what goes now.
    }
    box.replaceChildren();
    show(size);
}

function sizeOf({ entries, versions }: SheetRoute, box: HTMLElement): string {
    return texts.sheetSize(countOf(entries), versions, box.childElementCount, box.querySelectorAll(".empty").length);
}
