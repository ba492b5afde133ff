// What the browser tests share. They run on the built file:
//   PAGE    the page, LESSON the module it was built with, whose answers the tests type
//   APPROVE=1    writes the approved texts anew instead of comparing with them
import assert from "node:assert/strict";
import { readFile, writeFile } from "node:fs/promises";
import { fileURLToPath, pathToFileURL } from "node:url";
import { chromium } from "playwright-core";

export const address = pathToFileURL(process.env.PAGE).href;

// Without these Chromium looks for its maker's services, which is none of the page's doing.
const quiet = ["--no-sandbox", "--disable-background-networking", "--disable-component-update", "--disable-sync", "--no-first-run"];

export function openChromium() {
    return chromium.launch({ executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium", args: quiet });
}

// A tab on an address of the page, once it shows something; what goes wrong in it fails the test.
export async function openPage(browser, hash = "", options = {}) {
    const context = options.context ?? (await browser.newContext({ viewport: { width: 800, height: 900 }, ...options }));
    const page = await context.newPage();
    page.problems = [];
    page.on("pageerror", (error) => page.problems.push(`error: ${error.message}`));
    page.on("console", (message) => message.type() === "error" && page.problems.push(`console: ${message.text()}`));
    page.on("request", (request) => request.url().split("#")[0] !== address && !request.url().startsWith("data:") && page.problems.push(`request: ${request.url()}`));
    if (options.before !== undefined) {
        await page.addInitScript(options.before);
    }
    await page.goto(address + hash);
    await page.locator("h1").waitFor();
    return page;
}

// Goes to another address of the page, as a link does.
export async function go(page, hash) {
    await page.evaluate((to) => (location.hash = to), hash);
    await page.waitForFunction((to) => location.hash === to, hash);
    await page.evaluate(() => new Promise((done) => setTimeout(done, 0)));
}

// The library in Node, for what a right answer is.
export async function openLesson() {
    const { instance } = await WebAssembly.instantiate(await readFile(process.env.LESSON), {});
    const module = instance.exports;
    module._initialize();
    const put = (text) => {
        const bytes = new TextEncoder().encode(`${text}\0`);
        const at = module.malloc(bytes.length);
        new Uint8Array(module.memory.buffer).set(bytes, at);
        return at;
    };
    const take = (at) => {
        const memory = new Uint8Array(module.memory.buffer);
        return new TextDecoder().decode(memory.subarray(at, memory.indexOf(0, at)));
    };
    const exerciseText = (paper, number, kind) => {
        const at = put(kind);
        const text = take(module.lesson_exercise(paper, number, at));
        module.free(at);
        return text;
    };
    const exportText = (paper, sheet, format) => {
        const [list, name] = [put(sheet), put(format)];
        const text = take(module.lesson_export(paper, list, name));
        [list, name].forEach(module.free);
        return text;
    };
    return {
        exerciseText,
        exportText,
        canExport: "lesson_export" in module,
        exercise: (paper, number, kind) => JSON.parse(exerciseText(paper, number, kind)),
        kinds: () => JSON.parse(take(module.lesson_kinds())),
    };
}

// An exercise of each form of answer, and one with each drawing.
export const samples = ["titration:3", "dilution:1", "concentration:3", "molar-mass:3", "compound-formula:3", "ion-formula:3", "solubility:1", "solubility:3", "neutralisation:3"];

// Types an answer into whatever field there is, or chooses the word.
export async function type(page, text) {
    const field = page.locator("#answer");
    if (await field.count()) {
        await field.fill(text);
    } else {
        await page.locator(`input[type=radio][name=answer][value="${text}"]`).check();
    }
}

export async function check(page) {
    await page.getByRole("button", { name: "Check" }).click();
}

// What opens and closes one of the panels below the exercise.
export function panel(page, title) {
    return page.locator("summary", { hasText: title });
}

// What the live region says, once it says something.
export async function announced(page) {
    await page.waitForFunction(() => document.getElementById("announcement").textContent !== "");
    return page.locator("#announcement").textContent();
}

export async function compareWithApproved(name, text) {
    const file = fileURLToPath(new URL(`approved/${name}`, import.meta.url));
    if (process.env.APPROVE === "1") {
        await writeFile(file, text);
    }
    assert.equal(text, await readFile(file, "utf8"));
}
