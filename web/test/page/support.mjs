// What the browser tests share. They run on the built file:
//   PAGE    the page, LESSON the module it was built with, whose answers the tests type
//   APPROVE=1    writes the approved texts anew instead of comparing with them
import assert from "node:assert/strict";
import { readFile, writeFile } from "node:fs/promises";
import { fileURLToPath, pathToFileURL } from "node:url";
import { chromium } from "playwright-core";
import { instantiate, textOf } from "../../../lesson/border/module.mjs";

/** @import { Argument, LessonFunction } from "../../../lesson/border/module.mjs" */
/** @import { Exercise, KindInfo, Span, Tables } from "../../src/types" */
/** @import { Browser } from "playwright-core" */
/** @typedef {import("playwright-core").Page & { problems?: string[], isShared?: boolean }} Page */
/**
 * @typedef {Parameters<Browser["newContext"]>[0] & {
 *     media?: "print" | "screen",
 *     context?: import("playwright-core").BrowserContext,
 *     before?: () => void,
 * }} Options `before` runs in the page in front of its own script.
 */

export const address = pathToFileURL(process.env.PAGE).href;

// Without these Chromium looks for its maker's services, which is none of the page's doing.
const quiet = ["--no-sandbox", "--disable-background-networking", "--disable-component-update", "--disable-sync", "--no-first-run"];

export function openChromium() {
    return chromium.launch({ executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium", args: quiet });
}

/** @type {Options} */
const usual = {
    viewport: { width: 800, height: 900 },
    colorScheme: "light",
    reducedMotion: "no-preference",
    forcedColors: "none",
    media: null,
};
/** @type {WeakMap<Browser, Page>} */
const shared = new WeakMap();

// An address of the page in a tab that remembers nothing, once it shows something. What goes wrong in it
// is in `problems`. The tests of a file take turns on one tab, since to start one costs more than a test
// does; with other options than `usual` has, such as a touch screen, it is a tab of its own.
export async function openPage(/** @type {Browser} */ browser, hash = "", /** @type {Options} */ options = {}) {
    const isOrdinary = Object.keys(options).every((name) => name in usual);
    return isOrdinary ? openShared(browser, hash, { ...usual, ...options }) : openOwn(browser, hash, options);
}

// What each test does with its tab at its end: nothing went wrong in it, and nothing was asked of any
// network.
export async function leave(/** @type {Page} */ page) {
    assert.deepEqual(page.problems, []);
    if (!page.isShared) {
        await page.context().close();
    }
}

async function openOwn(/** @type {Browser} */ browser, /** @type {string} */ hash, /** @type {Options} */ options) {
    const context = options.context ?? (await browser.newContext({ viewport: usual.viewport, ...options }));
    /** @type {Page} */
    const page = await context.newPage();
    watch(page);
    if (options.before !== undefined) {
        await page.addInitScript(options.before);
    }
    await page.goto(address + hash);
    await page.locator("h1").waitFor();
    return page;
}

async function openShared(/** @type {Browser} */ browser, /** @type {string} */ hash, /** @type {Options} */ { viewport, ...media }) {
    const page = shared.get(browser) ?? (await openOwn(browser, "", {}));
    shared.set(browser, page);
    page.isShared = true;
    page.problems = [];
    await page.setViewportSize(viewport);
    await page.emulateMedia(media);
    await page.evaluate(
        (to) => {
            localStorage.clear();
            sessionStorage.clear();
            history.replaceState(null, "", to);
        },
        hash === "" ? address : hash,
    );
    await page.reload();
    await page.locator("h1").waitFor();
    return page;
}

// The page itself, its empty icon, and a file that it made for the reader to save.
function isOwn(/** @type {string} */ url) {
    return url.split("#")[0] === address || url.startsWith("data:") || url.startsWith("blob:");
}

function watch(/** @type {Page} */ page) {
    page.problems = [];
    page.on("pageerror", (error) => page.problems.push(`error: ${error.message}`));
    page.on("console", (message) => message.type() === "error" && page.problems.push(`console: ${message.text()}`));
    page.on("request", (request) => !isOwn(request.url()) && page.problems.push(`request: ${request.url()}`));
}

// Does what leads to another address of the page, and comes back once the page shows it: the address
// itself is there earlier.
export async function moved(/** @type {Page} */ page, /** @type {() => Promise<unknown>} */ act) {
    await page.evaluate(() => {
        window.moved = new Promise((done) => addEventListener("hashchange", () => setTimeout(done, 0), { once: true }));
    });
    await act();
    await page.evaluate(() => window.moved);
}

// A browser tells its other processes what a page stored when that page is at rest, which takes a while
// on a busy machine.
function rest(/** @type {Page} */ page) {
    return page.evaluate(() => new Promise((done) => requestIdleCallback(() => setTimeout(done, 100), { timeout: 1000 })));
}

// Loads the page anew once what it stored is kept.
export async function reload(/** @type {Page} */ page) {
    await rest(page);
    await page.reload();
}

// Until two tabs of a window find the same on the device.
export async function agree(/** @type {Page} */ first, /** @type {Page} */ second) {
    const keptIn = (/** @type {Page} */ page) => page.evaluate(() => JSON.stringify(Object.entries(localStorage).sort()));
    for (let times = 0; times < 100 && (await keptIn(first)) !== (await keptIn(second)); ++times) {
        const page = [first, second][times % 2];
        await page.bringToFront();
        await rest(page);
    }
    assert.equal(await keptIn(first), await keptIn(second));
}

// Goes to an address of the page, as a link does: where it is there already, nothing comes.
export async function go(/** @type {Page} */ page, /** @type {string} */ hash) {
    await page.evaluate(
        (to) =>
            /** @type {Promise<void>} */ (
                new Promise((done) => {
                    const before = location.hash;
                    addEventListener("hashchange", () => setTimeout(done, 0), { once: true });
                    location.hash = to;
                    if (location.hash === before) {
                        done();
                    }
                })
            ),
        hash,
    );
}

// Until the line above the pages tells how many there are.
export const isMade = (/** @type {Page} */ page) => page.locator(".size:not(:empty)").waitFor();

// A sheet, once all its pages are there.
export async function openMadeSheet(/** @type {Browser} */ browser, /** @type {string} */ hash, options = {}) {
    const page = await openPage(browser, hash, options);
    await isMade(page);
    return page;
}

// The library in Node, for what a right answer is.
export async function openLesson() {
    const module = await instantiate(await readFile(process.env.LESSON));
    /** @type {(name: LessonFunction, ...args: Argument[]) => string} */
    const text = (name, ...args) => textOf(module, name, ...args);
    const exerciseText = (/** @type {number} */ paper, /** @type {number} */ number, /** @type {string} */ kind, writing = "") =>
        text("lesson_exercise", `${paper}/${number}/${kind}`, writing);
    return {
        exerciseText,
        exportText: (/** @type {number} */ paper, /** @type {string} */ sheet, /** @type {string} */ format) =>
            text("lesson_export", `${paper}/${sheet}`, format, null),
        /** @returns {Exercise} */
        exercise: (/** @type {number} */ paper, /** @type {number} */ number, /** @type {string} */ kind, writing = "") =>
            JSON.parse(exerciseText(paper, number, kind, writing)),
        /** @returns {KindInfo[]} */
        kinds: (writing = "") => JSON.parse(text("lesson_kinds", writing)),
        /** @returns {Tables} */
        tables: (writing = "") => JSON.parse(text("lesson_tables", writing)),
    };
}

// A line as plain text, as it is seen but for its blanks.
/** @type {(spans: Span[]) => string} */
export const plainOf = (spans) =>
    spans
        .map((span) =>
            "fraction" in span
                ? span.fraction.map(plainOf).join("")
                : "quantity" in span
                  ? `${span.quantity}${span.index ?? ""}${span.of === undefined ? "" : `(${span.of})`}`
                  : Object.values(span).join(""),
        )
        .join("");

// How everything is written that can be written in another way than usual, as the device keeps it and as the
// library is told.
export const otherSettings = { volume: "cm3", per: "power", decimal: ",", names: "american", masses: "shown" };
export const otherWriting = "en-US;decimal=,;volume=cm3;per=power";

// An exercise of each form of answer, and one with each drawing.
export const samples = [
    "titration:3",
    "dilution:1",
    "concentration:3",
    "molar-mass:3",
    "compound-formula:3",
    "ion-formula:3",
    "solubility:1",
    "solubility:3",
    "neutralisation:3",
];

// Types an answer into whatever field there is, or chooses the word.
export async function type(/** @type {Page} */ page, /** @type {string} */ text) {
    const field = page.locator("#answer");
    if (await field.count()) {
        await field.fill(text);
    } else {
        await page.locator(`input[type=radio][name=answer][value="${text}"]`).check();
    }
}

export async function check(/** @type {Page} */ page) {
    await page.getByRole("button", { name: "Check" }).click();
}

// What opens and closes one of the panels below the exercise.
export function panel(/** @type {Page} */ page, /** @type {string} */ title) {
    return page.locator("summary", { hasText: title });
}

// What opens and closes the choice of exercises.
export function opener(/** @type {Page} */ page) {
    return page.getByRole("button", { name: "Choose exercises" });
}

// What the live region says, once it says something.
export async function announced(/** @type {Page} */ page) {
    await page.waitForFunction(() => document.getElementById("announcement").textContent !== "");
    return page.locator("#announcement").textContent();
}

export async function compareWithApproved(/** @type {string} */ name, /** @type {string} */ text) {
    const file = fileURLToPath(new URL(`approved/${name}`, import.meta.url));
    if (process.env.APPROVE === "1") {
        await writeFile(file, text);
    }
    assert.equal(text, await readFile(file, "utf8"));
}
