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

// Shown to a screen reader alone.
export function spoken(text: string): HTMLElement {
    return element("span", { class: "spoken" }, text);
}

// Changes an element's content only where it differs, so that nothing is announced twice.
export function show(target: Element, ...children: Child[]): void {
    target.replaceChildren(...children);
}

export function byId(id: string): HTMLElement {
    const found = document.getElementById(id);
    if (found === null) {
        throw new Error(`the page has no element ${id}`);
    }
    return found;
}

// The region is empty at load; a text that comes again is announced again.
export function announce(text: string): void {
    const region = byId("announcement");
    region.textContent = "";
    window.setTimeout(() => {
        region.textContent = text;
    }, 50);
}

// As a file that the browser saves.
export function save(fileName: string, text: string): void {
    const address = URL.createObjectURL(new Blob([text], { type: "text/plain;charset=utf-8" }));
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
