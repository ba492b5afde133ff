// What the page holds of the work of others is told in it.
import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { after, test } from "node:test";
import { leave, openChromium, openPage } from "./support.mjs";

const browser = await openChromium();
after(() => browser.close());

const notices = await readFile(new URL("../../../NOTICES.md", import.meta.url), "utf8");
const wordsOf = (/** @type {string} */ text) =>
    text.split(/\s+/).filter((/** @type {string} */ word) => word !== "" && word !== "#" && word !== "##");

for (const hash of ["", "#practice/4821/3/titration:3", "#tables", "#sheet/4821/2*ion-formula"]) {
    test(`from ${hash === "" ? "the start" : hash} the last stop of the keyboard leads to the notices`, async () => {
        const page = await openPage(browser, hash);
        await page.locator("a, button, input").last().focus();
        assert.equal(await page.evaluate(() => document.activeElement.textContent), "Notices");
        await page.keyboard.press("Tab");
        assert.equal(await page.evaluate(() => document.activeElement === document.body), true);
        await page.keyboard.press("Shift+Tab");
        await page.keyboard.press("Enter");
        await page.getByRole("heading", { level: 1, name: "Notices", exact: true }).waitFor();
        assert.equal(await page.evaluate(() => document.activeElement.textContent), "Notices");
        assert.match(await page.title(), /^Notices – /);
        await leave(page);
    });
}

test("the notices are there word for word, and a heading tells whose work it is", async () => {
    const page = await openPage(browser, "#notices");
    await page.getByRole("heading", { level: 2, name: "libc++" }).waitFor();
    const shown = await page.locator("main").innerText();
    assert.deepEqual(wordsOf(shown), wordsOf(notices.replaceAll("`", "")));
    assert.deepEqual(await page.getByRole("heading", { level: 2 }).allTextContents(), ["fflate", "musl", "wasi-libc", "libc++"]);
    await leave(page);
});

for (const hash of ["#practice/4821/3/titration:3", "#tables", "#sheet/4821/2*ion-formula"]) {
    test(`the way to the notices is not printed, ${hash}`, async () => {
        const page = await openPage(browser, hash);
        const link = page.getByRole("link", { name: "Notices" });
        assert.equal(await link.isVisible(), true);
        await page.emulateMedia({ media: "print" });
        assert.equal(await page.locator(".foot a").isVisible(), false);
        await leave(page);
    });
}

test("the licence of fflate is quoted in full", async () => {
    const licence = await readFile(new URL("../../node_modules/fflate/LICENSE", import.meta.url), "utf8");
    assert.ok(wordsOf(notices).join(" ").includes(wordsOf(licence).join(" ")));
});
