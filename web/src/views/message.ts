// Where an address leads nowhere: a plain sentence and a way on.
import { button, element, show } from "../dom";
import { texts } from "../texts";

export function showMessage(main: HTMLElement, message: string, goOn: () => void): () => void {
    const heading = element("h1", { tabindex: -1 }, message);
    show(main, element("article", { class: "notice" }, heading, button(texts.startAnew, goOn, { class: "main" })));
    return () => heading.focus();
}
