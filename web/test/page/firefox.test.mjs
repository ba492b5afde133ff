// In Firefox, from a file: the first exercise of each kind, a mark, a sheet, the tables.
import assert from "node:assert/strict";
import { existsSync } from "node:fs";
import { after, before, test } from "node:test";
import puppeteer from "puppeteer-core";
import { leafTexts, letters, pageSize, pagesOf } from "./pdf.mjs";
import { address, leave, openChromium, openLesson, openPage } from "./support.mjs";

const executablePath = process.env.FIREFOX ?? "/usr/bin/firefox-esr";
const skip = existsSync(executablePath) ? false : `there is no ${executablePath}`;

const lesson = await openLesson();
/** @type {import("puppeteer-core").Browser} */
let browser;
/** @type {import("puppeteer-core").Page} */
let page;
/** @type {string[]} */
const problems = [];
before(async () => {
    if (skip) {
        return;
    }
    browser = await puppeteer.launch({ browser: "firefox", executablePath, headless: true });
    page = await browser.newPage();
    page.on("pageerror", (error) => problems.push(`error: ${error}`));
    page.on(
        "request",
        (request) =>
            request.url().split("#")[0] !== address && !request.url().startsWith("data:") && problems.push(`request: ${request.url()}`),
    );
});
after(() => browser?.close());

// Loads the page anew: from one address of a file to another it would only go on.
async function open(/** @type {string} */ hash) {
    await page.goto("about:blank");
    await page.goto(address + hash);
    await page.waitForSelector("h1");
}

const textOf = (/** @type {string} */ selector) => page.$eval(selector, (element) => element.textContent);

for (const { kind, title } of lesson.kinds()) {
    test(`${kind}: its first exercise, and a right answer`, { skip }, async () => {
        const exercise = lesson.exercise(1, 1, kind);
        await open(`#practice/1/1/${kind}`);
        assert.equal(await textOf("h1"), "Exercise 1");
        assert.equal(await textOf(".which"), `${title}, level\u00A0${exercise.level} · Paper\u00A01`);
        if (exercise.ask.choices === undefined) {
            await page.type("#answer", exercise.key.text);
        } else {
            await page.click(`input[name=answer][value="${exercise.key.text}"]`);
        }
        await page.click("form button[type=submit]");
        await page.waitForSelector(".mark[data-verdict=correct]");
        assert.equal(await page.evaluate(() => document.activeElement.textContent), "Next");
        assert.deepEqual(problems, []);
    });
}

const sheets = {
    A4: "#sheet/4821/3*titration:3,2*dilution:3,3*molar-mass:3,2*ion-formula?versions=2&drawings=1&v=1",
    "A4, with sides left blank, two columns and marks":
        "#sheet/4821/6*ion-formula,4*molar-mass:3,titration,dilution?versions=2&keys=apart&marks=1&v=1",
    Letter: "#sheet/4821/6*titration:3,6*concentration:3,6*neutralisation?versions=2&key=working&size=Letter&v=1",
};

async function leavesInChromium(/** @type {string} */ hash) {
    const chromium = await openChromium();
    const tab = await openPage(chromium, hash);
    await tab.locator(".size:not(:empty)").waitFor();
    const leaves = await tab.locator(".leaf").count();
    await leave(tab);
    await chromium.close();
    return leaves;
}

// The driver gives the size and the margins itself, so they have to be told here.
const margin = { top: "15mm", bottom: "15mm", left: "18mm", right: "18mm" };

for (const [what, hash] of Object.entries(sheets)) {
    const format = /** @type {"A4" | "Letter"} */ (what.split(",")[0]);
    test(`a sheet on ${what}: what is printed is the preview, page by page`, { skip }, async () => {
        await open(hash);
        await page.waitForSelector(".size:not(:empty)");
        const preview = await page.evaluate(leafTexts);
        const pdf = Buffer.from(await page.pdf({ format, margin }));
        assert.deepEqual(
            pagesOf(pdf).map((lines) => letters(lines.map((line) => line.text).join(""))),
            preview.map(letters),
        );
        assert.equal(pageSize(pdf), { A4: "210 × 297", Letter: "216 × 279" }[format]);
        assert.equal(preview.length, await leavesInChromium(hash));
        assert.deepEqual(problems, []);
    });
}

test("the tables, and the reason of a pair", { skip }, async () => {
    await open("#tables");
    assert.ok((await page.$$(".periodic abbr")).length > 100);
    await page.click(".solubility button");
    assert.match(await textOf(".reason"), /: (soluble|insoluble|not asked)\. \w/);
    assert.deepEqual(problems, []);
});
