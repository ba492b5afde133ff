// Sets, which the device keeps by their address.
import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { after, test } from "node:test";
import { answerWith, press } from "./states.mjs";
import { address, agree, announced, check, go, leave, openChromium, openLesson, openPage, reload, type } from "./support.mjs";

/** @import { Page } from "./support.mjs" */

const lesson = await openLesson();
const browser = await openChromium();
after(() => browser.close());

const kind = "molar-mass:1";
const at = (/** @type {number} */ number, paper = 777) => `#practice/${paper}/${number}/${kind}?set=7&v=1`;
const summary = at(8);
const keyOf = (/** @type {number} */ number) => lesson.exercise(777, number, kind).key.text;
const slipOf = (/** @type {number} */ number) => lesson.exercise(777, number, kind).slips[0].text;

async function goTo(/** @type {Page} */ page, /** @type {number} */ number) {
    await go(page, at(number));
    await page.getByRole("heading", { name: `Exercise ${number} of 7` }).waitFor();
}

// Exercise 1 at the first try, 2 at the third, 3 with help, 4 shown, 5 wrong, 6 and 7 not touched.
async function work(/** @type {Page} */ page) {
    await answerWith(page, keyOf(1), "correct");
    await goTo(page, 2);
    for (const text of [slipOf(2), "1234567"]) {
        await type(page, text);
        await check(page);
    }
    await answerWith(page, keyOf(2), "correct");
    await goTo(page, 3);
    await press(page, "Show a step");
    await answerWith(page, keyOf(3), "correct");
    await goTo(page, 4);
    await press(page, "Show the answer");
    await goTo(page, 5);
    await type(page, slipOf(5));
    await check(page);
    await page.locator(".mark").waitFor();
}

const worked = [
    ["1", "at the first try"],
    ["3", "at a later try"],
    ["1", "with help"],
    ["0", "shown"],
    ["1", "not solved"],
    ["0", "not solved"],
    ["0", "not solved"],
];

const rowsOf = (/** @type {Page} */ page) =>
    page
        .locator(".summary tbody tr")
        .evaluateAll((/** @type {HTMLTableRowElement[]} */ rows) =>
            rows.map((row) => [...row.cells].slice(2).map((cell) => cell.textContent)),
        );
const fact = (/** @type {Page} */ page, /** @type {string} */ name) =>
    page.locator("dt", { hasText: name }).locator("xpath=following-sibling::dd[1]").innerText();

// In tabs of a window of its own, each with a session of its own.
async function inTabs(/** @type {(open: (hash: string) => Promise<Page>) => Promise<void>} */ run) {
    const context = await browser.newContext();
    /** @type {Page[]} */
    const pages = [];
    await run(async (/** @type {string} */ hash) => {
        pages.push(await openPage(browser, hash, { context }));
        return pages.at(-1);
    });
    assert.deepEqual(
        pages.flatMap((page) => page.problems),
        [],
    );
    await context.close();
}

test("a set outlives its tab: the summary tells each result and its tries", async () => {
    await inTabs(async (open) => {
        const page = await open(at(1));
        await work(page);
        await agree(page, await open("#tables"));
        await page.close();
        const later = await open(summary);
        assert.deepEqual(await rowsOf(later), worked);
        assert.equal(await fact(later, "Total"), "3 of 7 solved, 1 at the first try");
    });
});

test("a new tab shows the exercises of a set as they stand", async () => {
    await inTabs(async (open) => {
        const first = await open(at(1));
        await work(first);
        const page = await open(at(2));
        await agree(first, page);
        await reload(page);
        await page.locator(".mark[data-verdict=correct]").waitFor();
        assert.equal(await page.locator("#answer").inputValue(), keyOf(2));
        await goTo(page, 3);
        assert.ok(await page.locator(".solution").getByText("Hint").isVisible());
        await goTo(page, 4);
        assert.equal(await page.locator(".key").isVisible(), true);
        await goTo(page, 5);
        assert.equal(await page.locator("#answer").inputValue(), slipOf(5));
        assert.notEqual(await page.locator(".mark").getAttribute("data-verdict"), "correct");
        await goTo(page, 6);
        assert.equal(await page.locator("#answer").inputValue(), "");
    });
});

test("two tabs with one set lose none of each other's results, and keep apart what is being typed", async () => {
    await inTabs(async (open) => {
        const [first, second] = [await open(at(1)), await open(at(1))];
        await type(second, "12");
        await type(first, slipOf(1));
        await check(first);
        await goTo(first, 2);
        await answerWith(first, keyOf(2), "correct");
        await agree(first, second);
        assert.equal(await second.locator("#answer").inputValue(), "12");
        await answerWith(second, keyOf(1), "correct");
        await go(second, summary);
        assert.deepEqual((await rowsOf(second)).slice(0, 2), [
            ["2", "at a later try"],
            ["1", "at the first try"],
        ]);
    });
});

test("a summary of which nothing is kept says so, and leads to the set", async () => {
    const page = await openPage(browser, summary);
    assert.equal(await page.locator(".summary > p").innerText(), "Nothing of this set is kept on this device.");
    assert.equal(await page.getByText("not solved").count(), 0);
    assert.equal(await page.getByRole("table").count(), 0);
    await press(page, "Begin the set");
    await page.getByRole("heading", { name: "Exercise 1 of 7" }).waitFor();
    await leave(page);
});

test("other exercises are the tab's alone, with the same paper and kind as well", async () => {
    await inTabs(async (open) => {
        const page = await open(`#practice/777/1/${kind}`);
        await answerWith(page, keyOf(1), "correct");
        await goTo(page, 1);
        assert.equal(await page.locator(".mark").isVisible(), false);
        const other = await open(`#practice/777/1/${kind}`);
        assert.equal(await other.locator("#answer").inputValue(), "");
        await go(other, summary);
        await other.getByText("Nothing of this set is kept").waitFor();
    });
});

test("a set is cleared once the question is answered, and no other set", async () => {
    const page = await openPage(browser, at(1, 778));
    await press(page, "Show the answer");
    await goTo(page, 1);
    await work(page);
    await go(page, summary);
    await press(page, "Clear this set");
    await press(page, "Keep");
    assert.deepEqual(await rowsOf(page), worked);
    await press(page, "Clear this set");
    await press(page, "Clear");
    assert.equal(await announced(page), "This set is cleared.");
    assert.equal(await page.locator(".summary > p").innerText(), "Nothing of this set is kept on this device.");
    assert.equal(await page.evaluate(() => document.activeElement.tagName), "H1");
    await goTo(page, 2);
    assert.equal(await page.locator("#answer").inputValue(), "");
    assert.equal(await page.locator(".mark").isVisible(), false);
    await go(page, at(8, 778));
    assert.deepEqual((await rowsOf(page))[0], ["0", "shown"]);
    await leave(page);
});

test("a set that is cleared in another tab is fresh in this one, but for what is being typed", async () => {
    await inTabs(async (open) => {
        const [first, second] = [await open(at(1)), await open(at(1))];
        await answerWith(first, keyOf(1), "correct");
        await goTo(first, 2);
        await type(first, "12");
        await go(second, summary);
        await agree(first, second);
        await reload(second);
        await press(second, "Clear this set");
        await press(second, "Clear");
        await agree(first, second);
        await reload(first);
        assert.equal(await first.locator("#answer").inputValue(), "12");
        await goTo(first, 1);
        assert.equal(await first.locator("#answer").inputValue(), "");
        assert.equal(await first.locator(".mark").isVisible(), false);
    });
});

function refuseStorage() {
    for (const name of ["localStorage", "sessionStorage"]) {
        Object.defineProperty(window, name, {
            get() {
                throw new DOMException("refused", "SecurityError");
            },
        });
    }
}

function refuseToWrite() {
    Storage.prototype.setItem = () => {
        throw new DOMException("full", "QuotaExceededError");
    };
}

for (const [what, refuse] of /** @type {const} */ ([
    ["refused", refuseStorage],
    ["full", refuseToWrite],
])) {
    test(`where storage is ${what} the page keeps a set for as long as it is open`, async () => {
        const page = await openPage(browser, at(1), { before: refuse });
        await work(page);
        await go(page, summary);
        assert.deepEqual(await rowsOf(page), worked);
        await press(page, "Clear this set");
        await press(page, "Clear");
        await page.getByText("Nothing of this set is kept").waitFor();
        await leave(page);
    });
}

test("a set that is damaged in the store is read as far as it can be", async () => {
    const page = await openPage(browser, "#tables");
    const kept = {
        begun: "<b>",
        touched: -1,
        worked: {},
        exercises: { 1: { result: "first" }, 2: "later", 3: { failed: 2, marked: "<img src=x>" }, 9: { result: "first" } },
    };
    await page.evaluate(([hash, text]) => localStorage.setItem(`chempractice.set.${hash}`, text), [at(1), JSON.stringify(kept)]);
    await go(page, summary);
    const none = ["0", "not solved"];
    assert.deepEqual(await rowsOf(page), [["1", "at the first try"], none, ["2", "not solved"], none, none, none, none]);
    assert.equal(await page.getByText("Begun").count(), 0);
    await goTo(page, 3);
    assert.equal(await page.locator("#answer").inputValue(), "<img src=x>");
    assert.equal(await page.locator("main img").count(), 0);
    await leave(page);
});

const begun = Date.UTC(2026, 10, 22, 8, 40);
const workedAt = {
    begun,
    touched: begun + 100 * 60_000,
    worked: 72.4 * 60_000,
    exercises: { 2: { failed: 1, marked: "1", steps: 0, result: "later" } },
};
const expected = {
    Begun: "22 November 2026, 08:40",
    "Last worked at": "22 November 2026, 10:20",
    "Time worked": "1 h 12 min",
    Total: "1 of 7 solved, none at the first try",
};

test("the summary tells when the set was begun and for how long it was worked at, in print and in the saved text", async () => {
    const context = await browser.newContext({ locale: "de-DE", timezoneId: "UTC" });
    const page = await openPage(browser, "#tables", { context });
    await page.evaluate(([hash, text]) => localStorage.setItem(`chempractice.set.${hash}`, text), [at(1), JSON.stringify(workedAt)]);
    await go(page, summary);
    await page.emulateMedia({ media: "print" });
    for (const [name, text] of Object.entries(expected)) {
        assert.equal(await fact(page, name), text);
    }
    assert.equal(await page.locator(".facts dt").last().textContent(), "Time worked", "below it stands how it is counted");
    await page.emulateMedia({ media: "screen" });
    const download = page.waitForEvent("download");
    await press(page, "Save");
    const saved = (await readFile(await (await download).path(), "utf8")).replaceAll("\u00A0", " ");
    for (const line of [
        ...Object.entries(expected).map((entry) => entry.join(": ")),
        "2. Molar mass, level 1: at a later try, 2 tries",
        "3. Molar mass, level 1: not solved, no try",
        summary,
    ]) {
        assert.ok(saved.split("\n").includes(line), `${line} in\n${saved}`);
    }
    assert.deepEqual(page.problems, []);
    await context.close();
});

test("time counts while an open exercise is on the screen", async () => {
    const context = await browser.newContext();
    const page = await context.newPage();
    await page.clock.install({ time: new Date("2026-11-22T08:40:00") });
    await page.goto(address + at(1));
    await page.locator(".prompt").waitFor();
    await page.clock.fastForward("02:00");
    await goTo(page, 2);
    await page.clock.fastForward("01:00");
    await answerWith(page, keyOf(2), "correct");
    await page.clock.fastForward("04:00");
    await goTo(page, 3);
    await page.clock.fastForward("03:00");
    await go(page, "#tables");
    await page.clock.fastForward("30:00");
    await goTo(page, 4);
    await page.clock.fastForward("40:00");
    await go(page, summary);
    assert.equal(await fact(page, "Time worked"), "11 min", "two, one, none once it was solved, three, five of forty");
    assert.match(await fact(page, "Begun"), /2026, 08:40$/);
    await context.close();
});
