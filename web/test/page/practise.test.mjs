// A sheet practised: the same exercises as a set.
import assert from "node:assert/strict";
import { after, test } from "node:test";
import { plain } from "./pdf.mjs";
import { check, leave, openChromium, openLesson, openPage, reload, type } from "./support.mjs";

/** @import { Exercise } from "../../src/types" */
/** @import { Page } from "./support.mjs" */

const lesson = await openLesson();
const browser = await openChromium();
after(() => browser.close());

const seen = (/** @type {Page} */ page, /** @type {string} */ selector) =>
    page
        .locator(selector)
        .first()
        .evaluate((one) => [...one.querySelectorAll("[aria-hidden]")].map((part) => part.textContent).join("") || one.textContent);

const promptOf = (/** @type {Exercise} */ exercise) => plain(exercise.prompt.map((span) => Object.values(span)[0]).join(""));

test("Practise this sheet gives the same exercises in the same order as a set, with a summary at its end", async () => {
    const page = await openPage(browser, "#sheet/4821/ion-formula@7,compound-formula,ion-formula@3?v=1");
    await page.locator(".size:not(:empty)").waitFor();
    await page.getByRole("link", { name: "Practise this sheet" }).click();
    /** @type {[string, number][]} */
    const places = [
        ["ion-formula", 7],
        ["compound-formula", 1],
        ["ion-formula", 3],
    ];
    for (const [at, [kind, number]] of places.entries()) {
        await page.getByRole("heading", { name: `Exercise ${at + 1} of 3` }).waitFor();
        assert.equal(new URL(page.url()).hash, `#practice/4821/${at + 1}/1*ion-formula@7,1*compound-formula,1*ion-formula@3?set=3&v=1`);
        const exercise = lesson.exercise(4821, number, kind);
        assert.ok(plain(await seen(page, ".prompt")).includes(promptOf(exercise)), promptOf(exercise));
        await type(page, exercise.key.text);
        await check(page);
        await page.locator(".mark[data-verdict=correct]").waitFor();
        await page.getByRole("button", { name: at === 2 ? "Finish" : "Next" }).click();
    }
    await page.getByRole("heading", { name: "Summary of paper 4821" }).waitFor();
    assert.equal(await page.locator("main a[href*='1*ion-formula@7']").count(), 3);
    await leave(page);
});

test("the link is of the chosen version, and follows what changes on the sheet", async () => {
    const page = await openPage(browser, "#sheet/999999/2*ion-formula?versions=2&v=1");
    await page.locator(".size:not(:empty)").waitFor();
    const link = page.getByRole("link", { name: "Practise this sheet" });
    assert.equal(await link.getAttribute("href"), "#practice/999999/1/2*ion-formula?set=2&v=1");
    await page.getByLabel("Version to save or practise").selectOption("1");
    assert.equal(await link.getAttribute("href"), "#practice/1/1/2*ion-formula?set=2&v=1");
    await page.getByRole("button", { name: "Down with exercise 1" }).press("Enter");
    await page.waitForFunction(
        () =>
            /** @type {HTMLAnchorElement} */ (document.querySelector(".practise a")).hash ===
            "#practice/1/1/1*ion-formula@2,1*ion-formula?set=2&v=1",
    );
    await leave(page);
});

test("the practice link is copied, from a file without the file's own place", async () => {
    const context = await browser.newContext({ permissions: ["clipboard-read", "clipboard-write"] });
    const page = await openPage(browser, "#sheet/4821/ion-formula@7,dilution:1?v=1", { context });
    await page.getByRole("button", { name: "Copy the practice link" }).click();
    await page.getByText("The link is copied.").first().waitFor();
    assert.equal(await page.evaluate(() => navigator.clipboard.readText()), "#practice/4821/1/1*ion-formula@7,1*dilution:1?set=2&v=1");
    await leave(page);
});

test("the summary of a sheet that was practised comes at its address, and again after a reload", async () => {
    const page = await openPage(browser, "#practice/4821/3/1*ion-formula,1*dilution:1?set=2&v=1");
    for (let time = 0; time < 2; ++time) {
        await page.getByRole("heading", { name: "Summary of paper 4821" }).waitFor();
        await reload(page);
    }
    await leave(page);
});
