// Whole exercises without a mouse: from the first Tab after the page has loaded.
import assert from "node:assert/strict";
import { after, test } from "node:test";
import { announced, leave, openChromium, opener, openLesson, openPage, panel } from "./support.mjs";

/** @import { Ask, Exercise } from "../../src/types" */
/** @import { Locator } from "playwright-core" */
/** @import { Page } from "./support.mjs" */

const lesson = await openLesson();
const browser = await openChromium();
after(() => browser.close());

const open = (/** @type {string} */ hash) => openPage(browser, hash, { reducedMotion: "reduce" });
const isFocused = (/** @type {Locator} */ locator) => locator.evaluate((element) => element === document.activeElement);
const button = (/** @type {Page} */ page, /** @type {string} */ name) => page.getByRole("button", { name, exact: true });

// Presses Tab until the focus is there. Each stop on the way is on the screen, and shows that it is one.
async function tabTo(/** @type {Page} */ page, /** @type {Locator} */ target, key = "Tab") {
    for (let presses = 0; presses < 80; ++presses) {
        await page.keyboard.press(key);
        const stop = await page.evaluate(focusShown);
        assert.equal(stop.problem, "", stop.what);
        if (await isFocused(target)) {
            return;
        }
    }
    assert.fail(`80 times ${key} do not lead to ${target}`);
}

function focusShown() {
    const focused = document.activeElement;
    const what = focused.outerHTML.slice(0, 120);
    const { outlineStyle, outlineWidth, outlineColor } = getComputedStyle(focused);
    const box = focused.getBoundingClientRect();
    const isInside = box.bottom > 0 && box.top < innerHeight && box.right > 0 && box.left < innerWidth;
    const isOutlined = outlineStyle !== "none" && parseFloat(outlineWidth) >= 2 && !/, 0\)$/.test(outlineColor);
    return { what, problem: focused === document.body ? "lost" : !isInside ? "outside" : isOutlined ? "" : "unseen" };
}

// Types into the field that has the focus, or chooses the word among the choices.
async function answer(/** @type {Page} */ page, /** @type {Ask} */ ask, /** @type {string} */ text) {
    if (ask.choices === undefined) {
        await page.keyboard.press("Control+A");
        await page.keyboard.type(text);
        return;
    }
    await page.keyboard.press("Space");
    for (let presses = 0; presses < ask.choices.length; ++presses) {
        if ((await page.evaluate(() => /** @type {HTMLInputElement} */ (document.activeElement).value)) === text) {
            return;
        }
        await page.keyboard.press("ArrowDown");
    }
    assert.fail(`no choice ${text}`);
}

function firstField(/** @type {Page} */ page, /** @type {Ask} */ ask) {
    return ask.choices === undefined ? page.locator("#answer") : page.locator("input[name=answer]").first();
}

// A wrong answer of each form; for choices it is the other one.
function wrongAnswer(/** @type {Exercise} */ { ask, key, slips }) {
    return ask.choices === undefined ? slips[0].text : ask.choices.find((/** @type {string} */ word) => word !== key.text);
}

const forms = [
    { form: "number", kind: "titration:3" },
    { form: "formula", kind: "compound-formula:3" },
    { form: "ion", kind: "ion-formula:3" },
    { form: "equation", kind: "neutralisation:3" },
    { form: "solubility with choices", kind: "solubility:1" },
    { form: "solubility", kind: "solubility:3" },
];

for (const { form, kind } of forms) {
    test(`${form}: Tab to the field, a wrong answer, the right one, and on to the next exercise`, async () => {
        const exercise = lesson.exercise(4821, 3, kind);
        const page = await open(`#practice/4821/3/${kind}`);
        await tabTo(page, firstField(page, exercise.ask));

        await answer(page, exercise.ask, wrongAnswer(exercise));
        await page.keyboard.press("Enter");
        assert.match(await announced(page), /^Not (right )?yet\. ./);
        assert.equal(await page.evaluate(() => document.activeElement.matches("#answer, [name=answer]:checked")), true);

        await answer(page, exercise.ask, exercise.key.text);
        await page.keyboard.press("Enter");
        assert.match(await announced(page), /^Correct/);
        assert.equal(await isFocused(button(page, "Next")), true);

        await page.keyboard.press("Enter");
        await page.getByRole("heading", { name: "Exercise 4" }).waitFor();
        const next = lesson.exercise(4821, 4, kind);
        assert.equal(await isFocused(firstField(page, next.ask)), true);
        await leave(page);
    });
}

test("steps of the solution are asked for one by one; the last one leads to its heading, and Tab from there to Next", async () => {
    const page = await open("#practice/4821/3/titration:3");
    const steps = lesson.exercise(4821, 3, "titration:3").solution.length;
    await tabTo(page, button(page, "Show a step"));
    for (let press = 0; press <= steps; ++press) {
        assert.equal(await isFocused(button(page, "Show a step")), true, `press ${press}`);
        await page.keyboard.press("Enter");
        assert.notEqual(await announced(page), "");
    }
    await solutionIsRead(page);
    await leave(page);
});

// From the heading on, which is on the screen.
async function solutionIsRead(/** @type {Page} */ page) {
    const heading = page.getByRole("heading", { name: "Solution", exact: true });
    assert.equal(await isFocused(heading), true);
    assert.equal((await page.evaluate(focusShown)).problem, "");
    await page.keyboard.press("Tab");
    assert.equal(await isFocused(button(page, "Next")), true);
}

for (const kind of ["titration:3", "ion-formula:3", "solubility:1", "neutralisation:3"]) {
    test(`${kind}: Show the answer leads to the solution's heading, and Tab from there to Next`, async () => {
        const page = await openPage(browser, `#practice/4821/3/${kind}`, {
            reducedMotion: "reduce",
            viewport: { width: 360, height: 640 },
        });
        await tabTo(page, button(page, "Show the answer"));
        await page.keyboard.press("Enter");
        await solutionIsRead(page);
        await leave(page);
    });
}

const inserted = [
    { kind: "ion-formula:1", before: "Ca", sign: "charge two plus", behind: "", all: "Ca^2+" },
    { kind: "neutralisation:1", before: "H2SO4 + 2NaOH ", sign: "arrow", behind: " Na2SO4 + 2H2O", all: "H2SO4 + 2NaOH -> Na2SO4 + 2H2O" },
    { kind: "compound-formula:2", before: "Ca", sign: "opening bracket", behind: "OH)2", all: "Ca(OH)2" },
];

for (const { kind, before: start, sign, behind, all } of inserted) {
    test(`the sign "${sign}" goes where the caret was, and the caret stays behind it`, async () => {
        const page = await open(`#practice/4821/3/${kind}`);
        await tabTo(page, page.locator("#answer"));
        await page.keyboard.type(start);
        await tabTo(page, page.getByRole("group", { name: "Signs to insert" }).getByRole("button", { name: sign, exact: true }));
        await page.keyboard.press("Space");
        assert.equal(await isFocused(page.locator("#answer")), true);
        await page.keyboard.type(behind);
        assert.equal(await page.locator("#answer").inputValue(), all);
        await leave(page);
    });
}

test("the first Tab is the link that skips to the exercise", async () => {
    const page = await open("#practice/4821/3/titration");
    const hash = new URL(page.url()).hash;
    await page.keyboard.press("Tab");
    assert.equal(await isFocused(page.getByRole("link", { name: "Skip to the content" })), true);
    assert.equal((await page.evaluate(focusShown)).problem, "");
    await page.keyboard.press("Enter");
    assert.equal(await isFocused(page.getByRole("main")), true);
    await page.keyboard.press("Tab");
    assert.equal(await isFocused(opener(page)), true);
    await page.keyboard.press("Tab");
    assert.equal(await isFocused(page.locator("#answer")), true);
    assert.equal(new URL(page.url()).hash, hash);
    await leave(page);
});

test("kinds, levels, paper and length are chosen, and the focus is in the first field", async () => {
    const page = await open("#practice/4821/3/titration");
    await tabTo(page, opener(page));
    await page.keyboard.press("Enter");
    await tabTo(page, button(page, "None"));
    await page.keyboard.press("Space");
    await tabTo(page, page.getByRole("group", { name: "Dilution" }).getByRole("checkbox", { name: /^Level 1/ }));
    await page.keyboard.press("Space");
    await tabTo(page, page.getByLabel("Paper", { exact: true }));
    await page.keyboard.type("77");
    await tabTo(page, page.getByLabel("How many"));
    await page.keyboard.type("A set of 5");
    await tabTo(page, button(page, "Start"));
    await page.keyboard.press("Enter");
    await page.getByRole("heading", { name: "Exercise 1 of 5" }).waitFor();
    assert.equal(new URL(page.url()).hash, "#practice/77/1/dilution:1?set=5&v=1");
    assert.equal(await isFocused(page.locator("#answer")), true);
    await leave(page);
});

test("the present kind alone is two presses of Enter and a Tab away, and Escape leaves the choice", async () => {
    const page = await open("#practice/4821/3/mixed");
    await tabTo(page, opener(page));
    await page.keyboard.press("Enter");
    await tabTo(page, button(page, "Start"));
    await page.keyboard.press("Escape");
    assert.equal(await isFocused(opener(page)), true);
    assert.equal((await page.evaluate(focusShown)).problem, "");
    await page.keyboard.press("Enter");
    await page.keyboard.press("Tab");
    const { kind, level } = lesson.exercise(4821, 3, "mixed");
    await page.keyboard.press("Enter");
    await page.getByRole("heading", { name: "Exercise 1", exact: true }).waitFor();
    assert.equal(new URL(page.url()).hash, `#practice/4821/1/${level === 2 ? kind : `${kind}:${level}`}?v=1`);
    await leave(page);
});

test("from the start: a paper, a choice, and into the first field", async () => {
    const page = await open("");
    await tabTo(page, page.getByLabel("Paper", { exact: true }));
    await page.keyboard.press("Control+A");
    await page.keyboard.type("77");
    await tabTo(page, opener(page));
    await page.keyboard.press("Space");
    await tabTo(page, button(page, "None"));
    await page.keyboard.press("Space");
    await tabTo(page, page.getByRole("group", { name: "Dilution" }).getByRole("checkbox", { name: /^Level 1/ }));
    await page.keyboard.press("Space");
    await tabTo(page, button(page, "Start"));
    await page.keyboard.press("Enter");
    await page.getByRole("heading", { name: "Exercise 1", exact: true }).waitFor();
    assert.equal(new URL(page.url()).hash, "#practice/77/1/dilution:1?v=1");
    assert.equal(await isFocused(page.locator("#answer")), true);
    await leave(page);
});

test("how it is written is chosen with the arrow keys", async () => {
    const page = await open("#practice/4821/3/titration");
    await tabTo(page, panel(page, "How it is written"));
    await page.keyboard.press("Space");
    await tabTo(page, page.getByRole("radio", { name: "mL, L" }));
    await page.keyboard.press("ArrowDown");
    assert.equal(await isFocused(page.getByRole("radio", { name: "cm³, dm³" })), true);
    assert.doesNotMatch(await page.locator(".prompt").innerText(), /mL/);
    await leave(page);
});

test("clearing the record is asked for; Enter pressed twice keeps it", async () => {
    const page = await open("#practice/4821/3/ion-formula:1");
    await tabTo(page, button(page, "Show the answer"));
    await page.keyboard.press("Enter");
    await tabTo(page, panel(page, "My record"));
    await page.keyboard.press("Enter");
    await tabTo(page, button(page, "Clear my record"));
    for (const harmless of ["Enter", "Escape"]) {
        await page.keyboard.press("Enter");
        assert.equal(await isFocused(page.getByRole("group", { name: "Clear your record?" }).getByRole("button", { name: "Keep" })), true);
        await page.keyboard.press(harmless);
        assert.equal(await isFocused(button(page, "Clear my record")), true, harmless);
        assert.equal(await page.getByRole("row", { name: /Formula of an ion/ }).count(), 1, harmless);
    }
    await page.keyboard.press("Enter");
    await tabTo(page, button(page, "Clear"), "Shift+Tab");
    await page.keyboard.press("Enter");
    assert.equal(await announced(page), "Your record is cleared.");
    assert.equal(await isFocused(panel(page, "My record")), true);
    assert.equal(await page.getByRole("row", { name: /Formula of an ion/ }).count(), 0);
    await leave(page);
});

test("a bad address is left by its button", async () => {
    const page = await open("#practice/0/1/titration");
    await tabTo(page, button(page, "Start with a new paper"));
    await page.keyboard.press("Enter");
    await page.getByRole("heading", { name: "Exercise 1" }).waitFor();
    await leave(page);
});

const cellsOf = (/** @type {Page} */ page) => page.locator(".solubility button");
const columnsOf = (/** @type {Page} */ page) => page.locator(".solubility thead th").count();
const cellWithFocus = (/** @type {Page} */ page) =>
    cellsOf(page).evaluateAll((/** @type {Element[]} */ all) => all.indexOf(document.activeElement));

test("the solubility grid is one stop; the arrow keys go from cell to cell, and Enter tells why", async () => {
    const page = await open("#tables");
    const cells = cellsOf(page);
    const columns = await columnsOf(page);
    const at = () => cellWithFocus(page);
    await tabTo(page, cells.first());
    /** @type {[string, number][]} */
    const walk = [
        ["ArrowRight", 1],
        ["ArrowDown", columns + 1],
        ["ArrowLeft", columns],
        ["ArrowLeft", columns],
        ["ArrowUp", 0],
        ["ArrowUp", 0],
        ["ArrowRight", 1],
    ];
    for (const [key, expected] of walk) {
        await page.keyboard.press(key);
        assert.equal(await at(), expected, `${key} in ${columns} columns`);
        assert.equal((await page.evaluate(focusShown)).problem, "", key);
    }
    await page.keyboard.press("Enter");
    assert.match(await page.locator(".reason").innerText(), /: (soluble|insoluble|not asked)\. \w/);
    await page.keyboard.press("Tab");
    assert.equal(await at(), -1);
    await page.keyboard.press("Shift+Tab");
    assert.equal(await at(), 1);
    await leave(page);
});

test("the arrow keys go on in the whole solubility grid, with the columns that are never asked", async () => {
    const page = await open("#tables");
    const columns = await columnsOf(page);
    await tabTo(page, button(page, "Show those that are never asked"));
    await page.keyboard.press("Enter");
    await tabTo(page, cellsOf(page).first(), "Shift+Tab");
    await page.keyboard.press("ArrowDown");
    assert.ok((await columnsOf(page)) > columns);
    assert.equal(await cellWithFocus(page), await columnsOf(page));
    await leave(page);
});

// In the place of the browser's own, which tells the page first and then waits for a person.
function printForTests() {
    window.print = () => {
        window.dispatchEvent(new Event("beforeprint"));
        window.printed = location.hash;
    };
}

test("a whole sheet: counts, layout, another version, and Print", async () => {
    const page = await openPage(browser, "#sheet/4821/2*titration?v=1", { reducedMotion: "reduce", before: printForTests });
    await tabTo(page, page.getByRole("spinbutton", { name: /^Dilution, level 1/ }));
    await page.keyboard.type("3");
    await tabTo(page, page.getByRole("spinbutton", { name: "Versions" }));
    await page.keyboard.press("ArrowUp");
    await tabTo(page, page.getByLabel("Title"));
    await page.keyboard.press("Control+A");
    await page.keyboard.type("Monday");
    await tabTo(page, page.getByLabel("Room to write"));
    await page.keyboard.press("Home");
    await tabTo(page, page.getByLabel("Drawings of burettes and beakers"));
    await page.keyboard.press("Space");
    await tabTo(page, button(page, "Print"));
    await page.keyboard.press("Enter");
    assert.equal(
        await page.evaluate(() => window.printed),
        "#sheet/4821/3*dilution:1,2*titration?versions=2&title=Monday&room=none&drawings=1&v=1",
    );
    await tabTo(page, page.getByRole("region", { name: "Pages" }));
    await leave(page);
});
