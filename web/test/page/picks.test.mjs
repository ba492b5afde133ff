// A sheet's exercises one by one: another instead, up, down.
import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { after, test } from "node:test";
import { leafTexts, letters, pagesOf, plain } from "./pdf.mjs";
import { announced, isMade, leave, moved, openChromium, openLesson, openMadeSheet, reload } from "./support.mjs";

/** @import { Page } from "./support.mjs" */

const lesson = await openLesson();
const browser = await openChromium();
after(() => browser.close());

const openSheet = (/** @type {string} */ hash, options = {}) => openMadeSheet(browser, hash, options);

const listIn = (/** @type {Page} */ page) => new URL(page.url()).hash.split("/")[2].split("?")[0];

const tool = (/** @type {Page} */ page, /** @type {string} */ name) => page.getByRole("button", { name, exact: true });

const focused = (/** @type {Page} */ page) =>
    page.evaluate(() => document.activeElement.getAttribute("aria-label") ?? document.activeElement.textContent);

async function waitForList(/** @type {Page} */ page, /** @type {string} */ list) {
    await page.waitForFunction((wanted) => location.hash.split("/")[2].split("?")[0] === wanted, list);
    await isMade(page);
}

// What is asked of the first version, in the order of its pages.
async function asksOf(/** @type {Page} */ page, /** @type {number} */ count) {
    const lines = await page
        .locator(".leaf ol > li .asks")
        .evaluateAll((all) =>
            all.map((one) => [...one.querySelectorAll("[aria-hidden]")].map((part) => part.textContent).join("") || one.textContent),
        );
    return lines.slice(0, count).map(plain);
}

// Each "kind@number" of the paper, as the library asks it.
const asked = (/** @type {number} */ paper, /** @type {string[]} */ places) =>
    places.map((place) => {
        const [kind, number] = place.split("@");
        return plain(
            lesson
                .exercise(paper, Number(number), kind)
                .prompt.map((span) => Object.values(span)[0])
                .join(""),
        );
    });

async function isOnThePage(/** @type {Page} */ page, /** @type {number} */ paper, /** @type {string[]} */ places) {
    const lines = await asksOf(page, places.length);
    asked(paper, places).forEach((/** @type {string} */ text, at) =>
        assert.ok(lines[at].includes(text), `${at + 1}: ${lines[at]} is not ${text}`),
    );
}

test("Another puts the next exercise of the kind and level in its place, and the focus and the address follow", async () => {
    const page = await openSheet("#sheet/4821/3*ion-formula,dilution:1?v=1");
    await tool(page, "Another instead of exercise 2").press("Enter");
    await waitForList(page, "ion-formula,ion-formula@4,ion-formula@3,dilution:1");
    assert.equal(await announced(page), "Exercise 2 is another one now.");
    assert.equal(await focused(page), "Another instead of exercise 2");
    await page.keyboard.press("Enter");
    await waitForList(page, "ion-formula,ion-formula@5,ion-formula@3,dilution:1");
    await isOnThePage(page, 4821, ["ion-formula@1", "ion-formula@5", "ion-formula@3", "dilution:1@1"]);
    await reload(page);
    await isMade(page);
    await isOnThePage(page, 4821, ["ion-formula@1", "ion-formula@5", "ion-formula@3", "dilution:1@1"]);
    await leave(page);
});

test("Up and Down move an exercise, the focus goes with it, and at either end it stays", async () => {
    const page = await openSheet("#sheet/4821/2*ion-formula,dilution:1?v=1");
    await tool(page, "Up with exercise 3").press("Enter");
    await waitForList(page, "ion-formula,dilution:1,ion-formula@2");
    assert.equal(await announced(page), "Exercise 3 is exercise 2 now.");
    assert.equal(await focused(page), "Up with exercise 2");
    await page.keyboard.press("Enter");
    await waitForList(page, "dilution:1,2*ion-formula");
    assert.equal(await focused(page), "Up with exercise 1");
    await page.keyboard.press("Enter");
    await page.waitForTimeout(100);
    assert.deepEqual([listIn(page), await focused(page)], ["dilution:1,2*ion-formula", "Up with exercise 1"]);
    await tool(page, "Down with exercise 1").press("Enter");
    await waitForList(page, "ion-formula,dilution:1,ion-formula@2");
    await isOnThePage(page, 4821, ["ion-formula@1", "dilution:1@1", "ion-formula@2"]);
    await leave(page);
});

test("Back takes back one pick after another, and before them what was changed in the form since", async () => {
    const page = await openSheet("#sheet/4821/2*ion-formula,dilution:1?v=1");
    const lists = [
        "2*ion-formula,dilution:1",
        "ion-formula@3,ion-formula@2,dilution:1",
        "ion-formula@3,dilution:1,ion-formula@2",
        "ion-formula@3,dilution:1,ion-formula@2,ion-formula@4",
    ];
    await tool(page, "Another instead of exercise 1").press("Enter");
    await waitForList(page, lists[1]);
    await tool(page, "Up with exercise 3").press("Enter");
    await waitForList(page, lists[2]);
    const ions = page.getByRole("spinbutton", { name: /^Formula of an ion, level 2/ });
    await ions.fill("3");
    await waitForList(page, lists[3]);
    await page.getByLabel("Title").fill("Test");
    await page.waitForFunction(() => location.hash.includes("title=Test"));
    for (const list of lists.slice(0, 3).reverse()) {
        await moved(page, () => page.goBack());
        await waitForList(page, list);
        assert.equal(await ions.inputValue(), "2");
        assert.equal(await page.getByLabel("Title").inputValue(), "Chemical calculations");
    }
    await isOnThePage(page, 4821, ["ion-formula@1", "ion-formula@2", "dilution:1@1"]);
    await moved(page, () => page.goForward());
    await waitForList(page, lists[1]);
    await isOnThePage(page, 4821, ["ion-formula@3", "ion-formula@2", "dilution:1@1"]);
    await leave(page);
});

test("the counts are of what is on the sheet, and another count loses no pick", async () => {
    const page = await openSheet("#sheet/4821/ion-formula@7,dilution:1,ion-formula@3?v=1");
    const ions = page.getByRole("spinbutton", { name: /^Formula of an ion, level 2/ });
    assert.equal(await ions.inputValue(), "2");
    await ions.fill("3");
    await waitForList(page, "ion-formula@7,dilution:1,ion-formula@3,ion-formula@8");
    await ions.fill("1");
    await waitForList(page, "ion-formula@7,dilution:1");
    await ions.fill("");
    await waitForList(page, "dilution:1");
    await ions.fill("2");
    await waitForList(page, "ion-formula@7,dilution:1,ion-formula@3");
    await page.getByLabel("Title").fill("Test");
    await page.waitForFunction(() => location.hash.includes("title=Test"));
    assert.equal(listIn(page), "ion-formula@7,dilution:1,ion-formula@3");
    await leave(page);
});

test("what is picked holds for all versions, in print, in the key and in the files", async () => {
    const page = await openSheet("#sheet/4821/2*ion-formula,compound-formula?versions=2&v=1", { acceptDownloads: true });
    await page.locator(".leaf li").first().hover();
    await tool(page, "Another instead of exercise 1").click();
    const list = "ion-formula@3,ion-formula@2,compound-formula";
    await waitForList(page, list);
    const preview = await page.evaluate(leafTexts);
    const pages = pagesOf(await page.pdf({ preferCSSPageSize: true }));
    assert.deepEqual(
        pages.map((lines) => letters(lines.map((line) => line.text).join("\n"))),
        preview.map(letters),
    );
    const all = plain(preview.join(""));
    for (const paper of [4821, 4822]) {
        for (const text of asked(paper, ["ion-formula@3", "ion-formula@2", "compound-formula@1"])) {
            assert.ok(all.includes(text), `${paper}: ${text}`);
        }
    }
    await page.getByLabel("Version to save or practise").selectOption("4822");
    const [download] = await Promise.all([page.waitForEvent("download"), page.getByRole("button", { name: "Anki cards" }).click()]);
    assert.equal(await readFile(await download.path(), "utf8"), lesson.exportText(4822, list, "anki"));
    await leave(page);
});

test("only the first version has the buttons, and a key alone has none", async () => {
    const page = await openSheet("#sheet/4821/3*ion-formula?versions=3&v=1");
    assert.equal(await page.locator(".picks").count(), 3);
    await page.getByLabel("What to print").selectOption("The key alone");
    await page.waitForFunction(() => location.hash.includes("parts=key"));
    await isMade(page);
    assert.equal(await page.locator(".picks").count(), 0);
    await leave(page);
});

test("the buttons come up over the exercise that is pointed at, and take no room of the page", async () => {
    const page = await openSheet("#sheet/4821/4*ion-formula?v=1");
    const places = () => page.locator(".leaf li").evaluateAll((/** @type {HTMLElement[]} */ all) => all.map((one) => one.offsetTop));
    const before = await places();
    assert.equal(
        await page
            .locator(".picks")
            .nth(1)
            .evaluate((one) => getComputedStyle(one).opacity),
        "0",
    );
    await page.locator(".leaf li").nth(1).hover();
    assert.equal(
        await page
            .locator(".picks")
            .nth(1)
            .evaluate((one) => getComputedStyle(one).opacity),
        "1",
    );
    await tool(page, "Down with exercise 2").click();
    await waitForList(page, "ion-formula,ion-formula@3,ion-formula@2,ion-formula@4");
    assert.deepEqual(await places(), before);
    await leave(page);
});

test("on a touch screen they are always there, each as large as a fingertip", async () => {
    const page = await openSheet("#sheet/4821/4*ion-formula?v=1", {
        viewport: { width: 360, height: 740 },
        hasTouch: true,
        isMobile: true,
    });
    const sizes = await page
        .locator(".picks button")
        .evaluateAll((/** @type {HTMLElement[]} */ all) =>
            all.map((one) => ({ width: one.offsetWidth, height: one.offsetHeight, opacity: getComputedStyle(one.parentElement).opacity })),
        );
    assert.equal(sizes.length, 12);
    assert.deepEqual(
        sizes.filter(({ width, height, opacity }) => width < 44 || height < 44 || opacity !== "1"),
        [],
    );
    await tool(page, "Another instead of exercise 4").tap();
    await waitForList(page, "3*ion-formula,ion-formula@5");
    await leave(page);
});

test("the page stays where it is scrolled to while an exercise is replaced", async () => {
    const page = await openSheet("#sheet/4821/30*ion-formula?room=much&v=1", { reducedMotion: "reduce" });
    await tool(page, "Another instead of exercise 25").focus();
    await page.waitForTimeout(100);
    const before = await page.evaluate(() => scrollY);
    assert.ok(before > 500);
    await page.keyboard.press("Enter");
    await page.locator(".size:not(:empty)").waitFor();
    await page.waitForFunction(() => location.hash.includes("@31"));
    assert.ok(Math.abs((await page.evaluate(() => scrollY)) - before) < 60);
    await leave(page);
});
