// What a printed file holds, read back by poppler: its pages, their size, the words and where they are.
import { execFileSync } from "node:child_process";

const millimetre = 72 / 25.4;
const read = (tool, args, input, encoding) => execFileSync(tool, args, { input, encoding, maxBuffer: 1 << 28 });

// The size of the pages in millimetres, "210 × 297"; fails where they are not all alike.
export function pageSize(pdf) {
    const sizes = [...read("pdfinfo", ["-l", "-1", "-"], pdf, "utf8").matchAll(/size: +([\d.]+) x ([\d.]+)/g)];
    const found = new Set(sizes.map(([, width, height]) => `${Math.round(width / millimetre)} × ${Math.round(height / millimetre)}`));
    return [...found].join(", ");
}

// A page: its lines from top to bottom, each with its `text` without blanks, its `top` and `bottom` in
// millimetres from the upper edge, and its `left` and `right` from the left one. Small and raised or
// lowered words belong to the line that they are at; what stands in two columns is two lines.
export function pagesOf(pdf) {
    const pages = read("pdftotext", ["-bbox", "-", "-"], pdf, "utf8").split("<page ").slice(1);
    return pages.map((page) =>
        linesOf([...page.matchAll(/xMin="([\d.-]+)" yMin="([\d.-]+)" xMax="([\d.-]+)" yMax="([\d.-]+)">(.*?)<\/word>/g)]),
    );
}

function linesOf(words) {
    const placed = words.map(([, left, top, right, bottom, text]) => ({
        left: left / millimetre,
        top: top / millimetre,
        right: right / millimetre,
        bottom: bottom / millimetre,
        text: plain(text),
    }));
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
function columnsOf(words) {
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

const height = ({ top, bottom }) => bottom - top;
const overlap = (one, other) => Math.min(one.bottom, other.bottom) - Math.max(one.top, other.top);

const entities = { "&lt;": "<", "&gt;": ">", "&quot;": '"', "&apos;": "'", "&amp;": "&" };

// Without blanks, and with letters that were drawn as one taken apart.
export function plain(text) {
    return text
        .replace(/&\w+;/g, (entity) => entities[entity] ?? entity)
        .replace(/\s/g, "")
        .replace(/[\uFB00-\uFB06]/g, (letters) => letters.normalize("NFKC"));
}

// Fractions are read in another order from paper, so letters are compared in theirs.
export const letters = (text) => [...plain(text)].sort().join("");

// The text of each page of the preview as it is seen, the numbers of its lists included. Runs in the page.
export function leafTexts() {
    return [...document.querySelectorAll(".leaf")].map((leaf) => {
        const seen = leaf.cloneNode(true);
        seen.querySelectorAll(".spoken, .picks").forEach((one) => one.remove());
        seen.querySelectorAll("ol").forEach((list) => [...list.children].forEach((item, at) => item.prepend(`${list.start + at}.`)));
        return seen.textContent;
    });
}

// Each page as grey values, 0 black and 255 white.
export function shadesOf(pdf) {
    const pictures = read("pdftoppm", ["-r", "40", "-gray", "-"], pdf, "buffer");
    const pages = [];
    for (let at = 0; at < pictures.length; ) {
        const header = /^P5\s(\d+)\s(\d+)\s255\s/.exec(pictures.toString("latin1", at, at + 40));
        const size = header[1] * header[2];
        pages.push(pictures.subarray(at + header[0].length, at + header[0].length + size));
        at += header[0].length + size;
    }
    return pages;
}
