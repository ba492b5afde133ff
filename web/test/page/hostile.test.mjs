import assert from "node:assert/strict";
import { after, test } from "node:test";
import { address, check, go, leave, openChromium, openPage, reload, type } from "./support.mjs";

const browser = await openChromium();
after(() => browser.close());

const markup = "<img src=x onerror=window.hit=1><b>bold</b>";
const encoded = encodeURIComponent(markup);

const addresses = [
    "#practice/0/1/titration",
    "#practice/1/0/titration",
    "#practice/1000000/1/titration",
    "#practice/1/1/alchemy",
    "#practice/1/1/titration:4",
    "#practice/1/1/titration,titration:2",
    "#practice/1/1/mixed,titration",
    "#practice/1/1/mixed?v=2",
    "#practice/1/1/1*alchemy",
    "#practice/1/1/1*titration,1*alchemy",
    "#practice/1/1/1*mixed",
    "#practice/1/1/2*titration,1*titration@2",
    "#practice/1/1/1001*titration",
    "#practice/1/1/titration@0",
    "#practice/1/1/1*titration@1000000",
    `#practice/1/1/1*${encoded}`,
    `#practice/1/1/titration@${encoded}`,
    `#practice/${encoded}/1/mixed`,
    `#practice/1/${encoded}/mixed`,
    `#practice/1/1/${encoded}`,
    `#practice/1/1/mixed?set=${encoded}`,
    `#practice/1/1/mixed?v=${encoded}`,
    `#practice/1/1/mixed?back=4:${encoded}`,
    "#practice/1/1/mixed?back=4:alchemy",
    `#${encoded}`,
    `#tables/${encoded}`,
    "#%",
    "#/",
    "#?",
];

for (const hash of addresses) {
    test(`${decodeURIComponent(hash === "#%" ? "#" : hash).slice(0, 60)}: a plain message and a way on`, async () => {
        const page = await openPage(browser, hash);
        assert.equal(await page.locator("main img, main b").count(), 0);
        assert.equal(await page.evaluate(() => window.hit), undefined);
        await page.getByRole("button", { name: "Start with a new paper" }).click();
        await page.getByRole("heading", { name: "Exercise 1" }).waitFor();
        await leave(page);
    });
}

const sheets = [
    `#sheet/${encoded}`,
    "#sheet/4821",
    "#sheet/0/titration",
    "#sheet/4821/titration/more",
    "#sheet/4821/4*alchemy",
    "#sheet/4821/titration:4",
    "#sheet/4821/titration,titration:2",
    "#sheet/4821/mixed",
    "#sheet/4821/1001*titration",
    "#sheet/4821/34*titration?versions=30",
    "#sheet/4821/titration?versions=31",
    `#sheet/4821/${encoded}`,
    `#sheet/4821/titration?size=${encoded}`,
    `#sheet/4821/titration?title=${"x".repeat(81)}`,
    "#sheet/4821/titration?v=2",
    "#sheet/4821/2*titration,titration@2",
    "#sheet/4821/titration@0",
    "#sheet/4821/2*titration@999999",
    `#sheet/4821/titration@${encoded}`,
];

for (const hash of sheets) {
    test(`${decodeURIComponent(hash).slice(0, 60)}: a plain message, and on to a sheet`, async () => {
        const page = await openPage(browser, hash);
        assert.equal(await page.locator("main img, main b").count(), 0);
        assert.equal(await page.evaluate(() => window.hit), undefined);
        await page.getByRole("button", { name: "Make a new sheet" }).click();
        await page.getByRole("heading", { name: "Sheets to print" }).waitFor();
        assert.ok((await page.locator(".leaf li").count()) > 0);
        await leave(page);
    });
}

test("markup as the title of a sheet stays text, in the field and on the page", async () => {
    const page = await openPage(browser, `#sheet/4821/titration?title=${encoded}`);
    assert.equal(await page.getByLabel("Title").inputValue(), markup);
    assert.equal(await page.getByRole("heading", { level: 2 }).first().textContent(), markup);
    assert.equal(await page.locator("main img, main b").count(), 0);
    assert.equal(await page.evaluate(() => window.hit), undefined);
    await leave(page);
});

test("an address of ten million characters is a bad address like any other", async () => {
    const page = await openPage(browser);
    await page.evaluate(() => (location.hash = `#practice/1/1/${"a".repeat(10_000_000)}`));
    await page.getByText("This address does not name an exercise of this page.").waitFor();
    await leave(page);
});

for (const kind of ["titration", "compound-formula", "ion-formula", "neutralisation", "solubility:3"]) {
    test(`${kind}: markup that is typed stays text, in the preview, the mark and after a reload`, async () => {
        const page = await openPage(browser, `#practice/1/1/${kind}`);
        await type(page, markup);
        await check(page);
        await page.locator(".mark").waitFor();
        await reload(page);
        await page.locator(".mark").waitFor();
        assert.equal(await page.locator("main img, main b").count(), 0);
        assert.equal(await page.evaluate(() => window.hit), undefined);
        await leave(page);
    });
}

test("control characters, a zero byte and half of a pair are typed without harm", async () => {
    const page = await openPage(browser, "#practice/1/1/compound-formula");
    await page.evaluate(() => {
        /** @type {HTMLInputElement} */ (document.getElementById("answer")).value = "Na\0Cl\uD800\u0007\u202E";
        document.getElementById("answer").dispatchEvent(new Event("input"));
    });
    await check(page);
    await page.locator(".mark").waitFor();
    await leave(page);
});

test("the policy forbids every connection, and scripts and styles that were not built in", async () => {
    const page = await openPage(browser);
    const policy = await page.locator("meta[http-equiv]").getAttribute("content");
    assert.match(policy, /default-src 'none'/);
    assert.doesNotMatch(policy, /unsafe-inline|unsafe-eval'(?<!wasm-unsafe-eval')|connect-src|https?:/);
    const refused = await page.evaluate(async () => {
        const outcomes = await Promise.allSettled([fetch("https://example.org/"), fetch("data:text/plain,x")]);
        const script = document.createElement("script");
        script.textContent = "window.ran = 1";
        document.head.append(script);
        return [outcomes.every((outcome) => outcome.status === "rejected"), window.ran === undefined];
    });
    assert.deepEqual(refused, [true, true]);
    assert.ok(
        page.problems.length > 0 && page.problems.every((problem) => /Content Security Policy|Failed to (load|fetch)/.test(problem)),
        page.problems.join("\n"),
    );
    page.problems = [];
    await leave(page);
});

test("nothing is asked of any network, whatever is done", async () => {
    const page = await openPage(browser, "#practice/1/1/titration");
    await type(page, "0.1");
    await check(page);
    await page.getByRole("button", { name: "Show the answer" }).click();
    await go(page, "#tables");
    await page.getByRole("heading", { name: "Tables" }).waitFor();
    assert.equal(page.url().split("#")[0], address);
    await leave(page);
});
