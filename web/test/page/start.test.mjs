// The first visit, and the way in for who was here before.
import assert from "node:assert/strict";
import { after, test } from "node:test";
import { goToStart } from "./states.mjs";
import { agree, go, leave, openChromium, opener, openLesson, openPage, reload } from "./support.mjs";

/** @import { Page } from "./support.mjs" */

const lesson = await openLesson();
const browser = await openChromium();
after(() => browser.close());

const name = "Chemical calculations practice";
const hashOf = (/** @type {Page} */ page) => new URL(page.url()).hash;
const button = (/** @type {Page} */ page, /** @type {string} */ text) => page.getByRole("button", { name: text, exact: true });
const paperField = (/** @type {Page} */ page) => page.getByLabel("Paper", { exact: true });

for (const hash of ["", "#"]) {
    test(`"${hash}" shows what the page is, and draws no paper`, async () => {
        const page = await openPage(browser, hash);
        assert.equal(await page.getByRole("heading", { level: 1 }).innerText(), name);
        assert.equal(await page.title(), name);
        assert.equal(hashOf(page), "");
        assert.equal(await page.locator(".prompt").count(), 0);
        await leave(page);
    });
}

test("Start shows the first exercise of the paper in the field, of every kind", async () => {
    const page = await openPage(browser);
    const paper = await paperField(page).inputValue();
    assert.match(paper, /^[1-9]\d{0,5}$/);
    assert.equal(await page.getByText("Starts with: every kind at level 2.").count(), 1);
    await button(page, "Start").click();
    await page.getByRole("heading", { name: "Exercise 1" }).waitFor();
    assert.equal(hashOf(page), `#practice/${paper}/1/mixed?v=1`);
    const { kind, level } = lesson.exercise(Number(paper), 1, "mixed");
    const { title } = lesson.kinds().find((info) => info.kind === kind);
    assert.equal((await page.locator(".which").innerText()).replaceAll("\u00A0", " "), `${title}, level ${level} · Paper ${paper}`);
    await leave(page);
});

test("a paper of the reader's own is started with Enter", async () => {
    const page = await openPage(browser);
    await paperField(page).fill(" 77 ");
    await paperField(page).press("Enter");
    await page.getByRole("heading", { name: "Exercise 1" }).waitFor();
    assert.equal(hashOf(page), "#practice/77/1/mixed?v=1");
    await leave(page);
});

for (const text of ["", "0", "1000000", "12a", "-3", "4 5", "<b>1</b>"]) {
    test(`the paper "${text}" is refused at its field, until it is mended`, async () => {
        const page = await openPage(browser);
        const field = paperField(page);
        const complaint = page.locator(".paper").getByText("A paper is a number from 1 to 999999.", { exact: true });
        await field.fill(text);
        assert.equal(await field.getAttribute("aria-invalid"), null, "while it is being typed");
        await button(page, "Start").click();
        await complaint.waitFor();
        assert.equal(await field.getAttribute("aria-invalid"), "true");
        assert.ok((await field.getAttribute("aria-describedby")).split(" ").includes(await complaint.getAttribute("id")));
        assert.equal(await field.evaluate((input) => input === document.activeElement), true);
        assert.equal(hashOf(page), "");
        await field.fill("12");
        assert.equal(await complaint.count(), 0);
        assert.equal(await field.getAttribute("aria-invalid"), null);
        await leave(page);
    });
}

test("New paper mends a wrong one", async () => {
    const page = await openPage(browser);
    await paperField(page).fill("0");
    await button(page, "Start").click();
    await button(page, "New paper").click();
    assert.equal(await paperField(page).getAttribute("aria-invalid"), null);
    assert.match(await paperField(page).inputValue(), /^[1-9]\d{0,5}$/);
    await leave(page);
});

test("who chooses first starts what is chosen", async () => {
    const page = await openPage(browser);
    await opener(page).click();
    await button(page, "None").click();
    await page
        .getByRole("group", { name: "Dilution" })
        .getByRole("checkbox", { name: /^Level 3/ })
        .check();
    await page.getByLabel("How many").selectOption("5");
    await paperField(page).fill("12");
    await button(page, "Start").click();
    await page.getByRole("heading", { name: "Exercise 1 of 5" }).waitFor();
    assert.equal(hashOf(page), "#practice/12/1/dilution:3?set=5&v=1");
    await leave(page);
});

test("a choice that was put away again is told, and started", async () => {
    const page = await openPage(browser);
    await opener(page).click();
    await button(page, "None").click();
    await opener(page).click();
    await button(page, "Start").click();
    assert.equal(await opener(page).getAttribute("aria-expanded"), "true", "nothing is chosen, which is shown");
    for (const [kind, level] of /** @type {const} */ ([
        ["Molar mass", 1],
        ["Dilution", 2],
        ["Acid-base titration", 3],
    ])) {
        await page
            .getByRole("group", { name: kind })
            .getByRole("checkbox", { name: new RegExp(`^Level ${level}`) })
            .check();
    }
    await opener(page).click();
    assert.equal(await page.getByText("Starts with: Molar mass, level 1; Dilution, level 2; and 1 more.").isVisible(), true);
    await button(page, "Start").click();
    await page.getByRole("heading", { name: "Exercise 1" }).waitFor();
    assert.match(hashOf(page), /^#practice\/\d+\/1\/molar-mass:1,dilution,titration:3\?v=1$/);
    await leave(page);
});

test("who has practised in this tab goes on first, and starts anew with the same kinds", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration:3,dilution?v=1");
    await goToStart(page);
    assert.equal(await page.locator("main button").first().innerText(), "Go on with exercise 3 of paper\u00A04821");
    await reload(page);
    await button(page, "Go on with exercise 3 of paper 4821").click();
    await page.getByRole("heading", { name: "Exercise 3" }).waitFor();
    assert.equal(hashOf(page), "#practice/4821/3/titration:3,dilution?v=1");
    await goToStart(page);
    await paperField(page).fill("9");
    await button(page, "Start").click();
    await page.getByRole("heading", { name: "Exercise 1" }).waitFor();
    assert.equal(hashOf(page), "#practice/9/1/titration:3,dilution?v=1");
    await leave(page);
});

test("who left a summary goes back to it", async () => {
    const page = await openPage(browser, "#practice/4821/6/molar-mass:1?set=5&v=1");
    await goToStart(page);
    await button(page, "Go to the summary of paper 4821").click();
    await page.getByRole("heading", { name: "Summary of paper 4821" }).waitFor();
    await leave(page);
});

test("a new tab of this device starts with the kinds that were practised last", async () => {
    const context = await browser.newContext();
    const first = await openPage(browser, "#practice/4821/3/dilution:1?v=1", { context });
    const second = await openPage(browser, "", { context });
    await agree(first, second);
    await reload(second);
    assert.equal(await second.getByRole("button", { name: /^Go on/ }).count(), 0);
    await second.getByText("Starts with: Dilution, level 1.").waitFor();
    assert.deepEqual([...first.problems, ...second.problems], []);
    await context.close();
});

for (const kept of ["alchemy", "", "titration,titration", "<b>", 7, null]) {
    test(`kinds that were kept as ${JSON.stringify(kept)} are no obstacle`, async () => {
        const page = await openPage(browser);
        await page.evaluate((value) => localStorage.setItem("chempractice.kinds", JSON.stringify(value)), kept);
        await reload(page);
        await page.getByText("Starts with: every kind at level 2.").waitFor();
        await leave(page);
    });
}

test("Practice leads to the start until something was practised; the page's name always does", async () => {
    const page = await openPage(browser, "#tables");
    await page.getByRole("link", { name: "Practice", exact: true }).click();
    await page.getByRole("heading", { name }).waitFor();
    await go(page, "#practice/4821/3/dilution");
    await page.getByRole("link", { name: "Tables" }).click();
    await page.getByRole("heading", { name: "Tables" }).waitFor();
    await page.getByRole("link", { name: "Practice", exact: true }).click();
    await page.getByRole("heading", { name: "Exercise 3" }).waitFor();
    await page.getByRole("link", { name }).click();
    await page.getByRole("heading", { name }).waitFor();
    assert.equal(await page.title(), name);
    await page.goBack();
    await page.getByRole("heading", { name: "Exercise 3" }).waitFor();
    await leave(page);
});

test("the sheets and the tables are reached from the start", async () => {
    for (const [link, heading] of [
        ["sheets to print", "Sheets to print"],
        ["tables", "Tables"],
    ]) {
        const page = await openPage(browser);
        await page.getByRole("main").getByRole("link", { name: link, exact: true }).click();
        await page.getByRole("heading", { name: heading, exact: true }).waitFor();
        await leave(page);
    }
});

test("on a phone all of it is seen without scrolling", async () => {
    for (const hash of ["", "#practice/999999/9999/titration:3,dilution,molar-mass:1"]) {
        const page = await openPage(browser, hash, { viewport: { width: 360, height: 740 }, isMobile: true, hasTouch: true });
        await goToStart(page);
        const { bottom } = await page.locator("main").evaluate((main) => main.getBoundingClientRect());
        assert.ok(bottom <= 740, `${hash} ends at ${bottom}`);
        await leave(page);
    }
});
