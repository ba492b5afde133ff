// Everything is written as the reader wishes, in the reader's language, and nothing that was typed is.
import assert from "node:assert/strict";
import { after, test } from "node:test";
import {
    announced,
    check,
    leave,
    openChromium,
    opener,
    openLesson,
    openMadeSheet,
    openPage,
    otherSettings,
    otherWriting,
    panel,
    plainOf,
    samples,
    type,
} from "./support.mjs";

/** @import { Page } from "./support.mjs" */

const lesson = await openLesson();
const browser = await openChromium();
after(() => browser.close());

// Names and units of British English, mL, L and a slash, and a decimal point.
const usualWords =
    /[Aa]lumini|[Cc]aesium|[Ee]thano|[Hh]ydrogen(carbon|sul|phos)|[Mm]anganate|[Nn]eutralis|(lit|met)re|\bm?L\b|mol\/|\d\.\d/;

/** @type {(settings: object) => { before: () => void }} */
const writtenAs = (settings) => ({
    before: /** @type {() => void} */ (
        new Function(`localStorage.setItem("chempractice.settings", ${JSON.stringify(JSON.stringify(settings))});`)
    ),
});

// What of all that is seen or heard of some elements is not written as the reader wishes.
async function usualIn(/** @type {Page} */ page, /** @type {string} */ of) {
    return (await textsOf(page, of)).filter((text) => usualWords.test(text));
}

const textsOf = (/** @type {Page} */ page, /** @type {string} */ of) =>
    page.locator(of).evaluateAll((found) =>
        found.flatMap((one) => {
            const texts = [];
            const walker = document.createTreeWalker(one, NodeFilter.SHOW_TEXT);
            while (walker.nextNode()) {
                texts.push(walker.currentNode.nodeValue);
            }
            const named = [...one.querySelectorAll("[aria-label], [title]")];
            return [
                ...texts,
                ...named.flatMap((element) => [element.getAttribute("aria-label") ?? "", element.getAttribute("title") ?? ""]),
            ];
        }),
    );

const plain = (/** @type {string} */ text) => text.replace(/\s/g, "").replaceAll("-", "−").replaceAll("·", ".");

for (const kind of samples) {
    test(`${kind}: question, drawing, field, marks, solution and answer are written as the reader wishes`, async () => {
        for (const number of [3, 4, 5]) {
            const page = await openPage(browser, `#practice/4821/${number}/${kind}`, writtenAs(otherSettings));
            const exercise = lesson.exercise(4821, number, kind, otherWriting);
            for (const { text } of [...exercise.slips.slice(0, 4), exercise.key]) {
                await type(page, text);
                await check(page);
                assert.deepEqual(await usualIn(page, "main .exercise"), [], text);
                assert.doesNotMatch(await announced(page), usualWords, text);
            }
            assert.equal(await page.locator(".mark").getAttribute("data-verdict"), "correct", exercise.key.text);
            await page.getByRole("button", { name: "Show the answer" }).click();
            assert.deepEqual(await usualIn(page, "main .exercise"), []);
            const answer = await page.locator(".key .line").evaluate((line) => (line.querySelector("[aria-hidden]") ?? line).textContent);
            assert.equal(plain(answer), plain(plainOf(exercise.key.spans)));
            await leave(page);
        }
    });
}

test("what changes on the page is the same as what was chosen before, and what was typed, marked and shown stays", async () => {
    for (const kind of ["titration:3", "concentration:3", "compound-formula:2", "neutralisation:2"]) {
        const hash = `#practice/4821/3/${kind}`;
        const typed = kind.startsWith("t") || kind.startsWith("c-") ? "777" : "Mg2O2";
        const work = async (/** @type {Page} */ page) => {
            await type(page, typed);
            await check(page);
            await page.getByRole("button", { name: "Show a step" }).click();
            await page.getByRole("button", { name: "Show a step" }).click();
        };
        const before = await openPage(browser, hash, writtenAs(otherSettings));
        await work(before);
        const wanted = await before.locator("main .exercise").innerText();
        await leave(before);

        const page = await openPage(browser, hash);
        await work(page);
        await panel(page, "How it is written").click();
        for (const label of ["cm³, dm³", "mol L⁻¹, mol dm⁻³", "Comma: 0,5", "American"]) {
            await page.getByLabel(label).check();
        }
        assert.equal(await page.locator("#answer").inputValue(), typed);
        assert.equal(await page.locator("main .exercise").innerText(), wanted, kind);
        await leave(page);
    }
});

test("kinds and levels are told in the reader's language, what is chosen of them stays", async () => {
    const [british, american] = ["en-GB", "en-US"].map((language) =>
        lesson.kinds(language).flatMap(({ title, levels }) => [title, ...levels]),
    );
    assert.notDeepEqual(british, american);
    const page = await openPage(browser, "#practice/4821/3/neutralisation:2,dilution");
    await opener(page).click();
    const box = page.getByRole("checkbox", {
        name: new RegExp(lesson.kinds("en-GB").find(({ kind }) => kind === "neutralisation").levels[2]),
    });
    await box.check();
    await panel(page, "How it is written").click();
    await page.getByLabel("American").check();
    const text = (await textsOf(page, ".choice")).join("\n");
    american.forEach((one) => assert.ok(text.includes(one), one));
    british.filter((one) => !american.includes(one)).forEach((one) => assert.ok(!text.includes(one), one));
    assert.deepEqual(
        await page.locator(".choice input:checked").evaluateAll((boxes) => boxes.map((one) => /** @type {HTMLInputElement} */ (one).value)),
        ["dilution:2", "neutralisation:2", "neutralisation:3"],
    );
    await leave(page);

    const sheet = await openMadeSheet(browser, "#sheet/4821/3*neutralisation,2*titration?v=1", writtenAs(otherSettings));
    assert.deepEqual(await usualIn(sheet, ".sheets form, .leaves"), []);
    await panel(sheet, "How it is written").click();
    await sheet.getByLabel("British").check();
    const told = (await textsOf(sheet, ".sheets form")).join("\n");
    british.forEach((one) => assert.ok(told.includes(one), one));
    assert.equal(await sheet.locator("#count-neutralisation-2").inputValue(), "3");
    await leave(sheet);
});

// What is quoted of it.
const quoted = (/** @type {string} */ mark) => [...mark.replace(/\s/g, " ").matchAll(/ '([^']*)'/g)].map(([, text]) => text);

for (const [kind, typed] of [
    ["compound-formula:2", "aluminium fluoride?"],
    ["compound-formula:1", "Aluminium ethanoate?"],
    ["ion-formula:2", "caesium?"],
    ["titration:2", "12 + 3 mL"],
    ["titration:2", "0.5 mL of ethanoate"],
    ["concentration:1", "1.5 mol/L?"],
    ["neutralisation:1", "aluminium? + H2O -> 1.5 L"],
]) {
    test(`${typed} is quoted as it was typed, however the reader writes`, async () => {
        const marks = [];
        for (const settings of [{}, { ...otherSettings, decimal: "." }]) {
            const page = await openPage(browser, `#practice/4821/3/${kind}`, writtenAs(settings));
            await type(page, typed);
            await check(page);
            marks.push(quoted(await page.locator(".mark [aria-hidden]").innerText()));
            await leave(page);
        }
        assert.deepEqual(marks[1], marks[0]);
        marks[0].forEach((one) => assert.ok(typed.includes(one), one));
    });
}

test("a mark stays what it was where another decimal sign would read another number", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration");
    const mark = page.locator(".mark");
    await type(page, "1,250");
    await check(page);
    assert.equal(await mark.getAttribute("data-verdict"), "unreadable");
    const asked = await mark.innerText();
    await panel(page, "How it is written").click();
    await page.getByLabel("Comma: 0,5").check();
    assert.equal(await mark.innerText(), asked);
    await page.reload();
    assert.equal(await mark.innerText(), asked, "after a reload");
    await check(page);
    assert.notEqual(await mark.getAttribute("data-verdict"), "unreadable", "marked anew");
    const read = await mark.innerText();
    await panel(page, "How it is written").click();
    await page.getByLabel("Point: 0.5").check();
    assert.equal(await mark.innerText(), read);
    await leave(page);
});

test("the preview shows what is read, and nothing where that is no more than the field shows", async () => {
    for (const [kind, typed, shown] of [
        ["titration", "0.25", null],
        ["titration", " 0.25 mol/L ", null],
        ["titration", "about half", null],
        ["titration", "c = 2.5x10^-2 mol/l", "2.5 × 10−2 mol/L"],
        ["compound-formula:1", "NaCl", null],
        ["compound-formula:2", "?", null],
        ["solubility:3", "none", null],
        ["neutralisation:1", "HCl + NaOH = NaCl + HOH", "HCl + NaOH → NaCl + HOH"],
    ]) {
        const page = await openPage(browser, `#practice/4821/3/${kind}`);
        await type(page, typed);
        const preview = page.locator(".preview");
        assert.equal(await preview.isVisible(), shown !== null, typed);
        if (shown !== null) {
            assert.equal((await preview.textContent()).replace(/\s/g, " "), `Read as ${shown}`);
        }
        await leave(page);
    }
});
