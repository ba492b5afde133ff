// What is heard beside what the focus tells: each thing once, and nothing of another address.
import assert from "node:assert/strict";
import { after, test } from "node:test";
import { announced, check, go, leave, openChromium, opener, openLesson, openPage, panel, type } from "./support.mjs";

/** @import { Locator } from "playwright-core" */
/** @import { Page } from "./support.mjs" */

const lesson = await openLesson();
const browser = await openChromium();
after(() => browser.close());

const button = (/** @type {Page} */ page, /** @type {string} */ name) => page.getByRole("button", { name, exact: true });
const enter = (/** @type {Page} */ page, /** @type {string} */ name) => button(page, name).press("Enter");
const isFocused = (/** @type {Locator} */ locator) => locator.evaluate((element) => element === document.activeElement);

// All that live regions say from now on, in order.
async function listen(/** @type {Page} */ page) {
    await page.evaluate(() => {
        window.heard = [];
        for (const region of document.querySelectorAll("[role=status]")) {
            const hear = () => region.textContent !== "" && window.heard.push(region.textContent);
            new MutationObserver(hear).observe(region, { childList: true, subtree: true, characterData: true });
        }
    });
}

// Once all of it has been said.
async function heard(/** @type {Page} */ page) {
    await page.waitForTimeout(150);
    return page.evaluate(() => window.heard.splice(0));
}

// As the browser's own tree gives the paragraph to a screen reader.
async function spokenOf(/** @type {Locator} */ locator) {
    const [, text] = /^- paragraph: "?(.*?)"?$/s.exec(await locator.ariaSnapshot());
    return text;
}

async function inTree(/** @type {Page} */ page) {
    const client = await page.context().newCDPSession(page);
    const { result } = await client.send("Runtime.evaluate", { expression: "document.activeElement" });
    const { nodes } = await client.send("Accessibility.getPartialAXTree", { objectId: result.objectId, fetchRelatives: false });
    return { name: nodes[0].name.value, description: nodes[0].description?.value ?? "" };
}

for (const kind of ["titration:3", "ion-formula:2", "solubility:1"]) {
    test(`${kind}: who comes to an exercise hears which one it is and its question`, async () => {
        const page = await openPage(browser, `#practice/4821/3/${kind}`);
        await listen(page);
        await enter(page, "Next");
        await page.getByRole("heading", { name: "Exercise 4" }).waitFor();
        const question = await spokenOf(page.locator(".prompt"));
        assert.deepEqual(await heard(page), [`Exercise 4. ${question}`]);
        await page.goBack();
        await page.getByRole("heading", { name: "Exercise 3" }).waitFor();
        assert.deepEqual(await heard(page), [`Exercise 3. ${await spokenOf(page.locator(".prompt"))}`]);
        await leave(page);
    });
}

test("nothing that was told of one address is there to be read at another", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration:3");
    await type(page, lesson.exercise(4821, 3, "titration:3").key.text);
    await check(page);
    assert.equal(await announced(page), "Correct.");
    await go(page, "#tables");
    await page.waitForTimeout(150);
    assert.equal(await page.locator("#announcement").textContent(), "");
    await leave(page);
});

for (const kind of ["titration:3", "compound-formula:3", "solubility:1", "neutralisation:3"]) {
    test(`${kind}: Show the answer tells the answer, and not a step from the middle`, async () => {
        const page = await openPage(browser, `#practice/4821/3/${kind}`);
        await listen(page);
        await enter(page, "Show the answer");
        const answer = (await page.locator(".key").ariaSnapshot())
            .replace(/^- paragraph:\s+/, "")
            .replace(/- (strong|text): /g, "")
            .replace(/["\n]/g, "")
            .replace(/\s+/g, " ")
            .trim();
        const [said, ...more] = await heard(page);
        assert.deepEqual(more, []);
        assert.equal(said.replace(/\.$/, ""), answer);
        await leave(page);
    });
}

test("All, None and New paper tell what they have done", async () => {
    const page = await openPage(browser);
    await listen(page);
    await enter(page, "Choose exercises");
    await enter(page, "None");
    assert.deepEqual(await heard(page), ["No level is chosen."]);
    await enter(page, "All");
    assert.deepEqual(await heard(page), ["Every level of every kind is chosen."]);
    await enter(page, "New paper");
    assert.deepEqual(await heard(page), [`Paper\u00A0${await page.getByLabel("Paper", { exact: true }).inputValue()}`]);
    await leave(page);
});

test("New paper of a sheet tells the paper, and then the sheet's size", async () => {
    const page = await openPage(browser, "#sheet/4821/2*titration?v=1");
    await page.locator(".size:not(:empty)").waitFor();
    await listen(page);
    await enter(page, "New paper");
    await page.waitForFunction(() => window.heard.length > 1);
    assert.deepEqual(await heard(page), [
        `Paper\u00A0${await page.getByLabel("Paper", { exact: true }).inputValue()}`,
        await page.locator(".size").innerText(),
    ]);
    await leave(page);
});

test("of what is wrong in a choice, the field that gets the focus tells its own and the rest is announced; at each press", async () => {
    const page = await openPage(browser);
    await opener(page).click();
    await button(page, "None").click();
    assert.equal(await announced(page), "No level is chosen.");
    const paper = page.getByLabel("Paper", { exact: true });
    await paper.fill("abc");
    await listen(page);
    await paper.press("Enter");
    assert.deepEqual(await heard(page), ["A paper is a number from 1 to 999999."]);
    assert.equal((await inTree(page)).description, "Choose at least one level of one kind.");
    await page.keyboard.press("Enter");
    assert.deepEqual(
        await heard(page),
        ["Choose at least one level of one kind. A paper is a number from 1 to 999999."],
        "in the field itself",
    );
    await leave(page);
});

test("a count that is wrong is told with its kind and level, once the focus is elsewhere", async () => {
    const page = await openPage(browser, "#sheet/4821/2*titration?v=1");
    await page.getByRole("spinbutton", { name: /^Dilution, level 2/ }).focus();
    await page.keyboard.type("99999");
    await page.keyboard.press("Tab");
    assert.equal(await announced(page), "Dilution, level 2: Each count is a whole number up to 1000.");
    await leave(page);
});

test("a link of the overview tells its state once", async () => {
    const page = await openPage(browser, "#practice/4821/1/molar-mass:1?set=4");
    await page.locator(".overview [aria-current]").focus();
    await page.keyboard.press("ArrowRight");
    assert.deepEqual(await inTree(page), { name: "Exercise 2: open", description: "" });
    await leave(page);
});

test("a question is told by its group as the focus comes in, and not announced a second time", async () => {
    const page = await openPage(browser, "#practice/4821/4/molar-mass:1?set=4");
    await listen(page);
    await enter(page, "Finish");
    assert.equal(
        await isFocused(page.getByRole("group", { name: "4 exercises are open." }).getByRole("button", { name: "Go to exercise 1" })),
        true,
    );
    assert.deepEqual(await heard(page), []);
    await leave(page);
});

test("on a touch screen, where a group's name may not be told, a question is announced", async () => {
    const page = await openPage(browser, "#practice/4821/4/molar-mass:1?set=4", { hasTouch: true, isMobile: true });
    await enter(page, "Finish");
    assert.equal(await announced(page), "4 exercises are open.");
    await leave(page);
});

for (const way of ["a right answer", "the answer shown"]) {
    test(`${way} takes back a question of how many are open, and leads on`, async () => {
        const page = await openPage(browser, "#practice/4821/4/molar-mass:1?set=4");
        await enter(page, "Finish");
        if (way === "a right answer") {
            await page.locator("#answer").fill(lesson.exercise(4821, 4, "molar-mass:1").key.text);
            await page.locator("#answer").press("Enter");
            assert.equal(await isFocused(button(page, "Finish")), true);
        } else {
            await enter(page, "Show the answer");
            await page.keyboard.press("Tab");
        }
        assert.equal(await page.getByRole("group", { name: "4 exercises are open." }).count(), 0);
        await page.keyboard.press("Enter");
        assert.equal(await page.getByRole("group", { name: "3 exercises are open." }).count(), 1);
        await leave(page);
    });
}

test("folding the grid does not tell the chosen cell's reason again", async () => {
    const page = await openPage(browser, "#tables");
    await page.getByRole("button", { name: "silver chloride: insoluble" }).click();
    const reason = await page.locator(".reason").textContent();
    await listen(page);
    await enter(page, "Show those that are never asked");
    await enter(page, "Hide those that are never asked");
    assert.deepEqual(await heard(page), []);
    assert.equal(await page.locator(".reason").textContent(), reason);
    await enter(page, "Show those that are never asked");
    await page.getByRole("button", { name: "silver fluoride: not asked" }).click();
    await enter(page, "Hide those that are never asked");
    assert.equal(await page.locator(".reason").textContent(), "", "of a cell that is folded away");
    await leave(page);
});

test("the reason of a pair is told once, however often it is asked for, and that of another one anew", async () => {
    const page = await openPage(browser, "#tables");
    await enter(page, "silver chloride: insoluble");
    await listen(page);
    await enter(page, "silver chloride: insoluble");
    assert.deepEqual(await heard(page), []);
    await enter(page, "silver bromide: insoluble");
    assert.match((await heard(page)).join("|"), /^AgBr A g B r: insoluble\. [^|]+$/);
    await leave(page);
});

test("of the links among the views those stay that lead where they led", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration:3");
    await page.evaluate(() => {
        window.links = [...document.querySelectorAll("#views a")];
    });
    await go(page, "#tables");
    const stayed = () => page.evaluate(() => window.links.map((link) => `${link.textContent} ${link.isConnected}`));
    assert.deepEqual(await stayed(), ["Practice false", "Sheets true", "Tables false"]);
    await go(page, "#practice/4821/3/titration:3");
    assert.deepEqual(await stayed(), ["Practice false", "Sheets true", "Tables false"]);
    await leave(page);
});

test("Enter in the search tells at once what is found, and each further one tells it again", async () => {
    const page = await openPage(browser, "#tables");
    await listen(page);
    const field = page.getByLabel("Find an element");
    const mass = lesson.tables().elements.find(({ symbol }) => symbol === "Na").mass;
    const found = `N a, sodium, number 11, relative atomic mass ${mass}.`;
    await field.fill("Na");
    await field.press("Enter");
    assert.deepEqual(await heard(page), [found]);
    await page.waitForTimeout(450);
    assert.deepEqual(await heard(page), [], "when the pause is over");
    await field.press("Enter");
    assert.deepEqual(await heard(page), [found]);
    await leave(page);
});

// What has the focus, frame by frame.
async function watchFocus(/** @type {Page} */ page) {
    await page.evaluate(() => {
        window.stops = [];
        const look = () => {
            const stop = document.activeElement.getAttribute("aria-label") ?? document.activeElement.localName;
            if (window.stops[window.stops.length - 1] !== stop) {
                window.stops.push(stop);
            }
            requestAnimationFrame(look);
        };
        look();
    });
}

async function openClassSet() {
    const page = await openPage(browser, "#sheet/4821/20*titration?versions=30&v=1");
    await page.locator(".size:not(:empty)").waitFor({ timeout: 60_000 });
    await page.getByRole("button", { name: "Down with exercise 1", exact: true }).focus();
    await watchFocus(page);
    await page.keyboard.press("Enter");
    return page;
}

const isMade = (/** @type {Page} */ page) =>
    page.getByRole("button", { name: "Down with exercise 1", exact: true }).waitFor({ timeout: 60_000 });

test("while the pages of a class set are made anew the focus is not lost", async () => {
    const page = await openClassSet();
    await isMade(page);
    await page.waitForFunction(() => window.stops.length > 1 && document.activeElement.localName === "button");
    assert.deepEqual(await page.evaluate(() => window.stops), ["Down with exercise 1", "Pages", "Down with exercise 2"]);
    await leave(page);
});

test("who goes on while the pages are made keeps the focus", async () => {
    const page = await openClassSet();
    await page.keyboard.press("Shift+Tab");
    const copy = button(page, "Copy the practice link");
    assert.equal(await isFocused(copy), true, "meanwhile");
    await isMade(page);
    await page.waitForTimeout(100);
    assert.equal(await isFocused(copy), true, "at the end");
    await leave(page);
});

test("a display that changes is not announced, and leaves the focus where it is", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration:3");
    await panel(page, "How it is written").click();
    await listen(page);
    await page.getByRole("radio", { name: "Point: 0.5" }).focus();
    await page.keyboard.press("ArrowDown");
    assert.equal(await isFocused(page.getByRole("radio", { name: "Comma: 0,5" })), true);
    assert.deepEqual(await heard(page), []);
    await leave(page);
});
