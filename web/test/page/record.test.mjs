// The record: what it counts, what it ticks, and what clearing it leaves alone.
import assert from "node:assert/strict";
import { after, test } from "node:test";
import { press } from "./states.mjs";
import { check, go, leave, openChromium, openLesson, openPage, panel, reload, type } from "./support.mjs";

/** @import { Page } from "./support.mjs" */

const lesson = await openLesson();
const browser = await openChromium();
after(() => browser.close());

const kind = "ion-formula:1";
const row = (/** @type {Page} */ page) => page.getByRole("row", { name: /Formula of an ion/ });

async function solve(/** @type {Page} */ page, /** @type {number} */ number, /** @type {string[]} */ wrongBefore = []) {
    for (const text of [...wrongBefore, lesson.exercise(4821, number, kind).key.text]) {
        await type(page, text);
        await check(page);
    }
    await page.locator(".mark[data-verdict=correct]").waitFor();
}

async function next(/** @type {Page} */ page, /** @type {number} */ number) {
    await press(page, "Next");
    await page.getByRole("heading", { name: `Exercise ${number}` }).waitFor();
}

test("each result has its column: the first try, a later one, with help, shown", async () => {
    const page = await openPage(browser, `#practice/4821/1/${kind}`);
    await solve(page, 1, [lesson.exercise(4821, 1, kind).slips[0].text]);
    await next(page, 2);
    await press(page, "Show a step");
    await solve(page, 2);
    await next(page, 3);
    await press(page, "Show the answer");
    await next(page, 4);
    await solve(page, 4);
    await panel(page, "My record").click();
    assert.deepEqual(await page.locator(".record thead th").allInnerTexts(), [
        "Kind",
        "At the first try",
        "At a later try",
        "With help",
        "Shown",
    ]);
    assert.deepEqual(await row(page).locator("td").allInnerTexts(), ["1", "1", "1", "1"]);
    await leave(page);
});

test("three in a row at the first try tick the row of their kind, and only then the tick is explained", async () => {
    const page = await openPage(browser, `#practice/4821/1/${kind}`);
    for (let number = 1; number <= 3; ++number) {
        await solve(page, number);
        const ticked = number === 3 ? 1 : 0;
        await panel(page, "My record").click();
        assert.equal(await row(page).getByText("✓").count(), ticked, `after ${number}`);
        assert.equal(await page.getByText("✓ means three in a row at the first try.").count(), ticked, `after ${number}`);
        await next(page, number + 1);
    }
    await press(page, "Show the answer");
    await go(page, "#practice/4821/1/molar-mass:1");
    await press(page, "Show the answer");
    await panel(page, "My record").click();
    const names = await page.locator(".record tbody th").allInnerTexts();
    assert.deepEqual(names.map((/** @type {string} */ name) => name.replace(/\s+/g, " ")).sort(), [
        "Formula of an ion ✓ three in a row",
        "Molar mass",
    ]);
    await leave(page);
});

test("what the panels below an exercise hold is made as they open, by whatever opens them", async () => {
    const page = await openPage(browser, `#practice/4821/1/${kind}`);
    const panels = page.locator("aside details");
    assert.deepEqual(await panels.evaluateAll((all) => all.map(({ textContent }) => textContent)), ["How it is written", "My record"]);
    await panels.evaluateAll((/** @type {HTMLDetailsElement[]} */ all) => all.forEach((one) => (one.open = true)));
    await page.getByText("Nothing is in your record yet.").waitFor();
    await page.getByLabel("Comma: 0,5").waitFor();
    await solve(page, 1);
    assert.equal(await row(page).count(), 1, "what is open is kept up");
    await leave(page);
});

test("clearing the record clears it alone: the exercise stays as it is", async () => {
    const page = await openPage(browser, `#practice/4821/1/${kind}`);
    await solve(page, 1);
    await panel(page, "My record").click();
    await press(page, "Clear my record");
    await press(page, "Keep");
    assert.equal(await row(page).count(), 1);
    await press(page, "Clear my record");
    await press(page, "Clear");
    await page.getByText("Nothing is in your record yet.").waitFor();
    await reload(page);
    await page.locator(".mark[data-verdict=correct]").waitFor();
    assert.equal(await page.locator("#answer").inputValue(), lesson.exercise(4821, 1, kind).key.text);
    await panel(page, "My record").click();
    assert.equal(await page.getByText("Nothing is in your record yet.").count(), 1);
    await leave(page);
});

/** @type {[what: string, kept: unknown, cells: string[]][]} */
const found = [
    ["from before there were later tries", { "ion-formula": { first: 2, help: 1, shown: 3, row: 1, ticked: false } }, ["2", "0", "1", "3"]],
    ["with a damaged count", { "ion-formula": { first: "2", later: -1, help: 1.5, shown: 3, row: {}, ticked: 1 } }, ["0", "0", "0", "3"]],
    ["of another program", "<b>", null],
    ["of kinds that there are not", { alchemy: { first: 1 }, "ion-formula": null }, null],
];

for (const [what, kept, cells] of found) {
    test(`a record ${what} is read field by field`, async () => {
        const page = await openPage(browser, `#practice/4821/1/${kind}`);
        await page.evaluate((/** @type {string} */ text) => localStorage.setItem("chempractice.record", text), JSON.stringify(kept));
        await reload(page);
        await panel(page, "My record").click();
        const seen = (await row(page).count()) === 0 ? null : await row(page).locator("td").allInnerTexts();
        assert.deepEqual(seen, cells, JSON.stringify(kept));
        await leave(page);
    });
}
