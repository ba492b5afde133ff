// The speed of the page, against what a browser takes for the same without it. What is compared is
// measured in turn, and the figure is a ratio, since the speed of a machine changes by the hour.
//   node bench.mjs PRACTICE.HTML LESSON.WASM
import { readFileSync, writeFileSync } from "node:fs";
import { resolve } from "node:path";
import { pathToFileURL } from "node:url";
import { gzipSync } from "node:zlib";

/** @typedef {import("playwright-core").Browser} Browser */
/** @typedef {import("playwright-core").Page} Page */

const [page, lesson] = process.argv.slice(2).map((path) => resolve(path));
process.env.PAGE = page;
process.env.LESSON = lesson;
const { address, openChromium, openLesson, type } = await import("./test/page/support.mjs");

const starts = 20;
const sets = 10;
// A browser that has just been started is still busy with itself.
const settling = 1500;
const marksEach = 30;
const slowed = 6;

const bytes = readFileSync(page);
const empty = resolve(page, "../empty.html");
const saved = resolve(page, "../saved.html");
const savedLaidOut = resolve(page, "../saved-laid-out.html");
writeFileSync(empty, emptyPage(bytes.length));

/** @typedef {{ first: number, last: number }} Frames Of the first page and of the last one. */

const median = (/** @type {number[]} */ numbers) => {
    const sorted = [...numbers].sort((a, b) => a - b);
    return (sorted[(sorted.length - 1) >> 1] + sorted[sorted.length >> 1]) / 2;
};

// One after the other, so many times, each with the number of the turn. Gives a list of times for each.
/**
 * @template Time
 * @param {number} turns
 * @param {((turn: number) => Promise<Time>)[]} works
 */
async function inTurn(turns, ...works) {
    const times = works.map(() => /** @type {Time[]} */ ([]));
    for (let turn = 0; turn < turns; ++turn) {
        for (const [at, work] of works.entries()) {
            times[at].push(await work(turn));
        }
    }
    return times;
}

// As large as the page, with a heading as the last thing and nothing to do.
function emptyPage(/** @type {number} */ size) {
    const [before, behind] = ["<!doctype html><meta charset=utf-8><title>Empty</title><!--", "--><body><main><h1>Empty</h1></main>"];
    return before + "x".repeat(size - before.length - behind.length) + behind;
}

// From the start of the navigation until a heading is there and a frame with it has been made. Told by a
// message of the page: to ask it would run scripts in it meanwhile.
function tellWhenShown() {
    const shown = () => requestAnimationFrame(() => setTimeout(() => console.info(performance.now())));
    const watch = new MutationObserver(() => {
        if (document.querySelector("h1") !== null) {
            watch.disconnect();
            shown();
        }
    });
    watch.observe(document, { childList: true, subtree: true });
}

async function coldStart(/** @type {string} */ url, slowness = 1) {
    const browser = await openChromium();
    const tab = await browser.newPage();
    await tab.addInitScript(tellWhenShown);
    const client = await tab.context().newCDPSession(tab);
    await client.send("Emulation.setCPUThrottlingRate", { rate: slowness });
    await tab.waitForTimeout(settling);
    const [message] = await Promise.all([tab.waitForEvent("console"), tab.goto(url)]);
    await browser.close();
    return Number(message.text());
}

// From the press of Check until the page is laid out with the mark.
function markTime() {
    /** @type {HTMLFormElement} */
    const form = document.querySelector(".exercise form");
    const from = performance.now();
    form.requestSubmit();
    document.body.getBoundingClientRect();
    return performance.now() - from;
}

async function marks(/** @type {Browser} */ browser, /** @type {string} */ kind, /** @type {import("./src/types").Exercise} */ exercise) {
    const tab = await browser.newPage();
    await tab.goto(`${address}#practice/1/1/${kind}`);
    await type(tab, exercise.slips[0]?.text ?? exercise.key.text);
    const times = [];
    for (let mark = 0; mark < marksEach; ++mark) {
        times.push(await tab.evaluate(markTime));
    }
    await tab.close();
    return times;
}

async function allMarks() {
    const library = await openLesson();
    const browser = await openChromium();
    /** @type {[string, number[]][]} */
    const byKind = [];
    for (const { kind } of library.kinds()) {
        byKind.push([kind, await marks(browser, kind, library.exercise(1, 1, kind))]);
    }
    await browser.close();
    return byKind;
}

// A class set, 30 papers of 20 exercises with their keys, each time another one.
const classSet = (/** @type {number} */ turn) => `#sheet/${1 + 30 * turn}/7*concentration,7*dilution,6*titration?versions=30`;

// From the press of a link to the sheet until a frame with its first pages has been made, and until one
// with its last. Between the two the page is busy; so what tells of the first comes before its timers.
function pressToFrames(/** @type {string} */ hash) {
    return new Promise((done) => {
        const from = performance.now();
        const main = document.querySelector("main");
        const times = /** @type {Frames} */ ({});
        const keep = (/** @type {keyof Frames} */ which) =>
            requestAnimationFrame(() => scheduler.postTask(() => (times[which] = performance.now() - from), { priority: "user-blocking" }));
        const opened = new MutationObserver(() => {
            opened.disconnect();
            const pages = new MutationObserver(lookForPages);
            pages.observe(main.querySelector(".leaves"), { childList: true });
            function lookForPages() {
                if (main.querySelector(".leaf:not(.measuring)") !== null) {
                    pages.disconnect();
                    keep("first");
                }
            }
            lookForPages(); // Some may be there already.
            new MutationObserver(() => {
                keep("last");
                requestAnimationFrame(() => setTimeout(() => done(times)));
            }).observe(main.querySelector(".size"), { childList: true });
        });
        opened.observe(main, { childList: true });
        location.hash = hash;
    });
}

// From the start of the navigation until the last page is there and a frame with it has been made.
function tellWhenLoaded() {
    document.addEventListener("DOMContentLoaded", () => requestAnimationFrame(() => setTimeout(() => console.info(performance.now()))));
}

// The pages as the browser has them once they are made, with the style that lays them out, and no script.
function finishedPages(/** @type {string} */ furtherStyle) {
    const style = document.querySelector("style").textContent + furtherStyle;
    const leaves = document.querySelector(".leaves").outerHTML;
    return `<!doctype html><html lang="en-GB" data-view="sheet"><meta charset="utf-8"><title>Saved</title><style>${style}</style><body><main>${leaves}</main></html>`;
}

// Each in a tab of its own, so that nothing is compiled or laid out yet.
async function inNewTab(/** @type {Browser} */ browser, /** @type {(tab: Page) => Promise<number | Frames>} */ work) {
    const tab = await browser.newPage();
    try {
        return await work(tab);
    } finally {
        await tab.close();
    }
}

async function madeSet(/** @type {Page} */ tab, /** @type {number} */ turn) {
    await tab.goto(`${address}#tables`);
    await tab.locator("h1").waitFor();
    await tab.waitForTimeout(settling);
    const times = await tab.evaluate(pressToFrames, classSet(turn));
    writeFileSync(saved, await tab.evaluate(finishedPages, ""));
    writeFileSync(savedLaidOut, await tab.evaluate(finishedPages, ".leaf { content-visibility: visible; }"));
    return times;
}

async function savedSet(/** @type {Page} */ tab, /** @type {string} */ file) {
    await tab.addInitScript(tellWhenLoaded);
    await tab.waitForTimeout(settling);
    const [message] = await Promise.all([tab.waitForEvent("console"), tab.goto(pathToFileURL(file).href)]);
    return Number(message.text());
}

// The page lays out each exercise once, to break its pages; so what it is compared with are the saved pages
// all laid out. Else a browser lays out the few in the window, and has little more to do than to read them.
/** @returns {Promise<[made: Frames[], loaded: number[], laidOut: number[]]>} */
async function classSets() {
    const browser = await openChromium();
    const times = await inTurn(
        sets,
        (/** @type {number} */ turn) => inNewTab(browser, (/** @type {Page} */ tab) => madeSet(tab, turn)),
        () => inNewTab(browser, (/** @type {Page} */ tab) => savedSet(tab, saved)),
        () => inNewTab(browser, (/** @type {Page} */ tab) => savedSet(tab, savedLaidOut)),
    );
    await browser.close();
    const [made, ...others] = times;
    return /** @type {[Frames[], number[], number[]]} */ ([made, ...others]);
}

function line(/** @type {string} */ what, /** @type {string} */ value) {
    console.log(`${what.padEnd(46)} ${value.padStart(10)}`);
}

function timeLine(/** @type {string} */ what, /** @type {number[]} */ times) {
    const [least, most] = [Math.min(...times), Math.max(...times)];
    line(what, `${median(times).toFixed(1)} ms   (${least.toFixed(1)} to ${most.toFixed(1)})`);
}

// Of the medians, so that no disturbed turn weighs; the turns of both were taken one after the other.
function ratioLine(/** @type {string} */ what, /** @type {number[]} */ times, /** @type {number[]} */ others, goal = "") {
    line(what, `${(median(times) / median(others)).toFixed(2)}      ${goal}`);
}

const hash = "#practice/1/1/titration";
const cold = await inTurn(
    starts,
    () => coldStart(address + hash),
    () => coldStart(pathToFileURL(empty).href),
    () => coldStart(address + hash, slowed),
);

line("practice.html", `${bytes.length} bytes`);
line("compressed by gzip", `${gzipSync(bytes, { level: 9 }).length} bytes`);
console.log(`\nCold starts, each in a browser that has just been started: medians of ${starts}, least and most in brackets`);
timeLine("first exercise on the screen", cold[0]);
timeLine("an empty file of the same size", cold[1]);
ratioLine("ratio", cold[0], cold[1], "(goal 2.5)");
timeLine(`first exercise, processor slowed ${slowed} times`, cold[2]);
console.log(`\nA mark: medians of ${marksEach}`);
for (const [kind, times] of await allMarks()) {
    timeLine(kind, times);
}

const [made, loaded, laidOut] = await classSets();
const [first, last] = [made.map((times) => times.first), made.map((times) => times.last)];
console.log(`\nA class set, 30 papers of 20 exercises with keys: medians of ${sets}`);
timeLine("its first pages on the screen", first);
timeLine("all its pages made, each laid out once", last);
timeLine("the same saved, loaded and laid out", laidOut);
ratioLine("ratio", last, laidOut, "(goal 2.0)");
timeLine("the same saved and loaded, a few laid out", loaded);
ratioLine("ratio", last, loaded);
