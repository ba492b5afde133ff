// The exercises of a sheet elsewhere, a version at a time: as files for other programs, and as a set to practise.
import { addressOf } from "../address";
import { linkPanel } from "../practice/link";
import { button, element, save } from "../shared/dom";
import { listOf } from "../shared/exercise-list";
import type { Page } from "../shared/page";
import type { ExportFormat, SheetRoute } from "../types";
import { texts } from "../words/texts";
import { papersOf, practiceOf } from "./sheet";

const endings: Record<ExportFormat, string> = { moodle: "xml", anki: "txt" };

export interface FilesPanel {
    element: HTMLElement;
    update(route: SheetRoute): void;
}

// div.files
//   label, select    which version, where there are several
//   button, button
//   div.practise     a to the set, and the link to it
// Says by `complain` why there is no file, and nothing where there is one.
export function filesPanel(page: Page, opened: SheetRoute, complain: (sentence: string) => void): FilesPanel {
    let present = opened;
    const version = element("select", { id: "version" });
    const which = element("div", { class: "which-version" }, element("label", { for: "version" }, texts.fileOf), version);
    const practise = element("div", { class: "practise" });

    function link(): void {
        const set = practiceOf(present, Number(version.value));
        const panel = linkPanel(set, texts.copyPractice, "");
        practise.replaceChildren(element("a", { href: addressOf(set) }, texts.practiseSheet), panel);
    }

    function update(route: SheetRoute): void {
        const chosen = version.value;
        const papers = papersOf(route);
        const options = papers.map((paper, at) =>
            element("option", { value: paper, selected: String(paper) === chosen }, texts.paperAndVersion(paper, at + 1)),
        );
        version.replaceChildren(...options);
        which.hidden = papers.length === 1;
        present = route;
        link();
    }

    version.addEventListener("change", link);
    update(opened);
    const saveAs = (format: ExportFormat) => download(page, Number(version.value), present, format, complain);
    const buttons = [button(texts.moodle, () => saveAs("moodle")), button(texts.anki, () => saveAs("anki"))];
    return { element: element("div", { class: "files" }, which, ...buttons, practise), update };
}

function download(page: Page, paper: number, { entries }: SheetRoute, format: ExportFormat, complain: (sentence: string) => void): void {
    const result = page.lesson.exported(paper, listOf(entries), format);
    complain("error" in result ? result.error : "");
    if ("file" in result) {
        save(`paper-${paper}-${format}.${endings[format]}`, result.file);
    }
}
