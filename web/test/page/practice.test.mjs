import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { after, test } from "node:test";
import { agree, check, go, leave, moved, openChromium, opener, openLesson, openPage, panel, reload, samples, type } from "./support.mjs";

/** @import { Page } from "./support.mjs" */

const lesson = await openLesson();
const browser = await openChromium();
after(() => browser.close());

const focusedText = (/** @type {Page} */ page) => page.evaluate(() => document.activeElement.textContent);
const focusedId = (/** @type {Page} */ page) => page.evaluate(() => document.activeElement.id);

for (const kind of samples) {
    test(`${kind}: a right answer is right, and the focus goes on to Next`, async () => {
        const page = await openPage(browser, `#practice/4821/3/${kind}`);
        await type(page, lesson.exercise(4821, 3, kind).key.text);
        await check(page);
        await page.locator(".mark[data-verdict=correct]").waitFor();
        assert.equal(await focusedText(page), "Next");
        assert.match(await page.locator("#announcement").textContent(), /^$|^Correct/);
        await page.keyboard.press("Enter");
        await page.getByRole("heading", { name: "Exercise 4" }).waitFor();
        await leave(page);
    });
}

test("a wrong answer keeps the focus in the field, and after two of them help is offered", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration");
    for (const [tries, offered] of [
        [1, false],
        [2, true],
    ]) {
        await type(page, "777");
        await page.keyboard.press("Enter");
        await page.locator(".mark").waitFor();
        assert.equal(await focusedId(page), "answer");
        assert.equal(await page.locator(".offer").isVisible(), offered, `after ${tries}`);
    }
    await leave(page);
});

const marked = [
    { kind: "titration:3", text: "0.678", other: "0.6789", of: "For 0.678" },
    { kind: "titration:3", text: "777", other: "", of: "For 777" },
    { kind: "titration:3", text: "", other: "5", of: "For an empty answer" },
    { kind: "neutralisation:3", text: "H2SO4 + NaOH -> Na2SO4", other: "H2SO4", of: "For H2SO4 + NaOH -> Na2SO4" },
    { kind: "solubility:1", text: "yes", other: "no", of: "For Yes, it dissolves" },
    { kind: "solubility:1", text: "no", other: "yes", of: "For No, it does not" },
];

for (const { kind, text, other, of } of marked) {
    test(`${kind}, "${text}" marked: with "${other}" in its place the mark is grey and says what it was for`, async () => {
        const page = await openPage(browser, `#practice/4821/3/${kind}`);
        const mark = page.locator(".mark");
        const colour = () => mark.locator("strong").evaluate((word) => getComputedStyle(word).color);
        await type(page, text);
        await check(page);
        const [fresh, freshColour] = [await mark.ariaSnapshot(), await colour()];
        assert.equal(await mark.locator(".marked").count(), 0);
        for (const step of ["typed", "after a reload"]) {
            await (step === "typed" ? type(page, other) : reload(page));
            await mark.locator(".marked").waitFor();
            assert.equal(await mark.locator(".marked").innerText(), of, step);
            assert.ok((await mark.ariaSnapshot()).includes(`${of}: `), step);
            assert.notEqual(await colour(), freshColour, step);
        }
        await type(page, text);
        assert.deepEqual([await mark.ariaSnapshot(), await colour()], [fresh, freshColour], "the same text again");
        await leave(page);
    });
}

test("where all is shown no sentence names a button that is gone", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration");
    const mark = page.locator(".mark");
    await type(page, "777");
    await check(page);
    assert.match(await mark.innerText(), /Write down what you know\. If you are stuck, press Show a step\.$/);
    await page.getByRole("button", { name: "Show the answer" }).click();
    assert.match(await mark.innerText(), /Write down what you know\.$/, "the mark that stands there");
    await type(page, "7777");
    await check(page);
    assert.match(await mark.innerText(), /Write down what you know\.$/, "a further one");
    await leave(page);
});

test("what cannot be read is no try", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration");
    for (let i = 0; i < 3; ++i) {
        await type(page, "about a litre, I think");
        await check(page);
    }
    assert.equal(await page.locator(".offer").isVisible(), false);
    assert.equal(await page.locator(".mark").getAttribute("data-verdict"), "unreadable");
    await leave(page);
});

test("Show a step gives a hint, then a step and the next hint a press, and at last the answer", async () => {
    const page = await openPage(browser, "#practice/4821/3/concentration");
    const step = page.getByRole("button", { name: "Show a step" });
    const { solution } = lesson.exercise(4821, 3, "concentration");
    for (let shown = 0; shown < solution.length; ++shown) {
        await step.click();
        assert.equal(await page.locator(".solution li").count(), shown);
        assert.equal(await page.locator(".solution .math").count(), shown);
        const [{ text }] = /** @type {{ text: string }[]} */ (solution[shown].hint);
        assert.ok((await page.locator(".solution .next").innerText()).startsWith(`Hint: ${text}`), text);
    }
    await step.click();
    assert.equal(await page.locator(".solution li").count(), solution.length);
    assert.equal(await page.locator(".solution .next").count(), 0);
    assert.equal(await page.locator(".key").isVisible(), true);
    assert.equal(await step.isVisible(), false);
    assert.equal(await page.evaluate(() => document.activeElement.matches(".solution h2")), true);
    await leave(page);
});

test("a reload loses nothing: what was typed, the mark, the steps that were shown", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration");
    await type(page, "777");
    await check(page);
    await page.getByRole("button", { name: "Show a step" }).click();
    const before = await page.locator("article").innerText();
    await reload(page);
    await page.locator(".mark").waitFor();
    assert.equal(await page.locator("#answer").inputValue(), "777");
    assert.equal(await page.locator("article").innerText(), before);
    await leave(page);
});

test("Back and Forward go from exercise to exercise", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration");
    await page.getByRole("button", { name: "Next" }).click();
    await page.getByRole("heading", { name: "Exercise 4" }).waitFor();
    await page.goBack();
    await page.getByRole("heading", { name: "Exercise 3" }).waitFor();
    await page.goForward();
    await page.getByRole("heading", { name: "Exercise 4" }).waitFor();
    await leave(page);
});

test("Another like this stays with the kind and level that was drawn", async () => {
    const page = await openPage(browser, "#practice/4821/1/mixed");
    const { kind, level } = lesson.exercise(4821, 1, "mixed");
    await page.getByRole("button", { name: "Another like this" }).click();
    await page.getByRole("heading", { name: "Another like exercise 1" }).waitFor();
    assert.match(page.url(), new RegExp(`#practice/4821/\\d+/${kind}:${level}\\?back=1:mixed&v=1$`));
    await leave(page);
});

const mainButton = (/** @type {Page} */ page) => page.locator("main button.main:visible").allInnerTexts();

test("Another like this goes off, one further each time, and comes back to the exercise that was left", async () => {
    const page = await openPage(browser, "#practice/4821/4/mixed?v=1");
    const prompt = () => page.locator(".prompt").innerText();
    const seen = [await prompt()];
    for (const hop of [1, 2]) {
        await goAside(page);
        assert.equal(seen.includes(await prompt()), false, `hop ${hop}`);
        seen.push(await prompt());
        await reload(page);
        assert.equal(await prompt(), seen.at(-1), page.url());
        assert.equal(await page.getByRole("link", { name: "Practice", exact: true }).getAttribute("href"), "#practice/4821/4/mixed?v=1");
    }
    await page.goBack();
    await page.waitForFunction(
        (/** @type {string} */ text) => /** @type {HTMLElement} */ (document.querySelector(".prompt")).innerText === text,
        seen[1],
    );
    assert.deepEqual(await mainButton(page), ["Check"]);
    const { paper, number, kind, level } = aside(page.url());
    await type(page, lesson.exercise(paper, number, `${kind}:${level}`).key.text);
    await check(page);
    assert.deepEqual(await mainButton(page), ["Back to exercise 4"]);
    assert.equal(await focusedText(page), "Back to exercise 4");
    await panel(page, "My record").click();
    assert.match(await page.locator("details table tbody").innerText(), /1\s+0\s+0/);
    await page.keyboard.press("Escape");
    await page.getByRole("button", { name: "Back to exercise 4" }).click();
    await page.getByRole("heading", { level: 1, name: "Exercise 4", exact: true }).waitFor();
    assert.equal(await prompt(), seen[0]);
    assert.equal(new URL(page.url()).hash, "#practice/4821/4/mixed?v=1");
    await leave(page);
});

async function goAside(/** @type {Page} */ page) {
    await moved(page, () => page.getByRole("button", { name: "Another like this" }).click());
    await page.getByRole("heading", { level: 1, name: "Another like exercise 4", exact: true }).waitFor();
    assert.match(await page.title(), /^Another like exercise 4 of paper\s4821/);
    assert.equal(await page.getByRole("button", { name: "Next" }).count(), 0);
}

function aside(/** @type {string} */ url) {
    const [, paper, number, kind, level] = /#practice\/(\d+)\/(\d+)\/([a-z-]+):(\d)\?/.exec(url);
    return { paper: Number(paper), number: Number(number), kind, level };
}

test("what is practised aside is not what Next leads to", async () => {
    const page = await openPage(browser, "#practice/4821/4/titration?v=1");
    await page.getByRole("button", { name: "Another like this" }).click();
    await page.getByRole("heading", { name: "Another like exercise 4" }).waitFor();
    const prompt = await page.locator(".prompt").innerText();
    await page.getByRole("button", { name: "Back to exercise 4" }).click();
    for (let number = 5; number <= 8; ++number) {
        await page.getByRole("button", { name: "Next" }).click();
        await page.getByRole("heading", { name: `Exercise ${number}` }).waitFor();
        assert.notEqual(await page.locator(".prompt").innerText(), prompt, `exercise ${number}`);
    }
    await leave(page);
});

async function answer(/** @type {Page} */ page, /** @type {string} */ text) {
    await type(page, text);
    await check(page);
}

test("inside a set there is no other way than on", async () => {
    const page = await openPage(browser, "#practice/4821/2/titration?set=5&v=1");
    assert.equal(await page.getByRole("button", { name: "Another like this" }).count(), 0);
    await page.getByRole("button", { name: "Show the answer" }).click();
    assert.equal(await page.getByRole("button", { name: "Another like this" }).count(), 0);
    assert.deepEqual(await mainButton(page), ["Next"]);
    await leave(page);
});

for (const [what, reach] of /** @type {const} */ ([
    ["new", async () => {}],
    ["wrong", (/** @type {Page} */ page) => answer(page, "777")],
    ["nearly right", (/** @type {Page} */ page) => answer(page, "0.68")],
    ["in steps", (/** @type {Page} */ page) => page.getByRole("button", { name: "Show a step" }).click()],
])) {
    test(`an exercise that is ${what}: Check is the main button, not Next`, async () => {
        const page = await openPage(browser, "#practice/4821/3/titration:3");
        await reach(page);
        assert.deepEqual(await mainButton(page), ["Check"]);
        const shade = (/** @type {string} */ name) =>
            page.getByRole("button", { name, exact: true }).evaluate((one) => getComputedStyle(one).backgroundColor);
        assert.notEqual(await shade("Next"), await shade("Check"));
        await leave(page);
    });
}

test("a set of exercises ends in a summary of what was solved how", async () => {
    const page = await openPage(browser, "#practice/4821/1/molar-mass:1?set=5&v=1");
    await type(page, lesson.exercise(4821, 1, "molar-mass:1").key.text);
    await check(page);
    await page.getByRole("button", { name: "Next" }).click();
    await page.getByRole("heading", { name: "Exercise 2 of 5" }).waitFor();
    await type(page, "1234567");
    await check(page);
    await type(page, lesson.exercise(4821, 2, "molar-mass:1").key.text);
    await check(page);
    await page.getByRole("button", { name: "Next" }).click();
    await page.getByRole("heading", { name: "Exercise 3 of 5" }).waitFor();
    await page.getByRole("button", { name: "Show the answer" }).click();
    await page.getByRole("button", { name: "Next" }).click();
    await page.getByRole("heading", { name: "Exercise 4 of 5" }).waitFor();
    await page.getByRole("button", { name: "Next" }).click();
    await page.getByRole("button", { name: "Finish" }).click();
    await page.getByRole("group", { name: "2 exercises are open." }).getByRole("button", { name: "Finish" }).click();
    await page.getByRole("heading", { name: "Summary of paper 4821" }).waitFor();
    assert.match(await page.title(), /^Summary of paper 4821/);
    const cells = await page.locator(".summary tr td:last-child").allInnerTexts();
    assert.deepEqual(cells, ["at the first try", "at a later try", "shown", "not solved", "not solved"]);
    const download = page.waitForEvent("download");
    await page.getByRole("button", { name: "Save" }).click();
    assert.equal((await download).suggestedFilename(), "paper-4821-summary.txt");
    const saved = await readFile(await (await download).path(), "utf8");
    assert.match(saved, /^Name: $/m);
    assert.match(saved, /^3\. Molar mass, level\s1: shown, no try$/m);
    assert.match(saved, /^#practice\/4821\/6\/molar-mass:1\?set=5&v=1$/m);
    await leave(page);
});

test("a tablet leaves alone what is typed", async () => {
    for (const kind of ["titration", "compound-formula", "ion-formula", "solubility:3", "neutralisation"]) {
        const page = await openPage(browser, `#practice/4821/1/${kind}`);
        const given = await page
            .locator("#answer")
            .evaluate((field) =>
                ["autocapitalize", "autocorrect", "autocomplete", "spellcheck", "enterkeyhint"].map((name) => field.getAttribute(name)),
            );
        assert.deepEqual(given, ["off", "off", "off", "false", "go"], kind);
        await leave(page);
    }
});

test("an address tells the version of the library's exercises", async () => {
    const page = await openPage(browser, "");
    await page.getByRole("button", { name: "Start" }).click();
    await page.getByRole("heading", { name: "Exercise 1" }).waitFor();
    assert.match(new URL(page.url()).hash, new RegExp(`\\bv=${lesson.exercise(1, 1, "mixed").version}$`));
    await leave(page);
});

test("a choice that stays as it is starts again too", async () => {
    const page = await openPage(browser, "#practice/4821/1/ion-formula:1?v=1");
    await opener(page).click();
    await page.getByRole("button", { name: "Start" }).click();
    await page.waitForFunction(() => document.activeElement?.id === "answer");
    assert.equal(await page.getByRole("button", { name: "Start" }).isVisible(), false);
    await leave(page);
});

test("Practice leads back to the exercise, after a reload of the tables as well", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration:1,dilution?set=5&v=1");
    await page.getByRole("link", { name: "Tables" }).click();
    await page.getByRole("heading", { name: "Relative atomic masses" }).waitFor();
    await reload(page);
    await page.getByRole("heading", { name: "Relative atomic masses" }).waitFor();
    await page.getByRole("link", { name: "Practice", exact: true }).click();
    await page.getByRole("heading", { name: "Exercise 3 of 5" }).waitFor();
    assert.equal(new URL(page.url()).hash, "#practice/4821/3/titration:1,dilution?set=5&v=1");
    await leave(page);
});

test("the choice of kinds, levels and paper becomes the address", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration");
    await opener(page).click();
    await page.locator("input[value='titration:2']").uncheck();
    await page.getByRole("button", { name: "Start" }).click();
    await page.locator(".problem").getByText("Choose at least one level of one kind.").waitFor();
    await page.locator("input[value='dilution:3']").check();
    await page.locator("input[value='solubility:2']").check();
    await page.getByLabel("Paper", { exact: true }).fill("0");
    await page.getByRole("button", { name: "Start" }).click();
    await page.locator(".problem").getByText("A paper is a number from 1 to 999999.").waitFor();
    await page.getByLabel("Paper", { exact: true }).fill("12");
    await page.getByLabel("How many").selectOption("10");
    await page.getByRole("button", { name: "Start" }).click();
    await page.getByRole("heading", { name: "Exercise 1 of 10" }).waitFor();
    assert.equal(new URL(page.url()).hash, "#practice/12/1/solubility,dilution:3?set=10&v=1");
    await leave(page);
});

test("units, decimal sign and names are as the reader wishes, and stay so", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration");
    await panel(page, "How it is written").click();
    await page.getByLabel("cm³, dm³").check();
    await page.getByLabel("mol L⁻¹, mol dm⁻³").check();
    await page.getByLabel("Comma: 0,5").check();
    const prompt = await page.locator(".prompt").innerText();
    assert.match(prompt, /cm3|cm\n?3/);
    assert.doesNotMatch(prompt, /mL/);
    assert.match(prompt, /\d,\d/);
    await reload(page);
    await page.locator(".prompt").waitFor();
    assert.equal(await page.locator(".prompt").innerText(), prompt);
    assert.match(await page.locator(".asked").innerText(), /mol\s*dm\s*−1|mol\s*dm\s*−3/);
    await leave(page);
});

test("American names stand in the question and in the tables", async () => {
    const nameIn = (/** @type {number} */ number, /** @type {string} */ language) =>
        lesson.exercise(4821, number, "compound-formula:2", language).prompt.flatMap((span) => ("name" in span ? [span.name] : []))[0];
    const number = Array.from({ length: 60 }, (_, at) => at + 1).find((at) => nameIn(at, "en-GB") !== nameIn(at, "en-US"));
    const [name, american] = [nameIn(number, "en-GB"), nameIn(number, "en-US")];
    const page = await openPage(browser, `#practice/4821/${number}/compound-formula:2`);
    await panel(page, "How it is written").click();
    assert.ok((await page.locator(".prompt").innerText()).includes(name));
    await page.getByLabel("American").check();
    assert.ok((await page.locator(".prompt").innerText()).includes(american));
    await go(page, "#tables");
    await page.locator(".solubility").waitFor();
    const names = await page
        .locator(".solubility")
        .evaluate((table) =>
            [...table.querySelectorAll("th, [aria-label]")].map((one) => one.getAttribute("aria-label") ?? one.textContent),
        );
    assert.ok(names.includes("lithium acetate: soluble") && names.includes("aluminum"), names.join("; "));
    assert.deepEqual(
        names.filter((one) => /ethanoate|aluminium/.test(one)),
        [],
    );
    await leave(page);
});

test("two tabs keep their exercises apart and add to one record", async () => {
    const context = await browser.newContext();
    const first = await openPage(browser, "#practice/4821/1/ion-formula:1", { context });
    const second = await openPage(browser, "#practice/4821/1/ion-formula:1", { context });
    await type(first, "Zz");
    await reload(second);
    assert.equal(await second.locator("#answer").inputValue(), "");
    for (const page of [first, second]) {
        await type(page, lesson.exercise(4821, 1, "ion-formula:1").key.text);
        await check(page);
        await page.locator(".mark[data-verdict=correct]").waitFor();
        await agree(first, second);
    }
    await panel(second, "My record").click();
    assert.match(await second.getByRole("row", { name: /Formula of an ion/ }).innerText(), /2\s+0\s+0\s+0/);
    assert.deepEqual([...first.problems, ...second.problems], []);
    await context.close();
});

test("storage that is refused is no error", async () => {
    const refuse = () => {
        for (const name of ["localStorage", "sessionStorage"]) {
            Object.defineProperty(window, name, {
                get() {
                    throw new DOMException("refused", "SecurityError");
                },
            });
        }
    };
    const page = await openPage(browser, "#practice/4821/1/ion-formula:1", { before: refuse });
    await type(page, lesson.exercise(4821, 1, "ion-formula:1").key.text);
    await check(page);
    await page.locator(".mark[data-verdict=correct]").waitFor();
    await panel(page, "My record").click();
    assert.match(await page.getByRole("row", { name: /Formula of an ion/ }).innerText(), /1\s+0\s+0\s+0/);
    await leave(page);
});

test("a browser that cannot unpack the module by itself does it by script", async () => {
    const makeOld = () => {
        delete Uint8Array.fromBase64;
        delete window.DecompressionStream;
    };
    const page = await openPage(browser, "#practice/4821/1/ion-formula:1", { before: makeOld });
    assert.deepEqual(await page.evaluate(() => [typeof Uint8Array.fromBase64, typeof DecompressionStream]), ["undefined", "undefined"]);
    await type(page, lesson.exercise(4821, 1, "ion-formula:1").key.text);
    await check(page);
    await page.locator(".mark[data-verdict=correct]").waitFor();
    await leave(page);
});

test("a number with a power of ten is shown as it is printed", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration");
    for (const [typed, shown] of [
        ["3.42e-2", "3.42 × 10−2"],
        ["1.3e+2", "1.3 × 102"],
        [" 3,4x10^-5 mol/L", "3.4 × 10−5 mol/L"],
    ]) {
        await type(page, typed);
        const seen = await page.locator(".preview").evaluate((preview) => {
            const copy = /** @type {Element} */ (preview.cloneNode(true));
            copy.querySelectorAll(".spoken").forEach((one) => one.remove());
            return copy.textContent.replace(/\s/g, " ");
        });
        assert.equal(seen, `Read as ${shown}`, typed);
    }
    await leave(page);
});

test("the next exercise begins at its top, and its field has the focus", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration:3", { viewport: { width: 360, height: 480 } });
    await page.getByRole("button", { name: "Next" }).click();
    await page.getByRole("heading", { name: "Exercise 4" }).waitFor();
    assert.equal(await focusedId(page), "answer");
    assert.equal(await page.evaluate(() => scrollY), 0);
    await leave(page);
});

const previews = [
    ["compound-formula:2", "Ca(OH)2", "Ca(OH)<sub>2</sub>"],
    ["compound-formula:2", "Mg^2+(I^-)2", "Mg<sup>2+</sup>(I<sup>−</sup>)<sub>2</sub>"],
    ["ion-formula:2", "SO4^2-", "SO<sub>4</sub><sup>2−</sup>"],
    ["ion-formula:2", "SO42-", "SO<sub>4</sub><sup>2−</sup>"],
    ["ion-formula:2", "(SO4)2-", "(SO<sub>4</sub>)<sup>2−</sup>"],
    ["ion-formula:2", "SO4-2", "SO<sub>4</sub><sup>2−</sup>"],
    ["ion-formula:2", "NH4+", "NH<sub>4</sub><sup>+</sup>"],
    ["ion-formula:1", "Ca2+", "Ca<sup>2+</sup>"],
    ["ion-formula:1", "I-", "I<sup>−</sup>"],
    ["neutralisation:2", "2H2 + O2 -> 2H2O", "2H<sub>2</sub> + O<sub>2</sub> → 2H<sub>2</sub>O"],
];

for (const [kind, typed, shown] of previews) {
    test(`${typed} is shown typeset while it is typed`, async () => {
        const page = await openPage(browser, `#practice/4821/3/${kind}`);
        await type(page, typed);
        const seen = (await page.locator(".preview").innerHTML()).replaceAll("&nbsp;", " ").replace(/<\/?span[^>]*>/g, "");
        assert.equal(seen, `Read as ${shown}`);
        await leave(page);
    });
}

// Paper 4821, exercise 3 of each: what is asked, and the relative atomic masses that it takes.
const weighed = ["molar-mass:1", "molar-mass:2", "molar-mass:3", "concentration:2", "concentration:3"];

for (const kind of weighed) {
    test(`${kind}: the relative atomic masses stand below the question, or the way to the table`, async () => {
        const elements = new Map(lesson.tables().elements.map(({ symbol, mass }) => [symbol, mass]));
        const number = Array.from({ length: 50 }, (_, at) => at + 1).find((at) => {
            const { ask, given } = lesson.exercise(4821, at, kind);
            return ask.quantity === "M" || given.some((one) => "quantity" in one && one.quantity === "M" && one.shown === "");
        });
        const { ask, given } = lesson.exercise(4821, number, kind);
        const formula =
            ask.quantity === "M" ? ask.of : given.flatMap((one) => ("quantity" in one && one.quantity === "M" ? [one.of] : []))[0];
        const symbols = [...formula]
            .filter((sign) => /[A-Za-z]/.test(sign))
            .join("")
            .split(/(?=[A-Z])/);
        const page = await openPage(browser, `#practice/4821/${number}/${kind}`);
        const line = page.locator(".prompt + .masses");
        const seen = (await line.locator("[aria-hidden]").innerText()).replace(/\s/g, " ");
        assert.match(seen, /^Relative atomic masses: [A-Z]/, formula);
        const pairs = seen.replace("Relative atomic masses: ", "").split("; ");
        assert.deepEqual(pairs.sort(), [...new Set(symbols)].map((symbol) => `${symbol} ${elements.get(symbol)}`).sort(), formula);

        await panel(page, "How it is written").click();
        await page.getByRole("group", { name: "Atomic masses" }).getByLabel("Use the table").check();
        assert.equal(await line.innerText(), "Use the periodic table.");
        await reload(page);
        await line.getByRole("link", { name: "periodic table" }).click();
        await page.getByRole("heading", { name: "Relative atomic masses" }).waitFor();
        await moved(page, () => page.goBack());
        await panel(page, "How it is written").click();
        await page.getByLabel("Below the question").check();
        assert.equal((await line.locator("[aria-hidden]").innerText()).replace(/\s/g, " "), seen);
        await leave(page);
    });
}

test("where no molar mass has to be worked out there is no line of masses", async () => {
    for (const kind of ["titration:2", "dilution:1", "ion-formula:3", "compound-formula:3", "solubility:1", "neutralisation:2"]) {
        const page = await openPage(browser, `#practice/4821/3/${kind}`);
        assert.equal(await page.locator(".masses").count(), 0, kind);
        await leave(page);
    }
});

for (const { kind, levels } of (await openLesson()).kinds()) {
    test(`${kind}: a field for numbers brings up a keypad of numbers, any other letters`, async () => {
        for (const [at] of levels.entries()) {
            const { ask } = lesson.exercise(4821, 3, `${kind}:${at + 1}`);
            if (ask.choices === undefined) {
                const page = await openPage(browser, `#practice/4821/3/${kind}:${at + 1}`);
                assert.equal(await page.locator("#answer").getAttribute("inputmode"), ask.form === "number" ? "decimal" : "text", ask.form);
                await leave(page);
            }
        }
    });

    // A keypad of numbers has digits and the decimal sign.
    test(`${kind}: no number that is asked for needs another sign than a keypad has`, () => {
        for (const [at] of levels.entries()) {
            for (let number = 1; number <= 500; ++number) {
                const { ask, key } = lesson.exercise(4821, number, `${kind}:${at + 1}`);
                if (ask.form === "number") {
                    assert.match(key.text.replace(` ${ask.unit}`, ""), /^\d+(\.\d+)?$/, `level ${at + 1}, exercise ${number}`);
                }
            }
        }
    });
}

// A field and its letters; an equation's has the whole width.
const fieldOf = (/** @type {Page} */ page) =>
    page.locator("#answer").evaluate((one) => ({
        ...one.getBoundingClientRect().toJSON(),
        em: parseFloat(getComputedStyle(one).fontSize),
        room: one.closest("form").clientWidth,
    }));

for (const [kind, least, most] of /** @type {const} */ ([
    ["titration:3", 8, 10],
    ["molar-mass:2", 8, 10],
    ["dilution:3", 8, 10],
    ["compound-formula:2", 10, 12],
    ["ion-formula:2", 10, 12],
    ["solubility:3", 10, 12],
    ["neutralisation:2", 0.99, 1.01],
])) {
    test(`the field of ${kind} is as wide as answers of its form are, whatever the answer, with its unit beside it`, async () => {
        for (const number of [1, 2, 3]) {
            const page = await openPage(browser, `#practice/4821/${number}/${kind}`);
            const { form, unit } = lesson.exercise(4821, number, kind).ask;
            const field = await fieldOf(page);
            const width = form === "equation" ? field.width / field.room : field.width / field.em;
            assert.ok(width >= least && width <= most, `exercise ${number}: ${width}`);
            if (unit !== undefined) {
                const beside = await page.locator(".asked").boundingBox();
                assert.ok(beside.x - field.right < field.em && beside.y < field.bottom && beside.y + beside.height > field.top, kind);
            }
            await leave(page);
        }
    });
}
