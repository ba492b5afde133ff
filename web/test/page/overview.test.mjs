// In a set: the row of its exercises, its end, its link, and the list of the sets on the device.
import assert from "node:assert/strict";
import { after, test } from "node:test";
import { answerWith, press } from "./states.mjs";
import { announced, check, go, leave, openChromium, openLesson, openPage, panel, type } from "./support.mjs";

/** @import { Page } from "./support.mjs" */

const lesson = await openLesson();
const browser = await openChromium();
after(() => browser.close());

const kind = "molar-mass:1";
const at = (/** @type {number} */ number, set = 5, paper = 777) => `#practice/${paper}/${number}/${kind}?set=${set}&v=1`;
const keyOf = (/** @type {number} */ number) => lesson.exercise(777, number, kind).key.text;
const overview = (/** @type {Page} */ page) => page.getByRole("navigation", { name: "Exercises of this set" });
const focused = (/** @type {Page} */ page) => page.evaluate(() => document.activeElement.textContent.trim());

async function heading(/** @type {Page} */ page, /** @type {string} */ name) {
    await page.getByRole("heading", { name, exact: true }).waitFor();
}

async function goTo(/** @type {Page} */ page, /** @type {number} */ number, set = 5) {
    await go(page, at(number, set));
    await heading(page, `Exercise ${number} of ${set}`);
}

test("the overview tells each exercise by a sign and in words, and leads to it", async () => {
    const page = await openPage(browser, at(1));
    await answerWith(page, keyOf(1), "correct");
    assert.equal(await overview(page).getByRole("link", { name: "Exercise 1: at the first try" }).count(), 1, "at once");
    await goTo(page, 2);
    await type(page, "1234567");
    await check(page);
    await goTo(page, 3);
    await press(page, "Show the answer");
    const links = await overview(page)
        .getByRole("link")
        .evaluateAll((all) =>
            all.map((link) => [
                link.querySelector(".spoken").textContent,
                link.querySelector("[aria-hidden]").textContent,
                link.getAttribute("aria-current"),
            ]),
        );
    assert.deepEqual(links, [
        ["Exercise 1: at the first try", "1✓", null],
        ["Exercise 2: wrong so far", "2×", null],
        ["Exercise 3: shown", "3–", "page"],
        ["Exercise 4: open", "4", null],
        ["Exercise 5: open", "5", null],
    ]);
    await overview(page).getByRole("link", { name: "Exercise 2: wrong so far" }).click();
    await heading(page, "Exercise 2 of 5");
    await leave(page);
});

test("there is no overview outside a set", async () => {
    const page = await openPage(browser, `#practice/777/1/${kind}`);
    assert.equal(await page.locator(".overview, .link").count(), 0);
    await leave(page);
});

test("of a set of 99 the exercises are folded, and it tells how many are done", async () => {
    const page = await openPage(browser, at(50, 99));
    await press(page, "Show the answer");
    const fold = overview(page).getByText("Exercises of this set: 1 of 99 done");
    assert.equal(await overview(page).getByRole("link").count(), 0);
    await fold.click();
    assert.equal(await overview(page).getByRole("link").count(), 99);
    await overview(page).getByRole("link", { name: "Exercise 99: open" }).click();
    await heading(page, "Exercise 99 of 99");
    await leave(page);
});

test("twenty exercises stand in one row beside the question, and in three on a phone", async () => {
    const page = await openPage(browser, at(1, 20));
    for (const [width, rows] of [
        [800, 1],
        [360, 3],
    ]) {
        await page.setViewportSize({ width, height: 740 });
        const tops = await overview(page)
            .getByRole("link")
            .evaluateAll((all) => all.map((link) => link.getBoundingClientRect().top));
        assert.ok(new Set(tops).size <= rows, `${new Set(tops).size} rows in ${width} px`);
        assert.equal(tops.length, 20);
    }
    await leave(page);
});

test("on a touch screen each exercise of the row is 44 px wide and high at least", async () => {
    const page = await openPage(browser, at(1, 20), { viewport: { width: 360, height: 740 }, hasTouch: true, isMobile: true });
    const links = await overview(page).getByRole("link").all();
    assert.equal(links.length, 20);
    for (const link of links) {
        const { width, height } = await link.boundingBox();
        assert.ok(width >= 44 && height >= 44, `${width} × ${height}`);
    }
    await leave(page);
});

test("the row is one stop of the Tab key, and the arrow keys go along it", async () => {
    const page = await openPage(browser, at(3));
    await overview(page).locator("[aria-current]").focus();
    const numberAt = () => page.evaluate(() => Number(/** @type {HTMLAnchorElement} */ (document.activeElement).hash.split("/")[2]));
    for (const [key, number] of /** @type {const} */ ([
        ["ArrowLeft", 2],
        ["ArrowLeft", 1],
        ["ArrowLeft", 1],
        ["End", 5],
        ["ArrowRight", 5],
        ["Home", 1],
        ["ArrowRight", 2],
    ])) {
        await page.keyboard.press(key);
        assert.equal(await numberAt(), number, key);
    }
    await page.keyboard.press("Enter");
    await heading(page, "Exercise 2 of 5");
    await overview(page).locator("[aria-current]").focus();
    await page.keyboard.press("Tab");
    assert.equal(await overview(page).evaluate((nav) => nav.contains(document.activeElement)), false);
    await leave(page);
});

test("Finish asks while exercises are open, and leads to the first of them or to the summary", async () => {
    const page = await openPage(browser, at(1));
    for (const number of [1, 5]) {
        await goTo(page, number);
        await answerWith(page, keyOf(number), "correct");
    }
    await page.keyboard.press("Enter");
    assert.equal(await page.getByRole("group", { name: "3 exercises are open." }).count(), 1);
    assert.equal(await focused(page), "Go to exercise 2");
    await page.keyboard.press("Escape");
    assert.equal(await focused(page), "Finish");
    await page.keyboard.press("Enter");
    await page.keyboard.press("Enter");
    await heading(page, "Exercise 2 of 5");
    await press(page, "Show the answer");
    await goTo(page, 4);
    await press(page, "Show the answer");
    await goTo(page, 5);
    await press(page, "Finish");
    assert.equal(await page.getByRole("group", { name: "1 exercise is open." }).count(), 1);
    await press(page, "Finish");
    await heading(page, "Summary of paper 777");
    await leave(page);
});

test("once nothing is open any exercise leads to the summary, without a question", async () => {
    const page = await openPage(browser, at(1));
    for (const number of [1, 2, 4, 5, 3]) {
        await goTo(page, number);
        await answerWith(page, keyOf(number), "correct");
    }
    assert.equal(await focused(page), "Finish");
    await page.keyboard.press("Enter");
    await heading(page, "Summary of paper 777");
    await leave(page);
});

// In the place of the browser's own.
const copies = () => {
    const writeText = async (/** @type {string} */ text) => {
        window.copied = text;
    };
    Object.defineProperty(navigator, "clipboard", { value: { writeText } });
};
const lacksClipboard = () => Object.defineProperty(navigator, "clipboard", { value: undefined });
const refusesToCopy = () =>
    Object.defineProperty(navigator, "clipboard", {
        value: { writeText: () => Promise.reject(new DOMException("refused", "NotAllowedError")) },
    });

for (const [where, number] of /** @type {const} */ ([
    ["an exercise", 3],
    ["the summary", 6],
])) {
    test(`the link of a set is copied from ${where}: its first exercise, without the way to this file`, async () => {
        const page = await openPage(browser, at(number), { before: copies });
        await page
            .getByText(
                "This link is the set: whoever opens it gets the same exercises. This page is a file: whoever has the same file opens it",
            )
            .waitFor();
        await press(page, "Copy the link");
        assert.equal(await announced(page), "The link is copied.");
        assert.equal(await page.evaluate(() => window.copied), at(1));
        await leave(page);
    });
}

for (const [how, before] of /** @type {const} */ ([
    ["is missing", lacksClipboard],
    ["is refused", refusesToCopy],
])) {
    test(`where the clipboard ${how} the link is selected to be copied`, async () => {
        const page = await openPage(browser, at(3), { before });
        await press(page, "Copy the link");
        assert.match(await announced(page), /^The browser did not let the page copy\. The link is selected/);
        const field = page.getByRole("textbox", { name: "The link" });
        assert.equal(await field.inputValue(), at(1));
        assert.deepEqual(
            await field.evaluate((/** @type {HTMLInputElement} */ input) => [
                input === document.activeElement,
                input.readOnly,
                input.selectionStart,
                input.selectionEnd,
            ]),
            [true, true, 0, at(1).length],
        );
        await leave(page);
    });
}

test("from a web server the link is the whole address", async () => {
    const { createServer } = await import("node:http");
    const { readFile } = await import("node:fs/promises");
    const file = await readFile(process.env.PAGE);
    const server = createServer((_, response) => response.setHeader("Content-Type", "text/html").end(file));
    await new Promise((done) => server.listen(0, "127.0.0.1", () => done(server)));
    const origin = `http://127.0.0.1:${/** @type {import("node:net").AddressInfo} */ (server.address()).port}/practice.html`;
    const page = await browser.newPage();
    await page.addInitScript(copies);
    await page.goto(origin + at(3));
    await press(page, "Copy the link");
    assert.equal(await announced(page), "The link is copied.");
    assert.equal(await page.evaluate(() => window.copied), origin + at(1));
    assert.equal(await page.getByText("This page is a file").count(), 0);
    await page.close();
    server.close();
});

const stored = (/** @type {number} */ touched, /** @type {number[]} */ ...solved) =>
    JSON.stringify({
        begun: touched,
        touched,
        worked: 0,
        exercises: Object.fromEntries(solved.map((number) => [number, { result: "first" }])),
    });

async function openWithSets(/** @type {string} */ hash) {
    const page = await openPage(browser, "#tables");
    const kept = [
        [at(1, 3, 11), stored(Date.UTC(2026, 10, 20, 12), 1, 2, 3)],
        [at(1, 5, 12), stored(Date.UTC(2026, 10, 22, 12), 1, 3)],
    ];
    await page.evaluate((all) => all.forEach(([hash, text]) => localStorage.setItem(`chempractice.set.${hash}`, text)), kept);
    await go(page, hash);
    await heading(page, "Exercise 1");
    await panel(page, "My record").click();
    return page;
}

test("My record lists the sets on the device, each with the way to what is open, or to its summary", async () => {
    const page = await openWithSets(`#practice/777/1/${kind}`);
    const links = page.locator(".kept-sets").getByRole("link");
    await links.first().waitFor();
    assert.deepEqual(await links.evaluateAll((/** @type {HTMLAnchorElement[]} */ all) => all.map((link) => link.hash)), [
        at(2, 5, 12),
        at(4, 3, 11),
    ]);
    const [first] = await page.locator(".kept-sets li").allInnerTexts();
    assert.match(first.replace(/\s+/g, " "), /^Paper 12, 5 exercises ?Molar mass, level 1 · 2 of 5 done · 22 November 2026, \d\d:00$/);
    await links.last().click();
    await heading(page, "Summary of paper 11");
    await leave(page);
});

test("all sets are cleared once the question is answered, the one on the screen too; the record stays", async () => {
    const page = await openPage(browser, at(1));
    await answerWith(page, keyOf(1), "correct");
    await panel(page, "My record").click();
    await press(page, "Clear all sets");
    await press(page, "Keep");
    assert.equal(await page.locator(".kept-sets").getByRole("link").count(), 1);
    await press(page, "Clear all sets");
    await press(page, "Clear");
    assert.equal(await announced(page), "All sets are cleared.");
    assert.equal(await focused(page), "My record");
    assert.equal(await page.locator(".kept-sets").getByRole("link").count(), 0);
    assert.equal(await page.locator(".mark").isVisible(), false);
    assert.equal(await page.locator("#answer").inputValue(), "");
    assert.equal(await overview(page).getByRole("link", { name: "Exercise 1: open" }).count(), 1);
    assert.equal(await page.getByRole("row", { name: /Molar mass/ }).count(), 1);
    await leave(page);
});

test("the link and the overview are not printed", async () => {
    const page = await openPage(browser, at(3), { media: "print" });
    assert.deepEqual([await overview(page).isVisible(), await page.getByText("Copy the link").isVisible()], [false, false]);
    await leave(page);
});
