// The choice of exercises: near the question, read without hovering, and left without a trace.
import assert from "node:assert/strict";
import { after, test } from "node:test";
import { leave, openChromium, opener, openLesson, openPage } from "./support.mjs";

/** @import { Locator } from "playwright-core" */
/** @import { Options, Page } from "./support.mjs" */

const lesson = await openLesson();
const browser = await openChromium();
after(() => browser.close());

const hashOf = (/** @type {Page} */ page) => new URL(page.url()).hash;
const button = (/** @type {Page} */ page, /** @type {string} */ text) => page.getByRole("button", { name: text, exact: true });
const boxOf = (/** @type {Page} */ page, /** @type {string} */ title, /** @type {number} */ level) =>
    page.getByRole("group", { name: title, exact: true }).getByRole("checkbox", { name: new RegExp(`^Level ${level}`) });
const isFocused = (/** @type {Locator} */ locator) => locator.evaluate((element) => element === document.activeElement);
const chosen = (/** @type {Page} */ page) =>
    page.locator(".kinds input:checked").evaluateAll((/** @type {HTMLInputElement[]} */ all) => all.map((one) => one.value));
const top = (/** @type {Locator} */ locator) => locator.evaluate((element) => element.getBoundingClientRect().top);

async function opened(/** @type {string} */ hash, /** @type {Options} */ options = {}) {
    const page = await openPage(browser, hash, { reducedMotion: "reduce", ...options });
    await opener(page).click();
    return page;
}

for (const kinds of ["mixed", "titration:3,dilution", "molar-mass:1,titration"]) {
    test(`of ${kinds} the present kind alone in two presses`, async () => {
        const { kind, level } = lesson.exercise(4821, 3, kinds);
        const { title } = lesson.kinds().find((info) => info.kind === kind);
        const page = await opened(`#practice/4821/3/${kinds}?set=5&v=1`);
        await button(page, `Only this kind: ${title}, level ${level}`).click();
        await page.getByRole("heading", { name: "Exercise 1", exact: true }).waitFor();
        assert.equal(hashOf(page), `#practice/4821/1/${kind}${level === 2 ? "" : `:${level}`}?v=1`);
        await leave(page);
    });
}

for (const kinds of ["titration:3", "titration", "titration:2"]) {
    test(`where ${kinds} is all there is, no button offers it`, async () => {
        const page = await opened(`#practice/4821/3/${kinds}`);
        assert.equal(await button(page, "Start").isVisible(), true);
        assert.equal(await page.getByRole("button", { name: /^Only/ }).count(), 0);
        await leave(page);
    });
}

test("of a list its kinds are chosen, to go on without end", async () => {
    const page = await opened("#practice/4821/2/120*titration:1,1*dilution@7");
    assert.deepEqual(await chosen(page), ["dilution:2", "titration:1"]);
    assert.equal(await page.getByRole("button", { name: "Only this kind: Acid-base titration, level 1", exact: true }).count(), 1);
    await button(page, "Start").click();
    await page.getByRole("heading", { name: "Exercise 1", exact: true }).waitFor();
    assert.equal(hashOf(page), "#practice/4821/1/titration:1,dilution?v=1");
    await leave(page);
});

test("the button stands between the head and the question, and what it opens too", async () => {
    for (const viewport of [
        { width: 320, height: 640 },
        { width: 360, height: 740 },
        { width: 1280, height: 800 },
    ]) {
        const page = await openPage(browser, "#practice/4821/3/mixed", { viewport, reducedMotion: "reduce" });
        const [heading, question] = [page.getByRole("heading", { level: 1 }), page.locator(".prompt")];
        assert.ok((await top(opener(page))) < (await top(question)), `${viewport.width}`);
        assert.ok((await top(question)) < viewport.height / 2, "the question is not pushed away");
        await opener(page).click();
        const panel = page.getByRole("form", { name: "Choose exercises" });
        assert.ok((await top(heading)) < (await top(panel)) && (await top(panel)) < (await top(question)), `${viewport.width}`);
        await leave(page);
    }
});

test("opened it is in view, and fits a wide window", async () => {
    for (const [viewport, most] of /** @type {const} */ ([
        [{ width: 360, height: 740 }, 1.75],
        [{ width: 768, height: 1024 }, 1],
        [{ width: 1280, height: 800 }, 1],
    ])) {
        const page = await opened("#practice/4821/3/mixed", { viewport });
        const { y, height } = await page.getByRole("form", { name: "Choose exercises" }).boundingBox();
        assert.ok((await top(opener(page))) >= 0 && y <= 0.2 * viewport.height, `at ${viewport.width} it begins at ${y}`);
        assert.ok(height <= most * viewport.height, `at ${viewport.width} it is ${height} high`);
        await leave(page);
    }
});

test("Escape closes it from any place within, and the focus is on the button", async () => {
    const page = await openPage(browser, "#practice/4821/3/mixed");
    for (const place of [
        opener(page),
        button(page, "None"),
        boxOf(page, "Dilution", 3),
        page.getByLabel("Paper", { exact: true }),
        button(page, "Start"),
    ]) {
        await opener(page).click();
        assert.equal(await opener(page).getAttribute("aria-expanded"), "true");
        assert.equal(await isFocused(opener(page)), true, "what it opens follows behind it");
        await place.focus();
        await page.keyboard.press("Escape");
        assert.equal(await opener(page).getAttribute("aria-expanded"), "false");
        assert.equal(await page.getByRole("form", { name: "Choose exercises" }).isVisible(), false);
        assert.equal(await isFocused(opener(page)), true);
    }
    await leave(page);
});

test("what each level of each kind is stands there to be read, and is a part of its name", async () => {
    const page = await opened("#practice/4821/3/dilution:1", { viewport: { width: 360, height: 740 } });
    for (const { title, levels } of lesson.kinds()) {
        const row = page.getByRole("group", { name: title, exact: true });
        for (const [at, text] of levels.entries()) {
            assert.equal(
                await row.getByRole("checkbox", { name: `Level ${at + 1}: ${text}`, exact: true }).count(),
                1,
                `${title}: ${text}`,
            );
            assert.ok((await row.innerText()).includes(`${at + 1}\u00A0${text}`), `${title}: ${text}`);
        }
    }
    await leave(page);
});

test("All and None, and then single ones", async () => {
    const page = await opened("#practice/4821/3/dilution:1");
    const all = lesson.kinds().flatMap(({ kind, levels }) => levels.map((_, at) => `${kind}:${at + 1}`));
    assert.deepEqual(await chosen(page), ["dilution:1"]);
    await button(page, "All").click();
    assert.deepEqual(await chosen(page), all);
    await button(page, "None").click();
    assert.deepEqual(await chosen(page), []);
    await boxOf(page, "Formula of an ion", 3).check();
    assert.deepEqual(await chosen(page), ["ion-formula:3"]);
    await leave(page);
});

test("nothing chosen is said where it is chosen, until something is", async () => {
    const page = await opened("#practice/4821/3/dilution:1");
    const message = page.locator(".kinds").getByText("Choose at least one level of one kind.");
    await button(page, "None").click();
    assert.equal(await message.isVisible(), false);
    await button(page, "Start").click();
    assert.equal(await message.isVisible(), true);
    assert.equal(await isFocused(page.locator(".kinds input").first()), true);
    const first = page.locator(".kinds input").first();
    assert.equal(await first.getAttribute("aria-invalid"), "true");
    assert.equal(await first.getAttribute("aria-describedby"), await message.getAttribute("id"));
    await boxOf(page, "Dilution", 2).check();
    assert.equal(await message.isVisible(), false);
    await leave(page);
});

test("how quantities are written may change meanwhile: the choice stays as it is", async () => {
    const page = await opened("#practice/4821/3/mixed");
    await boxOf(page, "Dilution", 3).check();
    await page.getByText("How it is written").click();
    await page.getByLabel("Comma: 0,5").check();
    assert.equal(await boxOf(page, "Dilution", 3).isChecked(), true);
    assert.equal(await opener(page).getAttribute("aria-expanded"), "true");
    await leave(page);
});

test("what is pressed with a finger is as large as one", async () => {
    const page = await opened("#practice/4821/3/mixed", { viewport: { width: 360, height: 740 }, isMobile: true, hasTouch: true });
    const small = await page
        .locator(".exercise > header button, .choice button, .choice .level, .choice select, #paper")
        .evaluateAll((/** @type {HTMLElement[]} */ all) =>
            all
                .filter((one) => one.offsetWidth < 44 || one.offsetHeight < 44)
                .map((one) => [one.outerHTML.slice(0, 80), one.offsetWidth, one.offsetHeight]),
        );
    assert.deepEqual(small, []);
    await page.locator(".level").first().tap();
    assert.equal(await boxOf(page, "Molar mass", 1).isChecked(), true);
    await leave(page);
});
