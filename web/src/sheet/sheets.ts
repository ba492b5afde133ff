// Sheets to print: what is chosen, and beside or below it the pages as they come out of the printer.

import { displayPanel } from "../shared/display";
import { announce, button, element, show } from "../shared/dom";
import type { Page } from "../shared/page";
import { type Problem, problemMarks } from "../shared/problems";
import type { SheetRoute } from "../types";
import { texts } from "../words/texts";
import { type FilesPanel, filesPanel } from "./files";
import { type SheetForm, sheetForm } from "./form";
import { focusTool, pickTools } from "./pick-tools";
import { type Pick, picked } from "./picks";
import { type Preview, previewOf } from "./preview";

const pause = 150; // milliseconds behind the last key press, so that nothing is made for half a number
const patience = 600; // more, so that nothing is called wrong that is still being typed

interface Work {
    page: Page;
    present: SheetRoute; // the last one without a mistake, which is shown and printed
    isPicked: boolean; // by the last change
    timer: number; // 0 where nothing waits
    form: SheetForm;
    preview: Preview;
    files: FilesPanel;
    message: HTMLElement;
    markProblems(problems: Problem[]): void;
}

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
    const work = workOf(opened, page);
    const heading = element("h1", { tabindex: -1 }, texts.sheetsTitle);
    // Set, not added, so that no listener outlives its view by more than one.
    window.onbeforeprint = () => finish(work);
    main.replaceChildren(chosenOf(work, heading), outcomeOf(work));
    work.preview.show(opened, () => putTools(work));
    return () => heading.focus();
}

function workOf(opened: SheetRoute, page: Page): Work {
    const message = element("p", { class: "message", role: "alert" });
    const work: Work = {
        page,
        present: opened,
        isPicked: false,
        timer: 0,
        form: sheetForm(opened, page.kinds, () => later(work, pause, changed)),
        preview: previewOf(page),
        files: filesPanel(page, opened, (sentence) => show(message, sentence)),
        message,
        markProblems: problemMarks(),
    };
    return work;
}

function chosenOf(work: Work, heading: HTMLElement): HTMLElement {
    const title = element("div", { class: "title-line" }, heading, button(texts.pages, work.preview.reach, { class: "to-pages" }));
    const display = element(
        "aside",
        { "aria-label": texts.display },
        displayPanel(work.page, () => restyle(work)),
    );
    return element("article", { class: "sheets" }, title, work.form.element, display);
}

function outcomeOf({ preview, files, message }: Work): HTMLElement {
    const actions = element(
        "div",
        { class: "help" },
        button(texts.printIt, () => window.print(), { class: "main" }),
        files.element,
    );
    const pickHint = element("p", { class: "hint pick-hint" }, texts.pickHint);
    return element("div", { class: "outcome" }, actions, message, preview.size, preview.stale, pickHint, preview.box);
}

function later(work: Work, milliseconds: number, then: (work: Work) => void): void {
    window.clearTimeout(work.timer);
    work.timer = window.setTimeout(() => then(work), milliseconds);
}

// What is wrong stays untold while it may still become right.
function changed(work: Work): void {
    if ("problems" in work.form.read()) {
        later(work, patience, settle);
    } else {
        settle(work);
    }
}

// What is printed stays what is shown, the last sheet without a mistake.
function settle(work: Work): void {
    work.timer = 0;
    if (!work.form.element.isConnected) {
        return; // The reader has gone to another view meanwhile.
    }
    const reading = work.form.read();
    show(work.message);
    work.markProblems("problems" in reading ? reading.problems : []);
    work.preview.setStale("problems" in reading);
    if ("route" in reading) {
        turnTo(work, reading.route, false);
        work.preview.show(work.present, (size) => isMade(work, size));
    }
}

// What was in a field can be put there again. Another exercise is called back by Back alone.
function turnTo(work: Work, route: SheetRoute, byPick: boolean): void {
    const { page, isPicked } = work;
    work.present = route;
    (byPick || isPicked ? page.step : page.stay)(route);
    work.isPicked = byPick;
    work.files.update(route);
}

function restyle(work: Work): void {
    work.form.rename(work.page.kinds);
    settle(work);
    if ("problems" in work.form.read()) {
        work.preview.show(work.present, (size) => isMade(work, size));
    }
}

function isMade(work: Work, size: string): void {
    putTools(work);
    announce(size);
}

function putTools(work: Work): void {
    pickTools(work.preview.box, work.present, (at, pick) => change(work, at, pick));
}

// What is wrong in the form meanwhile stays so.
function change(work: Work, at: number, pick: Pick): void {
    const entries = picked(work.present.entries, at, pick);
    if (entries === null) {
        return;
    }
    work.form.pick(entries);
    turnTo(work, { ...work.present, entries }, true);
    work.preview.show(work.present, () => {
        putTools(work);
        announce(texts.pickedNow[pick](at + 1));
        if (isWaiting(work)) {
            focusTool(work.preview.box, pick === "another" ? at : pick === "up" ? at - 1 : at + 1, pick);
        }
    });
}

// The reader has not gone on with the keyboard while the pages were made.
function isWaiting({ preview }: Work): boolean {
    return document.activeElement === preview.box || document.activeElement === document.body;
}

// However printing was asked for: what is still being typed or made belongs to what is printed.
function finish(work: Work): void {
    if (work.timer !== 0) {
        window.clearTimeout(work.timer);
        settle(work);
    }
    work.preview.finish();
}
