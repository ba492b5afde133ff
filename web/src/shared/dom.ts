// Elements, and nothing of markup: every text becomes a text node.

type Child = Node | string;
type Attributes = Record<string, string | number | boolean | undefined>;

export function element<Tag extends keyof HTMLElementTagNameMap>(
    tag: Tag,
    attributes: Attributes = {},
    ...children: Child[]
): HTMLElementTagNameMap[Tag] {
    const made = document.createElement(tag);
    setAttributes(made, attributes);
    made.append(...children);
    return made;
}

export function svg(tag: string, attributes: Attributes = {}, ...children: Child[]): SVGElement {
    const made = document.createElementNS("http://www.w3.org/2000/svg", tag);
    setAttributes(made, attributes);
    made.append(...children);
    return made;
}

export function button(label: string, press: () => void, attributes: Attributes = {}): HTMLButtonElement {
    const made = element("button", { type: "button", ...attributes }, label);
    made.addEventListener("click", press);
    return made;
}

// Closed at first, and filled as it opens: few readers open it, and the others do not wait for it. At each
// press of its head, so that what it tells is of now; and where a search in the page opens it.
export function disclosure(summary: HTMLElement, body: HTMLElement, fill: () => void): HTMLDetailsElement {
    const made = element("details", {}, summary, body);
    summary.addEventListener("click", fill);
    made.addEventListener("toggle", () => body.hasChildNodes() || fill());
    return made;
}

// What is too wide for a narrow window or large text scrolls in a box of its own, which the keyboard
// reaches.
export function scrollBox(kind: string, label: string, ...children: Child[]): HTMLElement {
    return element("div", { class: kind, role: "region", "aria-label": label, tabindex: 0 }, ...children);
}

// Shown to a screen reader alone.
export function spoken(text: string): HTMLElement {
    return element("span", { class: "spoken" }, text);
}

// Changes an element's content only where it differs, so that nothing is announced twice and the focus stays.
// For what is new and has nothing to press but links: of equal nodes the one that is there stays.
export function show(target: Element, ...children: Child[]): void {
    const made = document.createDocumentFragment();
    made.append(...children);
    const [present, wanted] = [[...target.childNodes], [...made.childNodes]];
    present.slice(wanted.length).forEach((node) => node.remove());
    target.append(...wanted.slice(present.length));
    present.forEach((node, at) => {
        const other = wanted[at];
        if (other !== undefined && !node.isEqualNode(other)) {
            node.replaceWith(other);
        }
    });
}

export function byId(id: string): HTMLElement {
    const found = document.getElementById(id);
    if (found === null) {
        throw new Error(`the page has no element ${id}`);
    }
    return found;
}

let waiting = 0;

// The region is empty at load; a text that comes again is announced again. The last one counts.
export function announce(text: string): void {
    const region = byId("announcement");
    region.textContent = "";
    window.clearTimeout(waiting);
    waiting = window.setTimeout(() => {
        region.textContent = text;
    }, 50);
}

// An element, or a line of one.
export type Place = Pick<Element, "getBoundingClientRect">;

// The last line of what is seen of an element.
export function lastLineOf(element: Element): Place {
    const range = document.createRange();
    range.selectNodeContents(element.querySelector("[aria-hidden]") ?? element);
    return { getBoundingClientRect: () => [...range.getClientRects()].pop() ?? element.getBoundingClientRect() };
}

// A finger's screen, where a field that has the focus brings up a keyboard.
export function isTouched(): boolean {
    return window.matchMedia("(pointer: coarse)").matches;
}

// So that nothing stands beside the column of text; as in drawing.css.
export function isNarrow(): boolean {
    return !window.matchMedia("(min-width: 46em)").matches;
}

// Scrolls as little as shows everything from the first element to the last; where that is too much,
// the beginning of it.
export function bringIntoView(first: Place, last: Place): void {
    const above = first.getBoundingClientRect().top - margin - seenWindow().top;
    const below = last.getBoundingClientRect().bottom + margin - seenWindow().bottom;
    if (above < 0 || below > 0) {
        window.scrollBy({ top: above < 0 ? above : Math.min(above, below) });
    }
}

export function fitIntoView(first: Place, last: Place): boolean {
    const { top, bottom } = seenWindow();
    return last.getBoundingClientRect().bottom - first.getBoundingClientRect().top + 2 * margin <= bottom - top;
}

const margin = 8;

// What a tablet's keyboard leaves of the window, where the browser tells it.
function seenWindow(): { top: number; bottom: number } {
    const seen = window.visualViewport;
    return seen === null ? { top: 0, bottom: window.innerHeight } : { top: seen.offsetTop, bottom: seen.offsetTop + seen.height };
}

// As a file that the browser saves.
export function save(fileName: string, text: string): void {
    const type = fileName.endsWith(".xml") ? "application/xml" : "text/plain";
    const address = URL.createObjectURL(new Blob([text], { type: `${type};charset=utf-8` }));
    element("a", { href: address, download: fileName }).click();
    window.setTimeout(() => URL.revokeObjectURL(address), 1000);
}

function setAttributes(target: Element, attributes: Attributes): void {
    for (const [key, value] of Object.entries(attributes)) {
        if (value === true) {
            target.setAttribute(key, "");
        } else if (value !== undefined && value !== false) {
            target.setAttribute(key, String(value));
        }
    }
}
