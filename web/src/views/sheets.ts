// Sheets to print: what is chosen, and beside or below it the pages as they come out of the printer.
import { announce, button, element, show } from "../dom";
import { type Pick, picked } from "../picks";
import { texts } from "../texts";
import type { SheetRoute } from "../types";
import { displayPanel } from "./display";
import { filesPanel } from "./files";
import type { Page } from "./page";
import { focusTool, pickTools } from "./pick-tools";
import { previewOf } from "./preview";
import { problemMarks } from "./problems";
import { sheetForm } from "./sheet-form";

const pause = 150; // milliseconds behind the last key press, so that nothing is made for half a number
const patience = 600; // more, so that nothing is called wrong that is still being typed

// article.sheets
//   div.title        h1, Pages, which leads there in a narrow window
//   form             what is chosen
//   aside            how it is written
// div.outcome
//   div.help         Print, the files
//   p.message        why there is no file
//   p.size
//   p.stale          while something in the form is wrong
//   p.hint           how an exercise is replaced or moved
//   section.leaves   the pages
// Null for kinds that the library does not know.
export function showSheets(main: HTMLElement, opened: SheetRoute, page: Page): (() => void) | null {
    if (!opened.entries.every((entry) => page.kinds.some((info) => info.kind === entry.kind))) {
        return null;
    }
    let timer = 0;
    let present = opened;
    let isPicked = false; // by the last change
    const heading = element("h1", { tabindex: -1 }, texts.sheetsTitle);
    const message = element("p", { class: "message", role: "alert" });
    const preview = previewOf(page);
    const files = filesPanel(page, opened, (sentence) => show(message, sentence));
    const form = sheetForm(opened, page.kinds, () => later(pause, changed));
    const markProblems = problemMarks();

    function later(milliseconds: number, work: () => void): void {
        window.clearTimeout(timer);
        timer = window.setTimeout(work, milliseconds);
    }

    // What is wrong stays untold while it may still become right.
    function changed(): void {
        if ("problems" in form.read()) {
            later(patience, settle);
        } else {
            settle();
        }
    }

    // What is printed stays what is shown, the last sheet without a mistake.
    function settle(): void {
        timer = 0;
        if (!form.element.isConnected) {
            return; // The reader has gone to another view meanwhile.
        }
        const reading = form.read();
        show(message);
        markProblems("problems" in reading ? reading.problems : []);
        preview.setStale("problems" in reading);
        if ("route" in reading) {
            present = reading.route;
            keep(false);
            files.update(present);
            preview.show(present, isMade);
        }
    }

    // What was in a field can be put there again. Another exercise is called back by Back alone.
    function keep(byPick: boolean): void {
        (byPick || isPicked ? page.step : page.stay)(present);
        isPicked = byPick;
    }

    function restyle(): void {
        settle();
        if ("problems" in form.read()) {
            preview.show(present, isMade);
        }
    }

    function isMade(size: string): void {
        putTools();
        announce(size);
    }

    function putTools(): void {
        pickTools(preview.box, present, change);
    }

    // What is wrong in the form meanwhile stays so.
    function change(at: number, pick: Pick): void {
        const entries = picked(present.entries, at, pick);
        if (entries === null) {
            return;
        }
        present = { ...present, entries };
        form.pick(entries);
        keep(true);
        files.update(present);
        preview.show(present, () => {
            putTools();
            announce(texts.pickedNow[pick](at + 1));
            focusTool(preview.box, pick === "another" ? at : pick === "up" ? at - 1 : at + 1, pick);
        });
    }

    // However printing was asked for: what is still being typed or made belongs to what is printed.
    // Set, not added, so that no listener outlives its view by more than one.
    window.onbeforeprint = () => {
        if (timer !== 0) {
            window.clearTimeout(timer);
            settle();
        }
        preview.finish();
    };

    const title = element("div", { class: "title-line" }, heading, button(texts.pages, preview.reach, { class: "to-pages" }));
    const display = element("aside", { "aria-label": texts.display }, displayPanel(page, restyle));
    const actions = element("div", { class: "help" }, button(texts.printIt, () => window.print(), { class: "main" }), files.element);
    const pickHint = element("p", { class: "hint pick-hint" }, texts.pickHint);
    show(
        main,
        element("article", { class: "sheets" }, title, form.element, display),
        element("div", { class: "outcome" }, actions, message, preview.size, preview.stale, pickHint, preview.box),
    );
    preview.show(opened, () => putTools());
    return () => heading.focus();
}
