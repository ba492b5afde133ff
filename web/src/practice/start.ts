// The first visit: what the page is, and a way into it; for who was here before, the way back.
import { addressOf } from "../address";
import { button, element, show } from "../shared/dom";
import type { Page } from "../shared/page";
import { randomPaper } from "../shared/paper";
import type { PracticeRoute } from "../types";
import { texts } from "../words/texts";
import { beginWith, fieldsOf, lengthAndStart, openerOf } from "./choice";
import { inWords } from "./chosen-kinds";

// What is known of the reader: where practice was left in this tab, and which kinds were chosen last.
export interface Past {
    left: PracticeRoute | null;
    kinds: string;
}

// article.start
//   h1
//   p.lead
//   button        Go on with exercise 3
//   form
//   p …           for whom the other views are
export function showStart(main: HTMLElement, past: Past, page: Page): () => void {
    const heading = element("h1", { tabindex: -1 }, texts.title);
    main.replaceChildren(
        element(
            "article",
            { class: "start" },
            heading,
            element("p", { class: "lead" }, texts.lead),
            ...(past.left === null ? [] : [goOn(past.left, page)]),
            startForm(past, page),
            linkTo("#sheet", texts.forTeachers),
            linkTo("#tables", texts.forLookingUp),
        ),
    );
    return () => heading.focus();
}

function goOn(left: PracticeRoute, page: Page): HTMLElement {
    const isOver = left.set > 0 && left.number > left.set;
    return button(isOver ? texts.goToSummary(left.paper) : texts.goOn(left.number, left.paper), () => page.go(addressOf(left)), {
        class: "main",
    });
}

// form
//   div.paper
//   div.help      Start, Choose exercises
//   p.hint        what Start begins with
//   div.choice    kinds, how many, and then Start
function startForm(past: Past, page: Page): HTMLElement {
    const fields = fieldsOf({ kinds: past.kinds, set: 0, paper: randomPaper() }, page);
    const startAt = () => element("button", { type: "submit", class: past.left === null ? "main" : undefined }, texts.start);
    const start = startAt();
    const present = element("p", { class: "hint" });
    const panel = element("div", { class: "choice" }, fields.kinds.element, lengthAndStart(fields.length, startAt()));
    const opener = openerOf(panel, (isOpen) => {
        start.hidden = isOpen; // It stands behind what it starts.
        present.hidden = isOpen;
        show(present, startsWith(fields.kinds.read(), page));
    });
    const row = element("div", { class: "help" }, start, opener.button);
    const form = element("form", { autocomplete: "off" }, fields.paper.element, row, present, panel);
    // What is wrong is shown, even where it was put away.
    beginWith(form, fields, page, () => fields.kinds.problems().length > 0 && opener.open(true));
    return form;
}

function startsWith(kinds: string, page: Page): string {
    return kinds === "" ? texts.chooseNone : texts.startsWith(inWords(kinds, page.kinds));
}

function linkTo(href: string, { before, link, behind }: { before: string; link: string; behind: string }): HTMLElement {
    return element("p", { class: "elsewhere" }, before, element("a", { href }, link), behind);
}
