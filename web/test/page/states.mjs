// The states of the page that are looked at one by one.
import { check, opener, panel, samples, type } from "./support.mjs";

/** @import { Page } from "./support.mjs" */

export const press = (/** @type {Page} */ page, /** @type {string} */ name) => page.getByRole("button", { name, exact: true }).click();

export async function goToStart(/** @type {Page} */ page) {
    await page.evaluate(() => (location.hash = ""));
    await page.getByRole("heading", { name: "Chemical calculations practice" }).waitFor();
}

export async function answerWith(/** @type {Page} */ page, /** @type {string} */ text, /** @type {string} */ verdict) {
    await type(page, text);
    await check(page);
    await page.locator(`.mark[data-verdict=${verdict}]`).waitFor();
}

// c(HNO3) = 0.678 mol/L, and what turns it into each of the verdicts.
export const verdicts = {
    correct: "0.678",
    figures: "0.68",
    slip: "0.250",
    "power-of-ten": "678",
    close: "0.683",
    wrong: "777",
    unreadable: "about a litre",
};

// Of a set of five the first is shown, and the second wrong.
async function beginSet(/** @type {Page} */ page) {
    await press(page, "Show the answer");
    await press(page, "Next");
    await page.getByRole("heading", { name: "Exercise 2 of 5" }).waitFor();
    await answerWith(page, "1234567", "wrong");
}

// Each state by its name: where it is, and what leads to it from there.
/** @typedef {[name: string, hash: string, reach: (page: Page) => Promise<unknown>]} State */

/** @type {State[]} */
export const states = [
    ...samples.map((kind) => /** @type {State} */ ([`a new exercise, ${kind}`, `#practice/4821/3/${kind}`, async () => {}])),
    ...Object.entries(verdicts).map(
        ([verdict, text]) =>
            /** @type {State} */ ([
                `the verdict ${verdict}`,
                "#practice/4821/3/titration:3",
                (/** @type {Page} */ page) => answerWith(page, text, verdict),
            ]),
    ),
    [
        "a mark of another text",
        "#practice/4821/3/titration:3",
        async (/** @type {Page} */ page) => {
            await answerWith(page, verdicts.correct, "correct");
            await type(page, "0.6789");
        },
    ],
    ["a side road", "#practice/4821/500004/titration:2?back=4:mixed", async () => {}],
    [
        "a side road to its end",
        "#practice/4821/500004/titration:2?back=4:mixed",
        (/** @type {Page} */ page) => press(page, "Show the answer"),
    ],
    [
        "the way to the table of masses",
        "#practice/4821/3/molar-mass:3",
        async (/** @type {Page} */ page) => {
            await panel(page, "How it is written").click();
            await page.getByLabel("Use the table").check();
        },
    ],
    ["a formula being typed", "#practice/4821/3/neutralisation:3", (/** @type {Page} */ page) => type(page, "H2SO4 + NaOH -> ")],
    ["a choice that was wrong", "#practice/4821/3/solubility:1", (/** @type {Page} */ page) => answerWith(page, "no", "wrong")],
    [
        "help offered",
        "#practice/4821/3/titration:3",
        async (/** @type {Page} */ page) => {
            await answerWith(page, "777", "wrong");
            await answerWith(page, "778", "wrong");
            await page.locator(".offer").waitFor();
        },
    ],
    ["a hint", "#practice/4821/3/titration:3", (/** @type {Page} */ page) => press(page, "Show a step")],
    ...samples.map(
        (kind) =>
            /** @type {State} */ ([
                `the solution of ${kind}`,
                `#practice/4821/3/${kind}`,
                (/** @type {Page} */ page) => press(page, "Show the answer"),
            ]),
    ),
    ["the start", "", async () => {}],
    ["the start after an exercise", "#practice/4821/3/titration", (/** @type {Page} */ page) => goToStart(page)],
    ["the start with its choice", "", (/** @type {Page} */ page) => opener(page).click()],
    [
        "the start with a wrong paper",
        "",
        async (/** @type {Page} */ page) => {
            await page.getByLabel("Paper", { exact: true }).fill("twelve");
            await press(page, "Start");
        },
    ],
    ["the choice of exercises", "#practice/4821/3/mixed", (/** @type {Page} */ page) => opener(page).click()],
    [
        "a choice of nothing",
        "#practice/4821/3/titration",
        async (/** @type {Page} */ page) => {
            await opener(page).click();
            await press(page, "None");
            await page.getByLabel("Paper", { exact: true }).fill("0");
            await press(page, "Start");
        },
    ],
    ["beakers that are not to scale", "#practice/4821/3/dilution:3", async () => {}],
    ["how it is written", "#practice/4821/3/titration", (/** @type {Page} */ page) => panel(page, "How it is written").click()],
    ["an empty record", "#practice/4821/3/titration", (/** @type {Page} */ page) => panel(page, "My record").click()],
    [
        "a record",
        "#practice/4821/3/titration:3",
        async (/** @type {Page} */ page) => {
            await answerWith(page, verdicts.correct, "correct");
            await panel(page, "My record").click();
        },
    ],
    [
        "a record to be cleared",
        "#practice/4821/3/titration:3",
        async (/** @type {Page} */ page) => {
            await answerWith(page, verdicts.correct, "correct");
            await panel(page, "My record").click();
            await press(page, "Clear my record");
        },
    ],
    ["a set in progress", "#practice/4821/1/molar-mass:1?set=5", beginSet],
    ["a set of 99", "#practice/4821/50/molar-mass:1?set=99", (/** @type {Page} */ page) => panel(page, "Exercises of this set").click()],
    [
        "the sets on the device",
        "#practice/4821/1/molar-mass:1?set=5",
        async (/** @type {Page} */ page) => {
            await beginSet(page);
            await panel(page, "My record").click();
            await press(page, "Clear all sets");
        },
    ],
    ["a set to be finished", "#practice/4821/5/molar-mass:1?set=5", (/** @type {Page} */ page) => press(page, "Finish")],
    [
        "a link to be copied by hand",
        "#practice/4821/5/molar-mass:1?set=5",
        async (/** @type {Page} */ page) => {
            await page.evaluate(() => Object.defineProperty(navigator, "clipboard", { value: undefined, configurable: true }));
            await press(page, "Copy the link");
            await page.getByRole("textbox", { name: "The link" }).waitFor();
        },
    ],
    [
        "a summary",
        "#practice/4821/1/molar-mass:1?set=5",
        async (/** @type {Page} */ page) => {
            await beginSet(page);
            await page.getByRole("link", { name: "Exercise 5: open" }).click();
            await press(page, "Finish");
            await press(page, "Finish");
            await page.getByRole("heading", { name: "Summary of paper 4821" }).waitFor();
        },
    ],
    ["a summary of nothing", "#practice/4821/6/molar-mass:1?set=5", async () => {}],
    ["a bad address", "#practice/0/1/titration", async () => {}],
    ["the sheets", "#sheet", async () => {}],
    [
        "a sheet with drawings, room and a worked key",
        "#sheet/4821/titration:3,dilution:1,molar-mass:3,solubility:1,ion-formula?drawings=1&key=working&v=1",
        async () => {},
    ],
    ["a sheet in two columns, with marks", "#sheet/4821/6*ion-formula,4*molar-mass:3,titration?marks=1&masses=table&v=1", async () => {}],
    ["a sheet in versions", "#sheet/4821/3*titration?versions=3&size=Letter&v=1", async () => {}],
    [
        "a sheet of nothing",
        "#sheet/4821/2*titration",
        async (/** @type {Page} */ page) => {
            await page.getByRole("spinbutton", { name: /^Acid-base titration, level 2/ }).fill("");
            await page.locator(".problem", { hasText: "Fill in" }).waitFor();
        },
    ],
    [
        "a sheet with the buttons of an exercise",
        "#sheet/4821/2*titration,titration@9",
        (/** @type {Page} */ page) => page.getByRole("button", { name: "Up with exercise 1" }).focus(),
    ],
    [
        "a sheet with two mistakes",
        "#sheet/4821/2*titration",
        async (/** @type {Page} */ page) => {
            await page.getByRole("spinbutton", { name: /^Dilution, level 2/ }).fill("0.5");
            await page.getByLabel("Versions", { exact: true }).fill("31");
            await page.locator(".problem").nth(1).waitFor();
        },
    ],
    ["a bad address of a sheet", "#sheet/4821/4*alchemy", async () => {}],
    ["the tables", "#tables", async () => {}],
    ["the notices", "#notices", (/** @type {Page} */ page) => page.getByRole("heading", { name: "libc++" }).waitFor()],
    [
        "elements found",
        "#tables",
        async (/** @type {Page} */ page) => {
            await page.getByLabel("Find an element").fill("CuSO4.5H2O and nacl");
            await page.locator(".results .message").waitFor();
        },
    ],
    [
        "the whole grid",
        "#tables",
        async (/** @type {Page} */ page) => {
            await press(page, "Show those that are never asked");
            await page.getByRole("button", { name: "silver fluoride: not asked" }).click();
        },
    ],
    [
        "the reason of a pair",
        "#tables",
        async (/** @type {Page} */ page) => {
            await page.locator(".solubility button").first().click();
            await panel(page, "Show them with the reasons").click();
        },
    ],
];
