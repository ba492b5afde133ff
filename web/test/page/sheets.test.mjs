// Sheets, as a printer gets them: through Chromium's own PDF, read back by poppler.
import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { after, test } from "node:test";
import { leafTexts, letters, pageSize, pagesOf, plain, shadesOf } from "./pdf.mjs";
import { announced, compareWithApproved, go, leave, openChromium, openLesson, openPage, reload } from "./support.mjs";

/** @import { Locator } from "playwright-core" */
/** @import { Exercise } from "../../src/types" */
/** @import { Line } from "./pdf.mjs" */
/** @import { Page } from "./support.mjs" */

const lesson = await openLesson();
const browser = await openChromium();
after(() => browser.close());

const everyKind =
    "3*titration:3,2*titration:1,3*dilution:3,2*dilution:1,3*concentration:3,2*concentration:1,3*molar-mass:3,3*neutralisation:3,3*compound-formula:3,3*ion-formula:3,2*solubility:1,3*solubility:3";

const sheets = {
    "a few exercises": "#sheet/4821/2*concentration:1,2*dilution:1,2*titration?v=1",
    "every kind, with drawings": `#sheet/4821/${everyKind}?drawings=1&v=1`,
    "every kind in versions, with much room and full working": `#sheet/77/${everyKind}?versions=3&room=much&key=working&v=1`,
    "one page without room": "#sheet/5/8*ion-formula,8*compound-formula?room=none&parts=sheet&v=1",
    "the key alone, on Letter": `#sheet/9/${everyKind}?parts=key&key=working&size=Letter&v=1`,
    "versions on Letter, each key from a new page on": "#sheet/999998/6*titration:3,5*dilution?versions=4&keys=apart&size=Letter&v=1",
    "no title": "#sheet/12/10*molar-mass:3?title=&v=1",
    "a long title": `#sheet/12/10*molar-mass:3?title=${"Many+words+".repeat(7)}&v=1`,
};

async function openSheet(/** @type {string} */ hash, options = {}) {
    const page = await openPage(browser, hash, options);
    await isMade(page);
    return page;
}

const isMade = (/** @type {Page} */ page) => page.locator(".size:not(:empty)").waitFor();

async function change(/** @type {Page} */ page, /** @type {() => Promise<unknown>} */ work) {
    await page.evaluate(() => document.querySelector(".size").replaceChildren());
    await work();
    await isMade(page);
}

const printed = (/** @type {Page} */ page) => page.pdf({ preferCSSPageSize: true });

const previewTexts = (/** @type {Page} */ page) => page.evaluate(leafTexts);

const textOf = (/** @type {Line[]} */ lines) => lines.map((line) => line.text).join("\n");

// The entries of an address as its exercises, in order.
function exercisesOf(/** @type {string} */ hash, /** @type {number} */ paper) {
    return hash
        .split("/")[2]
        .split("?")[0]
        .split(",")
        .flatMap((entry) => {
            const [count, kind] = entry.includes("*") ? entry.split("*") : [1, entry];
            return Array.from({ length: Number(count) }, (_, at) => lesson.exercise(paper, at + 1, kind));
        });
}

// "Al2(SO4)3", "SO42−", "2HCl+…→…": as it is on paper, blanks aside.
function answerOnPaper(/** @type {Exercise} */ { key }) {
    return plain(key.text)
        .replace("->", "→")
        .replaceAll("^", "")
        .replace(/-/g, "−")
        .replace(/\./g, (dot, at, all) => (/\d/.test(all[at - 1] ?? "") && /\d/.test(all[at + 1] ?? "") ? dot : "·"));
}

// Each sheet once: what the preview shows, and what came out of the printer.
/** @typedef {Awaited<ReturnType<typeof make>>} Sheet */
/** @type {Map<string, Promise<Sheet>>} */
const made = new Map();
function sheet(/** @type {string} */ hash) {
    if (!made.has(hash)) {
        made.set(hash, make(hash));
    }
    return made.get(hash);
}

async function make(/** @type {string} */ hash) {
    const page = await openSheet(hash);
    const preview = await previewTexts(page);
    const size = await page.locator(".size").textContent();
    const overfull = await page
        .locator(".leaf")
        .evaluateAll((leaves) => leaves.filter((leaf) => leaf.scrollHeight > leaf.clientHeight).length);
    const pdf = await printed(page);
    await leave(page);
    return { preview, size, overfull, pdf, pages: pagesOf(pdf) };
}

const papersOf = (/** @type {string} */ hash) => {
    const versions = Number(/versions=(\d+)/.exec(hash)?.[1] ?? 1);
    return Array.from({ length: versions }, (_, at) => ((Number(hash.split("/")[1]) + at - 1) % 999999) + 1);
};

// What may stand at the top of a page, blanks aside.
function labelsOf(/** @type {string} */ hash) {
    const papers = papersOf(hash);
    const single = papers.map((paper, at) => (papers.length === 1 ? `Paper${paper}` : `Paper${paper},version${at + 1}`));
    return { single, all: `Papers${papers[0]}to${papers.at(-1)}` };
}

const labelOf = (/** @type {Line[]} */ lines) => lines[0].text.replace(/Page\d+of\d+$/, "");

const titleOf = (/** @type {string} */ hash) => plain(new URLSearchParams(hash.split("?")[1]).get("title") ?? "Chemical calculations");

// "sheet", "key", or "blank" for a side that is left so.
function sideOf(/** @type {Line[]} */ lines) {
    if (lines.length === 2 && lines[1].text === "Thissideisblank.") {
        return "blank";
    }
    return lines.slice(1, 4).some((line) => line.text.startsWith("Keyto")) ? "key" : "sheet";
}

// The lines of each version's key, without its headings.
function keyLinesOf(/** @type {string} */ hash, /** @type {Line[][]} */ pages) {
    const lines = pages
        .filter((page) => sideOf(page) === "key")
        .flatMap((page) => page.slice(1))
        .map((line) => line.text)
        .filter((line) => line.length < 5 || !titleOf(hash).includes(line));
    return labelsOf(hash).single.map((label) => {
        const title = `Keyto${label.replace("Paper", "paper")}`;
        const from = lines.indexOf(title);
        const to = lines.findIndex((line, at) => at > from && line.startsWith("Keyto") && !line.startsWith(title));
        return lines.slice(from + 1, to < 0 ? undefined : to).filter((line) => line !== `${title},continued`);
    });
}

for (const [name, hash] of Object.entries(sheets)) {
    test(`${name}: what is printed is the preview, page by page`, async () => {
        const { preview, size, pages } = await sheet(hash);
        assert.deepEqual(
            pages.map((lines) => letters(textOf(lines))),
            preview.map(letters),
        );
        const blank = pages.filter((lines) => sideOf(lines) === "blank").length;
        const [, all, ofThem] = /, (\d+) pages?(?:, (\d+) of them blank)?$/.exec(size) ?? assert.fail(size);
        assert.deepEqual([Number(all), ofThem], [pages.length, blank === 0 ? undefined : String(blank)], size);
    });

    test(`${name}: nothing is outside the margins, and no exercise is cut by the end of a page`, async () => {
        const { overfull, pages } = await sheet(hash);
        const [width, height] = hash.includes("Letter") ? [215.9, 279.4] : [210, 297];
        for (const { top, bottom, left, right, text } of pages.flat()) {
            assert.ok(top > 13 && bottom < height - 13, `${text}: ${top} to ${bottom} mm down`);
            assert.ok(left > 17.5 && right < width - 17.5, `${text}: ${left} to ${right} mm across`);
        }
        assert.equal(overfull, 0);
    });

    test(`${name}: the paper number is on every page`, async () => {
        const { pages } = await sheet(hash);
        const { single, all } = labelsOf(hash);
        const found = pages.map(labelOf);
        assert.deepEqual(
            found.filter((/** @type {string} */ label) => label !== all && !single.includes(label)),
            [],
        );
        assert.deepEqual(
            single.filter((label) => !found.includes(all) && !found.includes(label)),
            [],
        );
    });

    test(`${name}: no answer is missing from the key, and its numbers are those of the sheet`, {
        skip: hash.includes("parts=sheet"),
    }, async () => {
        const { pages } = await sheet(hash);
        papersOf(hash).forEach((paper, at) => {
            const lines = keyLinesOf(hash, pages)[at];
            let from = 0;
            exercisesOf(hash, paper).forEach((exercise, index) => {
                // Not a quantity, which may begin a line as well: "2.279 × 10−3".
                const begins = (/** @type {number} */ number, /** @type {number} */ behind) =>
                    lines.findIndex((line, row) => row >= behind && new RegExp(`^${number}\\.(?!\\d)|^${number}\\.\\d[A-Z]`).test(line));
                from = begins(index + 1, from);
                const to = begins(index + 2, from + 1);
                const item = from < 0 ? [] : lines.slice(from, to < 0 ? undefined : to);
                const answer = answerOnPaper(exercise);
                assert.ok(
                    item.some((line) => line.endsWith(answer)),
                    `paper ${paper}, ${index + 1}: no ${answer} in ${item.join(" | ")}`,
                );
            });
        });
    });

    test(`${name}: the key is on pages of its own`, async () => {
        const { pages } = await sheet(hash);
        const kinds = pages.map(sideOf).filter((/** @type {string} */ kind) => kind !== "blank");
        assert.deepEqual(kinds, [...kinds].sort().reverse());
        assert.equal(
            pages
                .filter((lines) => sideOf(lines) === "sheet")
                .flat()
                .filter((line) => line.text.startsWith("Keyto")).length,
            0,
        );
        assert.equal(kinds.includes("key"), !hash.includes("parts=sheet"));
    });

    test(`${name}: no blank page at the end`, async () => {
        const { pages, pdf } = await sheet(hash);
        assert.ok(pages.at(-1).length > 2);
        assert.notEqual(sideOf(pages.at(-1)), "blank");
        assert.equal(shadesOf(pdf).filter((shades) => shades.every((shade) => shade > 250)).length, 0);
    });

    // Odd pages are front sides; a side that is left blank has the paper of the page before it.
    test(`${name}: each paper and the key begin on a new leaf`, async () => {
        const { pages } = await sheet(hash);
        const first = pages.flatMap((lines, at) => (/Page1of\d+$/.test(lines[0].text) ? [at + 1] : []));
        assert.ok(first.length > 0);
        assert.deepEqual(
            first.filter((page) => page % 2 === 0),
            [],
            `of ${first}`,
        );
        pages.forEach((lines, at) => {
            if (sideOf(lines) === "blank") {
                assert.equal(lines[0].text, labelOf(pages[at - 1]), `page ${at + 1}`);
            }
        });
    });

    test(`${name}: the key has the title of the sheet`, { skip: hash.includes("parts=sheet") || hash.includes("title=&") }, async () => {
        const { pages } = await sheet(hash);
        const key = pages.find((lines) => sideOf(lines) === "key");
        const above = key.slice(
            1,
            key.findIndex((line) => line.text.startsWith("Keyto")),
        );
        assert.equal(above.map((line) => line.text).join(""), titleOf(hash));
    });

    test(`${name}: all pages are of the chosen size`, async () => {
        assert.equal(pageSize((await sheet(hash)).pdf), hash.includes("Letter") ? "216 × 279" : "210 × 297");
    });
}

test("the exercises that are printed are those of the paper", async () => {
    const hash = sheets["versions on Letter, each key from a new page on"];
    const { preview } = await sheet(hash);
    papersOf(hash).forEach((paper, at) => {
        const text = plain(preview.filter((leaf) => leaf.startsWith(`Paper ${paper}, version ${at + 1}P`)).join(""));
        exercisesOf(hash, paper).forEach(({ prompt }, index) => {
            const said = `${index + 1}.${plain(prompt.map((span) => Object.values(span)[0]).join(""))}`;
            assert.ok(text.includes(said), `paper ${paper}: no ${said} in ${text}`);
        });
    });
});

test("the printed number is the one that made the sheet, whatever was chosen before", async () => {
    const page = await openSheet("#sheet/4821/5*molar-mass?v=1");
    await change(page, () => page.getByRole("button", { name: "New paper" }).click());
    const paper = Number(await page.getByLabel("Paper", { exact: true }).inputValue());
    assert.match(page.url(), new RegExp(`#sheet/${paper}/`));
    const lines = pagesOf(await printed(page))
        .flat()
        .map((line) => line.text);
    assert.ok(lines.includes(`Paper${paper}Page1of1`));
    for (const [at, exercise] of exercisesOf("#sheet/1/5*molar-mass", paper).entries()) {
        assert.ok(
            lines.some((line) => line.startsWith(`${at + 1}.`) && line.endsWith(answerOnPaper(exercise))),
            answerOnPaper(exercise),
        );
    }
    await leave(page);
});

test("the page-break option does something", async () => {
    const keyPages = async (/** @type {string} */ keys) => {
        const { pages } = await sheet(`#sheet/4821/5*titration?versions=3&keys=${keys}&v=1`);
        return pages.filter((lines) => sideOf(lines) === "key").map(labelOf);
    };
    assert.deepEqual(await keyPages("together"), ["Papers4821to4823"]);
    assert.deepEqual(await keyPages("apart"), ["Paper4821,version1", "Paper4822,version2", "Paper4823,version3"]);
});

test("keys that follow each other on a page have the title once", async () => {
    const { pages } = await sheet("#sheet/4821/5*titration?versions=3&v=1");
    const lines = pages
        .filter((page) => sideOf(page) === "key")
        .flat()
        .map((line) => line.text);
    assert.equal(lines.filter((line) => line === "Chemicalcalculations").length, 1);
    assert.equal(lines.filter((line) => line.startsWith("Keyto")).length, 3);
});

test("a paper of two pages leaves no side blank, one of a page does", async () => {
    const sides = async (/** @type {string} */ hash) => (await sheet(hash)).pages.map(sideOf).join(" ");
    assert.equal(await sides("#sheet/4821/titration?versions=2&v=1"), "sheet blank sheet blank key");
    assert.equal(await sides("#sheet/4821/titration?versions=2&leaf=0&v=1"), "sheet sheet key");
    assert.equal(await sides("#sheet/4821/titration?versions=2&keys=apart&v=1"), "sheet blank sheet blank key blank key");
    assert.equal(await sides("#sheet/4821/titration?versions=2&parts=key&v=1"), "key");
    assert.equal(await sides("#sheet/4821/titration?versions=2&parts=sheet&v=1"), "sheet blank sheet");
    assert.equal(await sides("#sheet/4821/5*titration?v=1"), "sheet sheet key");
});

test("a sheet that is left while it is being made is given up", async () => {
    const page = await openPage(browser, "#sheet/1/20*titration?versions=30");
    await go(page, "#tables");
    await page.getByRole("heading", { name: "Relative atomic masses" }).waitFor();
    await page.waitForTimeout(500);
    assert.equal(await page.locator("#announcement").textContent(), "");
    await leave(page);
});

test("what is typed just before the sheet is left does not bring it back", async () => {
    const page = await openSheet("#sheet/4821/2*titration");
    await page.getByLabel("Title").fill("Monday");
    await go(page, "#tables");
    await page.waitForTimeout(400);
    assert.equal(new URL(page.url()).hash, "#tables");
    assert.match(await page.title(), /^Tables/);
    await leave(page);
});

test("how the keys of several versions are printed is chosen where there are several", async () => {
    const page = await openSheet("#sheet/4821/2*titration");
    const keys = page.getByLabel("Keys of several versions");
    assert.ok(await keys.isDisabled());
    await change(page, () => page.getByLabel("Versions", { exact: true }).fill("2"));
    assert.ok(await keys.isEnabled());
    await leave(page);
});

const base = "#sheet/4821/6*titration,2*concentration:3?";
const countOf = (/** @type {string} */ side, /** @type {Line[][]} */ pages) => pages.filter((lines) => sideOf(lines) === side).length;
/** @type {Record<string, (found: Sheet, usual: Sheet) => boolean>} */
const effects = {
    "title=Monday": ({ pages }) => pages[0][1].text === "Monday",
    "title=": ({ pages }) => pages[0][1].text === "NameDate",
    "room=none": ({ pages }, usual) => countOf("sheet", pages) < countOf("sheet", usual.pages),
    "room=much": ({ pages }, usual) => countOf("sheet", pages) > countOf("sheet", usual.pages),
    "drawings=1": ({ pages }, usual) =>
        textOf(pages.flat()).includes("conicalflask:") && !textOf(usual.pages.flat()).includes("conicalflask:"),
    "masses=table": ({ pages }, usual) =>
        textOf(pages.flat()).includes("Relativeatomicmasses:usetheperiodictable.") &&
        textOf(usual.pages.flat()).includes("Relativeatomicmasses:H1.008;"),
    "leaf=0": ({ pages }, usual) => countOf("blank", pages) === 0 && countOf("blank", usual.pages) === 1,
    "parts=sheet": ({ pages }, usual) => countOf("key", pages) === 0 && countOf("sheet", pages) === countOf("sheet", usual.pages),
    "parts=key": ({ pages }) => pages.length === 1,
    "key=working": ({ pages }) => textOf(pages.flat()).includes("whoseconcentrationisknown."),
    "size=Letter": ({ pdf }) => pageSize(pdf) === "216 × 279",
    "versions=2": ({ pages }) => pages.map(labelOf).includes("Paper4822,version2"),
};
for (const [option, hasEffect] of Object.entries(effects)) {
    test(`the option ${option} does what it says`, async () => {
        assert.ok(hasEffect(await sheet(`${base}${option}&v=1`), await sheet(`${base}v=1`)));
    });
}

// As it may stand in a mail of years ago.
test("a sheet opened from an old address is the same sheet", async () => {
    const page = await openSheet(
        "#sheet/4821/2*molar-mass:3,2*concentration:3,dilution,titration:3,neutralisation,ion-formula,solubility:3?versions=2&key=working&v=1",
    );
    await compareWithApproved("sheet.txt", `${await transcript(page)}\n`);
    await leave(page);
});

// Its lines as they are seen; not where pages end, which depends on the fonts of the system.
function transcript(/** @type {Page} */ page) {
    return page.locator(".leaf").evaluateAll((leaves) => {
        /** @type {(one: Element) => string} */
        const seen = (one) =>
            [...one.childNodes]
                .map((node) => (node instanceof Text ? node.data : node instanceof Element && !node.matches(".spoken") ? seen(node) : ""))
                .join("");
        const numberOf = (/** @type {Element} */ line) => {
            const item = line.closest("li");
            return item === null || item.querySelector("p") !== line
                ? ""
                : `${/** @type {HTMLOListElement} */ (item.parentElement).start + [...item.parentElement.children].indexOf(item)}. `;
        };
        const lines = leaves.flatMap((leaf) => [...leaf.querySelectorAll("h2, p:not(.running, .blanks, .again)")]);
        return lines.map((line) => numberOf(line) + seen(line)).join("\n");
    });
}

test("from a dark screen it prints black on white, the same as from a light one", async () => {
    const hash = sheets["every kind, with drawings"];
    const page = await openSheet(hash, { colorScheme: "dark" });
    const dark = shadesOf(await printed(page));
    assert.equal(dark.length, pagesOf(await printed(page)).length);
    assert.deepEqual(dark, shadesOf((await sheet(hash)).pdf));
    for (const shades of dark) {
        assert.ok(shades.some((shade) => shade < 160) && shades[0] === 255);
        assert.ok(shades.filter((shade) => shade === 255).length > 0.7 * shades.length);
    }
    await leave(page);
});

test("the atomic masses that are needed stand on the sheet, and no line where none is", async () => {
    const { pages } = await sheet("#sheet/4821/2*molar-mass:3,concentration:3?v=1");
    assert.equal(
        pages[0].find((line) => line.text.startsWith("Relative")).text,
        "Relativeatomicmasses:H1.008;O16.00;Mg24.31;S32.06;Cl35.45;Co58.93;Ba137.3",
    );
    const none = await sheet("#sheet/4821/2*concentration:1,titration?v=1");
    assert.doesNotMatch(textOf(none.pages.flat()), /Relative/);
});

test("units, the decimal sign and names are the reader's, on the sheet and in its key", async () => {
    const before = () =>
        localStorage.setItem("chempractice.settings", JSON.stringify({ volume: "cm3", per: "power", decimal: ",", names: "american" }));
    const page = await openSheet("#sheet/2/4*titration,5*concentration:3,6*ion-formula,10*compound-formula?key=working&v=1", { before });
    const text = pagesOf(await printed(page))
        .flat()
        .map((line) => line.text.replace(/^\d+\./, ""))
        .join("\n");
    assert.match(text, /\d,\d+moldm−3/);
    assert.match(text, /\d,\dcm3/);
    assert.match(text, /H1,008;/);
    assert.match(text, /acetate|aluminum/);
    assert.doesNotMatch(text, /mL|mol\/L|\d\.\d|ethanoate|aluminium/);
    await leave(page);
});

test("settings that change on the page change the sheet", async () => {
    const page = await openSheet("#sheet/4821/2*titration?v=1");
    await page.locator("summary", { hasText: "How it is written" }).click();
    await change(page, () => page.getByLabel("cm³, dm³").check());
    assert.match(plain((await previewTexts(page))[0]), /cm3/);
    await leave(page);
});

test("thirty versions of twenty exercises are complete", async () => {
    const hash = "#sheet/31/7*concentration,7*dilution,6*titration:3?versions=30&room=none&v=1";
    const { pages, preview } = await sheet(hash);
    assert.equal(pages.length, preview.length);
    papersOf(hash).forEach((paper, at) => {
        const lines = keyLinesOf(hash, pages)[at];
        const expected = exercisesOf(hash, paper).map((exercise, index) => [`${index + 1}.`, answerOnPaper(exercise)]);
        assert.equal(lines.length, 20, `paper ${paper}`);
        lines.forEach((line, /** @type {number} */ index) =>
            assert.ok(line.startsWith(expected[index][0]) && line.endsWith(expected[index][1]), `${line}: ${expected[index]}`),
        );
    });
});

test("a sheet that is printed before it is made is whole", async () => {
    const page = await openSheet("#sheet/1/titration?v=1");
    const pages = await page.evaluate(() => {
        location.hash = "#sheet/1/20*titration?versions=30&v=1";
        return new Promise((done) =>
            window.addEventListener("hashchange", () => {
                const atFirst = document.querySelectorAll(".leaf:not(.measuring)").length;
                window.dispatchEvent(new Event("beforeprint"));
                const all = [...document.querySelectorAll(".leaf")];
                const blank = all.filter((leaf) => leaf.textContent.endsWith("This side is blank."));
                done([atFirst, all.length, document.querySelector(".size").textContent, blank.length]);
            }),
        );
    });
    assert.ok(pages[0] < pages[1], "made at once, so this tests nothing");
    assert.equal(pages[2], `20 exercises, 30 versions, ${pages[1]} pages${pages[3] === 0 ? "" : `, ${pages[3]} of them blank`}`);
    await leave(page);
});

test("what is typed is the sheet: address, preview, and again after a reload", async () => {
    const page = await openSheet("#sheet/4821/2*titration?v=1");
    await change(page, () => page.getByRole("spinbutton", { name: /^Dilution, level 1/ }).fill("3"));
    await change(page, () => page.getByRole("spinbutton", { name: "Versions" }).fill("2"));
    await change(page, () => page.getByLabel("Room to write").selectOption("None"));
    assert.equal(page.url().split("#")[1], "sheet/4821/3*dilution:1,2*titration?versions=2&room=none&v=1");
    const before = await previewTexts(page);
    assert.match(before[0], /^Paper 4821, version 1/);
    await reload(page);
    await isMade(page);
    assert.deepEqual(await previewTexts(page), before);
    assert.equal(await page.getByRole("spinbutton", { name: "Versions" }).inputValue(), "2");
    await leave(page);
});

test("an address in an order of its own keeps it when something else is changed", async () => {
    const page = await openSheet("#sheet/4821/titration,2*molar-mass,dilution?v=1");
    await change(page, () => page.getByLabel("Title").fill("Test"));
    await change(page, () => page.getByRole("spinbutton", { name: /^Formula of an ion, level 1/ }).fill("1"));
    assert.equal(page.url().split("#")[1], "sheet/4821/titration,2*molar-mass,dilution,ion-formula:1?title=Test&v=1");
    await leave(page);
});

/** @type {[what: string, field: string, wrong: string, sentence: RegExp, right: string][]} */
const complaints = [
    ["an empty sheet", "Acid-base titration, level 2", "", /^Fill in how many/, "2"],
    ["half an exercise", "Dilution, level 2", "0.5", /^Each count is a whole number up to 1000/, "0"],
    ["too many exercises", "Dilution, level 2", "999", /^That is more than 1000 exercises/, ""],
    ["31 versions", "Versions", "31", /^Versions are a number from 1 to 30/, "1"],
    ["no version", "Versions", "", /^Versions are a number from 1 to 30/, "1"],
];
// The sentence that a field is described by, where it is marked as wrong.
const told = (/** @type {Locator} */ field) =>
    field.evaluate((one) => {
        const lines = (one.getAttribute("aria-describedby") ?? "").split(" ").map((id) => document.getElementById(id)?.textContent);
        return one.getAttribute("aria-invalid") === "true" ? lines.at(-1) : "";
    });

for (const [what, field, wrong, sentence, right] of complaints) {
    test(`${what}: a plain sentence at the field, beside the sheet as it was, and nothing once it is mended`, async () => {
        const page = await openSheet("#sheet/4821/2*titration?v=1");
        const before = await previewTexts(page);
        const number = page.getByRole("spinbutton", { name: new RegExp(`^${field}`) });
        await number.fill(wrong);
        await page.locator(".problem").waitFor();
        assert.match(await told(number), sentence);
        assert.match(await announced(page), sentence);
        assert.deepEqual(await previewTexts(page), before);
        await page.getByText("These are the pages of the last sheet without a mistake").waitFor();
        await change(page, () => number.fill(right));
        assert.equal(await told(number), "");
        assert.equal(await page.locator(".problem:visible, .stale:visible").count(), 0);
        assert.equal(page.url().split("#")[1], "sheet/4821/2*titration?v=1");
        await leave(page);
    });
}

test("a paper that is none is asked for again", async () => {
    const page = await openSheet("#sheet/4821/2*titration?v=1");
    const paper = page.getByLabel("Paper", { exact: true });
    for (const wrong of ["0", "1000000", "", "12a"]) {
        await change(page, () => paper.fill("4821"));
        await paper.fill(wrong);
        await page.locator(".problem").waitFor();
        assert.equal(await told(paper), "A paper is a number from 1 to 999999.", wrong);
    }
    await leave(page);
});

test("each thing that is wrong is told at its own field, and announced once", async () => {
    const page = await openSheet("#sheet/4821/2*titration?v=1");
    await page.evaluate(() => {
        window.said = [];
        new MutationObserver(() => window.said.push(document.getElementById("announcement").textContent)).observe(
            document.getElementById("announcement"),
            { childList: true },
        );
    });
    const [titration, dilution, versions] = [/^Acid-base titration, level 2/, /^Dilution, level 1/, "Versions"].map((name) =>
        page.getByRole("spinbutton", { name }),
    );
    await titration.fill("1.5");
    await page.locator(".problem").waitFor();
    await dilution.fill("-1");
    await versions.fill("0");
    await page.locator(".problem").nth(2).waitFor();
    await page.waitForTimeout(100);
    const [count, ofVersions] = ["Each count is a whole number up to 1000.", "Versions are a number from 1 to 30."];
    assert.deepEqual([await told(titration), await told(dilution), await told(versions)], [count, count, ofVersions]);
    assert.deepEqual(await page.evaluate(() => window.said.filter((/** @type {string} */ text) => text !== "")), [
        count,
        `Dilution, level 1: ${count} ${ofVersions}`,
    ]);
    await leave(page);
});

test("printing while something is wrong prints what is shown, and the files are of it", async () => {
    const page = await openSheet("#sheet/4821/2*ion-formula?v=1", { acceptDownloads: true });
    const before = await previewTexts(page);
    await page.getByLabel("Versions", { exact: true }).fill("31");
    await page.locator(".stale:visible").waitFor();
    assert.deepEqual(
        pagesOf(await printed(page)).map((lines) => letters(textOf(lines))),
        before.map(letters),
    );
    const [download] = await Promise.all([page.waitForEvent("download"), page.getByRole("button", { name: "Anki cards" }).click()]);
    assert.equal(await readFile(await download.path(), "utf8"), lesson.exportText(4821, "2*ion-formula", "anki"));
    await leave(page);
});

test("how it is written is changed in the pages while something is wrong in the form", async () => {
    const page = await openSheet("#sheet/4821/2*titration?v=1");
    await page.getByLabel("Versions", { exact: true }).fill("31");
    await page.locator(".stale:visible").waitFor();
    await page.locator("summary", { hasText: "How it is written" }).click();
    await change(page, () => page.getByLabel("cm³, dm³").check());
    assert.match(plain((await previewTexts(page))[0]), /cm3/);
    assert.ok(await page.locator(".stale").isVisible());
    await leave(page);
});

test("what each level of each kind asks for is read without going into a field", async () => {
    const page = await openSheet("#sheet/4821/2*titration?v=1");
    for (const { title, levels } of lesson.kinds()) {
        for (const [at, level] of levels.entries()) {
            assert.ok(
                await page
                    .locator(".meanings", { hasText: `${at + 1}\u00A0${level}` })
                    .first()
                    .isVisible(),
                `${title}: ${level}`,
            );
        }
    }
    await leave(page);
});

for (const width of [1100, 1280, 1920]) {
    test(`at ${width} pixels the pages stand beside the form, and stay there while it is filled in`, async () => {
        const page = await openSheet("#sheet/4821/2*titration?v=1", { viewport: { width, height: 800 }, reducedMotion: "reduce" });
        const box = (/** @type {string} */ selector) =>
            page
                .locator(selector)
                .first()
                .evaluate((one) => one.getBoundingClientRect().toJSON());
        const [form, leaf] = [await box(".sheets"), await box(".leaf")];
        assert.ok(leaf.left >= form.right && leaf.right <= width && leaf.top < 400, JSON.stringify([form, leaf]));
        await page.getByLabel("Page size").focus();
        assert.deepEqual((await box(".leaf")).top, leaf.top);
        assert.equal(await page.getByRole("button", { name: "Pages" }).isVisible(), false);
        await leave(page);
    });
}

test("in a narrow window a button near the top leads to the pages", async () => {
    const page = await openSheet("#sheet/4821/2*titration?v=1", { viewport: { width: 360, height: 740 }, reducedMotion: "reduce" });
    const button = page.getByRole("button", { name: "Pages" });
    assert.ok((await button.boundingBox()).y < 200);
    await button.press("Enter");
    assert.equal(await page.evaluate(() => document.activeElement.getAttribute("aria-label")), "Pages");
    assert.ok((await page.locator(".leaf").first().boundingBox()).y < 400);
    await leave(page);
});

test("Sheets leads back to the sheet, and Back to what was before it", async () => {
    const page = await openSheet("#sheet/4821/2*titration?v=1");
    await page.getByRole("link", { name: "Tables" }).click();
    await page.getByRole("heading", { name: "Tables" }).waitFor();
    await page.getByRole("link", { name: "Sheets" }).click();
    await page.getByRole("heading", { name: "Sheets to print" }).waitFor();
    assert.equal(page.url().split("#")[1], "sheet/4821/2*titration?v=1");
    await page.goBack();
    await page.getByRole("heading", { name: "Tables" }).waitFor();
    await leave(page);
});

const downloads = [
    ["Moodle quiz", "moodle", "xml"],
    ["Anki cards", "anki", "txt"],
];
for (const [label, format, ending] of downloads) {
    test(`${label} saves the exercises of the chosen version`, async () => {
        const page = await openSheet("#sheet/4821/2*ion-formula,compound-formula:3?versions=3&v=1", { acceptDownloads: true });
        await page.getByLabel("Version to save or practise").selectOption("4823");
        const [download] = await Promise.all([page.waitForEvent("download"), page.getByRole("button", { name: label }).click()]);
        assert.equal(download.suggestedFilename(), `paper-4823-${format}.${ending}`);
        assert.equal(await readFile(await download.path(), "utf8"), lesson.exportText(4823, "2*ion-formula,compound-formula:3", format));
        await leave(page);
    });
}

test("cards of calculations are no file but the library's sentence, which goes when the sheet changes", async () => {
    const page = await openSheet("#sheet/4821/2*titration?v=1");
    await page.getByRole("button", { name: "Anki cards" }).click();
    const { error } = JSON.parse(lesson.exportText(4821, "2*titration", "anki"));
    await page.getByRole("alert").filter({ hasText: error }).waitFor();
    await change(page, () => page.getByRole("spinbutton", { name: /^Formula of an ion, level 1/ }).fill("1"));
    assert.equal(await page.getByRole("alert").textContent(), "");
    await leave(page);
});

test("Print prints", async () => {
    const page = await openSheet("#sheet/4821/2*titration?v=1", {
        before: () => (window.print = () => (window.printed = `${document.querySelectorAll(".leaf").length}`)),
    });
    await page.getByRole("button", { name: "Print" }).click();
    assert.equal(await page.evaluate(() => window.printed), "3");
    await leave(page);
});

test("the last of the form is reached by turning the wheel over it", async () => {
    for (const [width, height] of [
        [1366, 768],
        [1920, 1080],
    ]) {
        const page = await openSheet("#sheet/4821/20*titration?v=1", { viewport: { width, height }, reducedMotion: "reduce" });
        const last = page.locator("summary", { hasText: "How it is written" });
        await page.mouse.move(width / 4, height / 2);
        for (let turn = 0; turn < 20; turn++) {
            await page.mouse.wheel(0, 300);
            await page.waitForTimeout(30);
        }
        const { y, height: high } = await last.boundingBox();
        assert.ok(y >= 0 && y + high <= height, `${y} to ${y + high} of ${height} px`);
        await leave(page);
    }
});
