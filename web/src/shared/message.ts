// Where an address leads nowhere: a plain sentence and a way on.
import { button, element } from "./dom";

export function showMessage(main: HTMLElement, message: string, label: string, goOn: () => void): () => void {
    const heading = element("h1", { tabindex: -1 }, message);
    main.replaceChildren(element("article", { class: "notice" }, heading, button(label, goOn, { class: "main" })));
    return () => heading.focus();
}
