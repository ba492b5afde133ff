// Sheets to print: what is chosen above, and below it the pages as they come out of the printer.
import { button, element, show } from "../dom";
import { texts } from "../texts";
import type { SheetRoute } from "../types";
import { displayPanel } from "./display";
import { filesPanel } from "./files";
import type { Page } from "./page";
import { previewOf } from "./preview";
import { sheetForm } from "./sheet-form";

const pause = 150; // milliseconds behind the last key press, so that nothing is made for half a number

// article
//   h1
//   form             what is chosen
//   aside            how it is written
//   div.help         Print, the files
//   p.message        what is wrong in the form, or why there is no file
//   p.size
// section.leaves     the pages
// Null for kinds that the library does not know.
export function showSheets(main: HTMLElement, opened: SheetRoute, page: Page): (() => void) | null {
    if (!opened.entries.every((entry) => page.kinds.some((info) => info.kind === entry.kind))) {
        return null;
    }
    let timer = 0;
    const heading = element("h1", { tabindex: -1 }, texts.sheetsTitle);
    const message = element("p", { class: "message", role: "alert" });
    const preview = previewOf(page);
    const files = filesPanel(page, opened, (sentence) => show(message, sentence));
    const form = sheetForm(opened, page.kinds, () => {
        window.clearTimeout(timer);
        timer = window.setTimeout(changed, pause);
    });
    const actions = element("div", { class: "help" }, button(texts.printIt, () => window.print(), { class: "main" }), files.element);

    function changed(): void {
        timer = 0;
        if (!form.element.isConnected) {
            return; // The reader has gone to another view meanwhile.
        }
        const reading = form.read();
        const complaint = "complaint" in reading ? reading.complaint : "";
        show(message, complaint);
        actions.hidden = complaint !== "";
        if ("complaint" in reading) {
            preview.clear();
            return;
        }
        page.stay(reading.route);
        files.update(reading.route);
        preview.show(reading.route, true);
    }

    // However printing was asked for: what is still being typed or made belongs to what is printed.
    // Set, not added, so that no listener outlives its view by more than one.
    window.onbeforeprint = () => {
        if (timer !== 0) {
            window.clearTimeout(timer);
            changed();
        }
        preview.finish();
    };

    const display = element("aside", { "aria-label": texts.display }, displayPanel(page, changed));
    show(main, element("article", { class: "sheets" }, heading, form.element, display, actions, message, preview.size), preview.box);
    preview.show(opened, false);
    return () => heading.focus();
}
