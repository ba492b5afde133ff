// The page makes the same exercises as the native library, byte for byte.
//   NATIVE    the program that prints exercises, one a line: print_json exercises KINDS PAPER COUNT
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { after, before, test } from "node:test";
import { openChromium, openLesson, openPage } from "./support.mjs";

/** @typedef {{ paper: number, count: number, kinds: string }} Course From exercise 1 of a paper to this many. */
/** @import { Browser } from "playwright-core" */

const paper = 7;
const countEach = 500;
const shownOnes = 100;

const kinds = (await openLesson()).kinds().flatMap(({ kind, levels }) => levels.map((_, at) => `${kind}:${at + 1}`));
const all = kinds.join(",");
const count = countEach * kinds.length;

/** @type {Browser} */
let browser;
/** @type {import("./support.mjs").Page} */
let page;
/** @type {string[]} */
let native;
before(async () => {
    assert.ok(process.env.NATIVE, "NATIVE is to be the path of print_json");
    native = execFileSync(process.env.NATIVE, ["exercises", all, String(paper), String(count)], { encoding: "utf8", maxBuffer: 1 << 28 })
        .trimEnd()
        .split("\n");
    browser = await openChromium();
    page = await openPage(browser, "", { before: listen });
});
after(() => browser.close());

// Keeps the module that the page instantiates, and each exercise as its script is about to read it.
function listen() {
    const { instantiate } = WebAssembly;
    const keep = async (/** @type {BufferSource} */ bytes) => {
        const made = await instantiate(bytes);
        window.lesson = /** @type {import("../../../lesson/border/module.mjs").LessonModule} */ (
            /** @type {unknown} */ (made.instance.exports)
        );
        return made;
    };
    Object.assign(WebAssembly, { instantiate: keep });
    const { parse } = JSON;
    window.read = [];
    JSON.parse = (text, ...more) => {
        if (text.includes('"prompt":')) {
            window.read.push(text);
        }
        return parse(text, ...more);
    };
}

function makeAll(/** @type {Course} */ { paper, count, kinds }) {
    const module = window.lesson;
    return Array.from({ length: count }, (_, made) => {
        const bytes = new TextEncoder().encode(`${paper}/${made + 1}/${kinds}\0`);
        const at = module.malloc(bytes.length);
        new Uint8Array(module.memory.buffer).set(bytes, at);
        const text = module.lesson_exercise(at, 0);
        module.free(at);
        const memory = new Uint8Array(module.memory.buffer);
        return new TextDecoder().decode(memory.subarray(text, memory.indexOf(0, text)));
    });
}

// Goes from exercise to exercise by their addresses.
async function visit(/** @type {Course} */ { paper, count, kinds }) {
    window.read.length = 0;
    for (let number = 1; number <= count; ++number) {
        const shown = new Promise((done) => window.addEventListener("hashchange", done, { once: true }));
        location.hash = `#practice/${paper}/${number}/${kinds}`;
        await shown;
    }
    return window.read;
}

// From a little before the place where two texts part.
function difference(page = "", native = "") {
    const at = [...page].findIndex((character, place) => character !== native[place]);
    const from = Math.max(0, at - 60);
    return `the page has …${page.slice(from, at + 60)}…, the native library …${native.slice(from, at + 60)}…`;
}

function assertSame(/** @type {string[]} */ made, /** @type {string[]} */ expected) {
    assert.equal(made.length, expected.length);
    const other = made.findIndex((/** @type {string} */ text, at) => text !== expected[at]);
    assert.equal(other, -1, `exercise ${other + 1} of ${all}: ${difference(made[other], expected[other])}`);
}

test(`${countEach} exercises of each kind and level, made by the module of the page, are the native ones`, async () => {
    assert.equal(native.length, count);
    const found = native.map((/** @type {string} */ text) => JSON.parse(text)).map(({ kind, level }) => `${kind}:${level}`);
    for (const kind of kinds) {
        assert.equal(found.filter((one) => one === kind).length, countEach, kind);
    }
    assertSame(await page.evaluate(makeAll, { paper, count, kinds: all }), native);
});

test(`what the page shows at ${shownOnes} addresses is made of the native exercises`, async () => {
    assertSame(await page.evaluate(visit, { paper, count: shownOnes, kinds: all }), native.slice(0, shownOnes));
    assert.deepEqual(page.problems, []);
});
