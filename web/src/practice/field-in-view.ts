import { bringIntoView, fitIntoView, lastLineOf } from "../shared/dom";

// While the reader is typing: the field with its preview, the button that checks it, and, where there is
// room, the last line of the question. Where what stands in the field is marked, the mark as well: a keyboard
// that comes up again behind Check would cover it.
export function keepFieldInView(): void {
    const focused = document.activeElement;
    const form = focused?.closest(".exercise > form");
    const article = form?.parentElement;
    const prompt = article?.querySelector(".prompt");
    if (focused && form && prompt) {
        const mark = article?.querySelector(".mark:not([hidden]):not(.stale)");
        const last = mark && fitIntoView(focused, mark) ? mark : form;
        const first = [lastLineOf(prompt), form].find((place) => fitIntoView(place, last)) ?? focused;
        bringIntoView(first, last);
    }
}
