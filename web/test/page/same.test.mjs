// The page makes the same exercises as the native library, byte for byte.
//   NATIVE    the program that prints exercises, one a line: print_json exercises KINDS PAPER COUNT
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { after, before, test } from "node:test";
import { openChromium, openLesson, openPage } from "./support.mjs";

const paper = 7;
const count = 500;

let browser;
let page;
before(async () => {
    browser = await openChromium();
    page = await openPage(browser, "", { before: keepTexts });
});
after(() => browser.close());

// Keeps each exercise as the page's own script is about to read it.
function keepTexts() {
    const parse = JSON.parse;
    window.texts = [];
    JSON.parse = (text, ...more) => {
        if (text.includes('"prompt":')) {
            window.texts.push(text);
        }
        return parse(text, ...more);
    };
}

// Goes from exercise to exercise by their addresses.
async function visitAll({ paper, count, kinds }) {
    window.texts.length = 0;
    for (let number = 1; number <= count; ++number) {
        const shown = new Promise((done) => window.addEventListener("hashchange", done, { once: true }));
        location.hash = `#practice/${paper}/${number}/${kinds}`;
        await shown;
    }
    return window.texts;
}

function nativeTexts(kinds) {
    assert.ok(process.env.NATIVE, "NATIVE is to be the path of print_json");
    const lines = execFileSync(process.env.NATIVE, ["exercises", kinds, paper, count], { encoding: "utf8", maxBuffer: 1 << 28 });
    return lines.trimEnd().split("\n");
}

// From a little before the place where two texts part.
function difference(page = "", native = "") {
    const at = [...page].findIndex((character, place) => character !== native[place]);
    const from = Math.max(0, at - 60);
    return `the page has …${page.slice(from, at + 60)}…, the native library …${native.slice(from, at + 60)}…`;
}

for (const { kind, levels } of (await openLesson()).kinds()) {
    test(`${count} exercises of ${kind} at its levels are the native ones`, async () => {
        const kinds = levels.map((_, at) => `${kind}:${at + 1}`).join(",");
        const expected = nativeTexts(kinds);
        const made = await page.evaluate(visitAll, { paper, count, kinds });
        assert.equal(made.length, count);
        assert.equal(expected.length, count);
        const other = made.findIndex((text, at) => text !== expected[at]);
        assert.equal(other, -1, `exercise ${other + 1} of ${kinds}: ${difference(made[other], expected[other])}`);
        assert.equal(new Set(made.map((text) => JSON.parse(text).level)).size, levels.length);
        assert.deepEqual(page.problems, []);
    });
}
