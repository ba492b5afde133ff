// What a printed file holds, read back by poppler: its pages, their size, the words and where they are.
import { execFileSync } from "node:child_process";

const millimetre = 72 / 25.4;
/** @typedef {{ left: number, top: number, right: number, bottom: number, text: string }} Line A word, or a line of them. */

/** @type {(tool: string, args: string[], input: Buffer) => Buffer} */
const read = (tool, args, input) => execFileSync(tool, args, { input, maxBuffer: 1 << 28 });

// The size of the pages in millimetres, "210 × 297"; fails where they are not all alike.
export function pageSize(/** @type {Buffer} */ pdf) {
    const sizes = [
        ...read("pdfinfo", ["-l", "-1", "-"], pdf)
            .toString()
            .matchAll(/size: +([\d.]+) x ([\d.]+)/g),
    ];
    const found = new Set(
        sizes.map(([, width, height]) => `${Math.round(Number(width) / millimetre)} × ${Math.round(Number(height) / millimetre)}`),
    );
    return [...found].join(", ");
}

// A page: its lines from top to bottom, each with its `text` without blanks, its `top` and `bottom` in
// millimetres from the upper edge, and its `left` and `right` from the left one. Small and raised or
// lowered words belong to the line that they are at; what stands in two columns is two lines.
export function pagesOf(/** @type {Buffer} */ pdf) {
    const pages = read("pdftotext", ["-bbox", "-", "-"], pdf).toString().split("<page ").slice(1);
    return pages.map((page) =>
        linesOf([...page.matchAll(/xMin="([\d.-]+)" yMin="([\d.-]+)" xMax="([\d.-]+)" yMax="([\d.-]+)">(.*?)<\/word>/g)]),
    );
}

/** @returns {Line[]} */
function linesOf(/** @type {RegExpMatchArray[]} */ words) {
    const placed = words.map(([, left, top, right, bottom, text]) => ({
        left: Number(left) / millimetre,
        top: Number(top) / millimetre,
        right: Number(right) / millimetre,
        bottom: Number(bottom) / millimetre,
        text: plain(text),
    }));
    /** @type {{ top: number, bottom: number, words: Line[] }[]} */
    const lines = [];
    for (const word of placed.sort((one, other) => height(other) - height(one))) {
        const line = lines.find((one) => overlap(one, word) > 0.4 * height(word));
        if (line === undefined) {
            lines.push({ top: word.top, bottom: word.bottom, words: [word] });
        } else {
            line.words.push(word);
        }
    }
    return lines
        .sort((one, other) => one.top - other.top)
        .flatMap(({ top, bottom, words: inside }) => {
            return columnsOf(inside.sort((one, other) => one.left - other.left)).map((inOrder) => {
                const right = Math.max(...inOrder.map((word) => word.right));
                return { top, bottom, left: inOrder[0].left, right, text: inOrder.map((word) => word.text).join("") };
            });
        });
}

// A number of an exercise behind a gap begins another line, that of the second column.
function columnsOf(/** @type {Line[]} */ words) {
    /** @type {Line[][]} */
    const columns = [];
    words.forEach((word, at) => {
        const isNext = at > 0 && /^\d+\.$/.test(word.text) && word.left - words[at - 1].right > 2;
        if (at === 0 || isNext) {
            columns.push([]);
        }
        columns.at(-1).push(word);
    });
    return columns;
}

/** @typedef {{ top: number, bottom: number }} Extent */
const height = (/** @type {Extent} */ { top, bottom }) => bottom - top;
const overlap = (/** @type {Extent} */ one, /** @type {Extent} */ other) =>
    Math.min(one.bottom, other.bottom) - Math.max(one.top, other.top);

/** @type {Record<string, string>} */
const entities = { "&lt;": "<", "&gt;": ">", "&quot;": '"', "&apos;": "'", "&amp;": "&" };

// Without blanks, and with letters that were drawn as one taken apart.
export function plain(/** @type {string} */ text) {
    return text
        .replace(/&\w+;/g, (entity) => entities[entity] ?? entity)
        .replace(/\s/g, "")
        .replace(/[\uFB00-\uFB06]/g, (letters) => letters.normalize("NFKC"));
}

// Fractions are read in another order from paper, so letters are compared in theirs.
export const letters = (/** @type {string} */ text) => [...plain(text)].sort().join("");

// The text of each page of the preview as it is seen, the numbers of its lists included. Runs in the page.
export function leafTexts() {
    return [...document.querySelectorAll(".leaf")].map((leaf) => {
        const seen = /** @type {Element} */ (leaf.cloneNode(true));
        seen.querySelectorAll(".spoken, .picks").forEach((one) => one.remove());
        seen.querySelectorAll("ol").forEach((list) => [...list.children].forEach((item, at) => item.prepend(`${list.start + at}.`)));
        return seen.textContent;
    });
}

// Each page as grey values, 0 black and 255 white.
export function shadesOf(/** @type {Buffer} */ pdf) {
    const pictures = read("pdftoppm", ["-r", "40", "-gray", "-"], pdf);
    /** @type {Buffer[]} */
    const pages = [];
    for (let at = 0; at < pictures.length; ) {
        const header = /^P5\s(\d+)\s(\d+)\s255\s/.exec(pictures.toString("latin1", at, at + 40));
        const size = Number(header[1]) * Number(header[2]);
        pages.push(pictures.subarray(at + header[0].length, at + header[0].length + size));
        at += header[0].length + size;
    }
    return pages;
}
