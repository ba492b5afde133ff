// What the page holds of the work of others, and under which licences.
import { element } from "./shared/dom";
import { unpacked } from "./shared/unpacked";
import { texts } from "./words/texts";

// article.notices
//   h1
//   h2, p …
export function showNotices(main: HTMLElement, packed: string): () => void {
    const heading = element("h1", { tabindex: -1 }, texts.notices);
    const article = element("article", { class: "notices" }, heading);
    main.replaceChildren(article);
    void unpacked(packed).then((bytes) => article.append(...elementsOf(new TextDecoder().decode(bytes))));
    return () => heading.focus();
}

// Of NOTICES.md, whose first line is the page's heading.
function elementsOf(text: string): HTMLElement[] {
    const [, ...paragraphs] = text.replaceAll("`", "").split(/\n{2,}/);
    return paragraphs.map((one) => (one.startsWith("## ") ? element("h2", {}, one.slice(3)) : element("p", {}, one.trim())));
}
