// What axe finds in every state of the page, and what a screen reader gets of an exercise.

import assert from "node:assert/strict";
import { after, test } from "node:test";
import axe from "axe-core";
import { answerWith, press, states, verdicts } from "./states.mjs";
import { announced, check, compareWithApproved, leave, openChromium, openLesson, openPage, reload, type } from "./support.mjs";

/** @import { Locator } from "playwright-core" */
/** @import { Page } from "./support.mjs" */

const lesson = await openLesson();
const browser = await openChromium();
after(() => browser.close());

async function violations(/** @type {Page} */ page, /** @type {object} */ options) {
    const results = await page.evaluate((more) => window.axe.run({ preload: false, resultTypes: ["violations"], ...more }), options);
    return results.violations.map(({ id, help, nodes }) => `${id}: ${help}: ${nodes.map((node) => node.html.slice(0, 150)).join(" | ")}`);
}

for (const [name, hash, reach] of states) {
    test(`${name}: axe finds nothing, light or dark`, async () => {
        const page = await openPage(browser, hash);
        await reach(page);
        await page.evaluate(axe.source);
        assert.deepEqual(await violations(page, {}), [], "light");
        // The elements are the same.
        await page.emulateMedia({ colorScheme: "dark" });
        assert.deepEqual(await violations(page, { runOnly: ["cat.color"] }), [], "dark");
        await leave(page);
    });
}

test("the live region is there at load, and empty", async () => {
    for (const hash of ["#practice/4821/3/titration:3", "#tables", "#practice/0/1/mixed", "#sheet/4821/2*titration"]) {
        const page = await openPage(browser, hash);
        const region = page.getByRole("status").and(page.locator("#announcement"));
        assert.equal(await region.count(), 1, hash);
        await page.waitForTimeout(200); // An announcement takes a while to come.
        assert.equal(await region.textContent(), "", hash);
        await leave(page);
    }
});

test("a mark that is shown again after a reload is not announced", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration:3");
    await answerWith(page, verdicts.slip, "slip");
    await reload(page);
    await page.locator(".mark").waitFor();
    await page.waitForTimeout(200);
    assert.equal(await page.locator("#announcement").textContent(), "");
    await leave(page);
});

const described = {
    "titration:3": ["Your answer: c of H N O 3", "A number in moles per litre, to 3 significant figures."],
    "compound-formula:3": ["Your answer", "A formula, for example Ca(OH)2. Small numbers are typed as ordinary ones."],
    "ion-formula:3": ["Your answer", "An ion with its charge, for example SO4^2- or NH4+."],
    "neutralisation:3": ["Your answer", "A balanced equation, for example 2H2 + O2 -> 2H2O."],
    "solubility:3": ["Your answer", "A formula, or the word none."],
};

// By the browser's own tree, which is what a screen reader is given.
async function fieldInTree(/** @type {Page} */ page) {
    const client = await page.context().newCDPSession(page);
    const { nodes } = await client.send("Accessibility.getFullAXTree");
    const field = nodes.find((node) => node.role?.value === "textbox" && !node.ignored);
    return [field.name.value, field.description?.value].map((text) => text?.replace(/\s+/g, " ").trim());
}

for (const [kind, [label, hint]] of Object.entries(described)) {
    test(`the field for ${kind} has a label and tells how to fill it`, async () => {
        const page = await openPage(browser, `#practice/4821/3/${kind}`);
        assert.deepEqual(await fieldInTree(page), [label, hint]);
        await leave(page);
    });
}

// The prompt does not say how many figures to give.
for (const { kind, levels } of (await openLesson()).kinds()) {
    test(`${kind}: where a number is asked for, the field tells in which unit and to how many figures`, async () => {
        for (const [at] of levels.entries()) {
            const { ask } = lesson.exercise(4821, 3, `${kind}:${at + 1}`);
            const page = await openPage(browser, `#practice/4821/3/${kind}:${at + 1}`);
            assert.equal(await page.locator("#hint").getByText("significant figures").count(), ask.form === "number" ? 2 : 0);
            if (ask.form === "number") {
                const [, hint] = await fieldInTree(page);
                assert.match(hint, new RegExp(`^A number in [a-z]+( per [a-z]+)?, to ${ask.figures} significant figures\\.$`));
                assert.ok(await page.locator("#hint").getByText(`to ${ask.figures} significant figures`).first().isVisible());
            }
            await leave(page);
        }
    });
}

const invalid = [
    { kind: "titration:3", wrong: verdicts.wrong, right: verdicts.correct },
    { kind: "titration:3", wrong: verdicts.figures, right: verdicts.correct },
    { kind: "titration:3", wrong: verdicts.unreadable, right: verdicts.correct },
    { kind: "ion-formula:3", wrong: "Zz^+", right: null },
    { kind: "solubility:1", wrong: "no", right: "yes" },
];
const answerField = (/** @type {Page} */ page) => page.locator("#answer, .answer[role=radiogroup]");
const descriptionOf = (/** @type {Locator} */ field) =>
    field.evaluate((one) =>
        (one.getAttribute("aria-describedby") ?? "")
            .split(" ")
            .map((id) => document.getElementById(id)?.textContent ?? "")
            .join(" "),
    );

for (const { kind, wrong, right } of invalid) {
    for (const way of ["Enter", "Check"]) {
        test(`${kind}, "${wrong}", ${way}: the field is invalid and tells the mark, until the text is another`, async () => {
            const page = await openPage(browser, `#practice/4821/3/${kind}`);
            const field = answerField(page);
            const before = await descriptionOf(field);
            assert.equal(await field.getAttribute("aria-invalid"), null, "new");
            await type(page, wrong);
            await (way === "Check" ? check(page) : page.keyboard.press("Enter"));
            const said = await announced(page);
            await page.locator("[aria-describedby~=mark]").waitFor();
            assert.equal(await field.getAttribute("aria-invalid"), "true");
            const described = await descriptionOf(field);
            assert.ok(described.startsWith(before) && described.includes(said), described);
            await type(page, right ?? lesson.exercise(4821, 3, kind).key.text);
            assert.deepEqual([await field.getAttribute("aria-invalid"), await descriptionOf(field)], [null, before], "another text");
            await type(page, wrong);
            assert.deepEqual([await field.getAttribute("aria-invalid"), await descriptionOf(field)], ["true", described], "the same again");
            await reload(page);
            assert.deepEqual([await field.getAttribute("aria-invalid"), await descriptionOf(field)], ["true", described], "after a reload");
            await type(page, right ?? lesson.exercise(4821, 3, kind).key.text);
            await check(page);
            await page.locator(".mark[data-verdict=correct]").waitFor();
            assert.deepEqual([await field.getAttribute("aria-invalid"), await descriptionOf(field)], [null, before], "right");
            await leave(page);
        });
    }
}

// Else a screen reader tells the mark twice: as the field's description, and as an announcement.
test("where Check gives the focus to the field, the field does not tell the mark at that moment", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration:3");
    await page
        .locator("#answer")
        .evaluate((field) => field.addEventListener("focus", () => (window.toldAtFocus = field.getAttribute("aria-describedby"))));
    await type(page, verdicts.wrong);
    await check(page);
    await page.locator("#answer:focus").waitFor();
    assert.equal(await page.evaluate(() => window.toldAtFocus), "hint");
    await leave(page);
});

test("choices are a group with a question", async () => {
    const page = await openPage(browser, "#practice/4821/3/solubility:1");
    const group = page.getByRole("radiogroup", { name: "Does it dissolve?" });
    assert.deepEqual(await group.getByRole("radio").count(), 2);
    await leave(page);
});

test("a screen reader's view of a titration, its mark and its solution is the approved one", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration:2");
    const { slips, solution } = lesson.exercise(4821, 3, "titration:2");
    const parts = ["== The exercise", await page.getByRole("main").ariaSnapshot()];
    await type(page, slips[0].text);
    await check(page);
    parts.push(`== "${slips[0].text}" is announced as`, await announced(page), "== The mark", await page.locator(".mark").ariaSnapshot());
    for (let presses = 1; presses <= solution.length + 1; ++presses) {
        await press(page, "Show a step");
        parts.push(`== press ${presses} is announced as`, await announced(page));
    }
    parts.push("== The solution", await page.getByRole("region", { name: "Solution" }).ariaSnapshot());
    await compareWithApproved("titration.txt", `${parts.join("\n\n")}\n`);
    await leave(page);
});
