// The tables show the library's data, row by row.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { after, test } from "node:test";
import { announced, go, leave, openChromium, openLesson, openPage, panel, plainOf } from "./support.mjs";

/** @import { Page } from "./support.mjs" */

const tables = (await openLesson()).tables();
const browser = await openChromium();
after(() => browser.close());

test("each element stands in its place with its mass", async () => {
    const page = await openPage(browser, "#tables");
    const shown = await page.locator(".periodic td:has(abbr)").evaluateAll((/** @type {HTMLTableCellElement[]} */ cells) =>
        cells.map((cell) => ({
            number: Number(cell.querySelector(".atomic").textContent),
            symbol: cell.querySelector("abbr").textContent,
            name: cell.querySelector("abbr").title,
            mass: cell.querySelector(".mass").textContent,
            row: /** @type {HTMLTableRowElement} */ (cell.parentElement).rowIndex,
            column: cell.cellIndex,
        })),
    );
    // The two series stand in rows of their own, below the others.
    const placeOf = (/** @type {{ period: number, group: number }} */ { period, group }) =>
        group === 0 ? { row: period + 2 } : { row: period, column: group };
    const bySymbol = new Map(shown.map((cell) => [cell.symbol, cell]));
    assert.equal(shown.length, 118);
    assert.equal(tables.elements.length, 118);
    for (const element of tables.elements) {
        const { number, symbol, name, mass } = element;
        const wanted = { number, symbol, name, mass, ...placeOf(element) };
        const cell = bySymbol.get(symbol);
        assert.deepEqual(cell, { column: cell?.column, ...wanted }, symbol);
    }
    await leave(page);
});

async function find(/** @type {Page} */ page, /** @type {string} */ typed) {
    await page.getByRole("textbox", { name: "Find an element" }).fill(typed);
    return page
        .locator(".results tbody tr")
        .evaluateAll((/** @type {HTMLTableRowElement[]} */ rows) =>
            rows.map((row) => [...row.cells].map((cell) => cell.textContent).join(" ")),
        );
}

const markedCells = (/** @type {Page} */ page) => page.locator(".periodic .found abbr").allTextContents();

// What is typed, and the symbols of what is found.
const searches = [
    ["na", "Na"],
    ["Sodium", "Na"],
    ["cesium", "Cs"],
    ["17", "Cl"],
    ["Na Cl", "Na Cl"],
    ["CuSO4.5H2O", "Cu S O H"],
    ["Uuh", ""],
    ["", ""],
];

for (const [typed, symbols] of searches) {
    test(`"${typed}" finds ${symbols || "nothing"}, a line each with the mass, and marks it in the table`, async () => {
        const page = await openPage(browser, "#tables");
        const wanted = symbols.split(" ").flatMap((symbol) => tables.elements.filter((one) => one.symbol === symbol));
        assert.deepEqual(
            await find(page, typed),
            wanted.map(({ symbol, name, number, mass }) => `${symbol} ${name} ${number} ${mass}`),
            typed,
        );
        assert.deepEqual((await markedCells(page)).sort(), wanted.map(({ symbol }) => symbol).sort(), typed);
        await leave(page);
    });
}

test("what is found is announced, and so is what there is none of", async () => {
    const page = await openPage(browser, "#tables");
    await find(page, "Na2O Uuh");
    const mass = (/** @type {string} */ symbol) => tables.elements.find((one) => one.symbol === symbol).mass;
    const found = [
        ["N a, sodium, number 11", "Na"],
        ["O, oxygen, number 8", "O"],
    ].map(([told, symbol]) => `${told}, relative atomic mass ${mass(symbol)}.`);
    const none = "There is no such element: Uuh.";
    assert.equal(await announced(page), [...found, none].join(" "));
    assert.equal(await page.locator(".results .message").innerText(), none);
    await leave(page);
});

test("a decimal comma and American names hold in what is found", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration");
    await panel(page, "How it is written").click();
    await page.getByLabel("American").check();
    await page.getByLabel("Comma:").check();
    await go(page, "#tables");
    assert.deepEqual(await find(page, "aluminium"), ["Al aluminum 13 26,98"]);
    await leave(page);
});

test("on a phone with its keyboard open, the field and the elements of a formula are in view", async () => {
    const page = await openPage(browser, "#tables", { viewport: { width: 360, height: 320 }, reducedMotion: "reduce" });
    await find(page, "Na2SO4");
    const { y: top } = await page.locator("#find").boundingBox();
    const last = await page.locator(".results tr").last().boundingBox();
    assert.ok(top >= 0 && last.y + last.height <= 320, `from ${top} to ${last.y + last.height}`);
    await leave(page);
});

test("the marked cell is in view beside the field: on a phone inside the box, on a wide window as a whole", async () => {
    for (const viewport of [
        { width: 360, height: 640 },
        { width: 1280, height: 900 },
    ]) {
        const page = await openPage(browser, "#tables", { viewport, reducedMotion: "reduce" });
        await find(page, "Lr");
        const { left, right, bottom } = await page.locator(".periodic .found").evaluate((cell) => cell.getBoundingClientRect().toJSON());
        const { top } = await page.locator("#find").evaluate((field) => field.getBoundingClientRect().toJSON());
        assert.ok(left >= 0 && right <= viewport.width, `from ${left} to ${right} in ${viewport.width}`);
        assert.ok(top >= 0 && (viewport.width < 1000 || bottom <= viewport.height), `from ${top} to ${bottom} in ${viewport.width}`);
        await leave(page);
    }
});

test("each ion has its name, formula and charge", async () => {
    const page = await openPage(browser, "#tables");
    const shown = await page
        .locator(".halves tbody tr")
        .evaluateAll((rows) => rows.map((row) => [row.querySelector("th").textContent, row.querySelector("[aria-hidden]").textContent]));
    /** @type {Record<number, string>} */
    const signs = { 1: "+", 2: "2+", 3: "3+", "-1": "−", "-2": "2−", "-3": "3−" };
    const wanted = tables.ions.map(({ name, formula, charge }) => [name, formula + signs[charge]]);
    assert.deepEqual(shown.sort(), wanted.sort());
    await leave(page);
});

const showAll = (/** @type {Page} */ page) => page.getByRole("button", { name: "Show those that are never asked" }).click();

test("each pair has its verdict, and its reason when it is pressed", async () => {
    const page = await openPage(browser, "#tables");
    await showAll(page);
    const shown = await page.locator(".solubility button").evaluateAll((/** @type {HTMLElement[]} */ buttons) =>
        buttons.map((button) => {
            button.click();
            const reason = /** @type {Element} */ (document.querySelector(".reason").cloneNode(true));
            reason.querySelectorAll(".spoken").forEach((one) => one.remove());
            return [button.getAttribute("aria-label"), reason.textContent.replaceAll("\u00A0", " ")];
        }),
    );
    const wanted = tables.pairs.map(({ cation, anion, formula, verdict, reason }) => [
        `${cation} ${anion}: ${verdict}`,
        `${formula ?? `${cation} ${anion}`}: ${verdict}. ${plainOf(reason)}`,
    ]);
    assert.ok(shown.length > 200);
    assert.deepEqual(shown.sort(), wanted.sort());
    await leave(page);
});

// By counting the verdicts that are none.
function askedIons(/** @type {"cation" | "anion"} */ member) {
    const counts = new Map();
    tables.pairs.forEach((pair) => counts.set(pair[member], (counts.get(pair[member]) ?? 0) + (pair.verdict === "not asked" ? 0 : 1)));
    const names = [...counts.keys()];
    return { asked: names.filter((name) => counts.get(name) > 0), never: names.filter((name) => counts.get(name) === 0), all: names };
}

const headsOf = (/** @type {Page} */ page, /** @type {string} */ part, /** @type {string} */ scope) =>
    page.locator(`.solubility ${part} th[scope=${scope}]`).allTextContents();

test("rows and columns of which nothing is asked are told in words, and in the grid when they are wished", async () => {
    const [cations, anions] = [askedIons("cation"), askedIons("anion")];
    assert.ok(cations.never.length > 0 && anions.never.length > 0);
    const page = await openPage(browser, "#tables");
    const shown = async () => [await headsOf(page, "tbody", "row"), await headsOf(page, "thead", "col")];
    assert.deepEqual(await shown(), [cations.asked, anions.asked]);
    const told = (await page.locator(".never").innerText()).split(/[:.]\s/)[1].split(", ");
    assert.deepEqual(told.sort(), [...cations.never, ...anions.never].sort());
    await showAll(page);
    assert.deepEqual(await shown(), [cations.all, anions.all]);
    await page.getByRole("button", { name: "Hide those that are never asked" }).click();
    assert.deepEqual(await shown(), [cations.asked, anions.asked]);
    await leave(page);
});

const chosenCells = (/** @type {Page} */ page) =>
    page.locator(".solubility [aria-current=true]").evaluateAll((cells) => cells.map((cell) => cell.getAttribute("aria-label")));

test("the chosen cell stays chosen with more rows and columns, and goes with its own", async () => {
    const page = await openPage(browser, "#tables");
    const choose = (/** @type {string} */ name) => page.getByRole("button", { name }).click();
    await choose("silver chloride: insoluble");
    const reason = await page.locator(".reason").innerText();
    await showAll(page);
    assert.deepEqual([await chosenCells(page), await page.locator(".reason").innerText()], [["silver chloride: insoluble"], reason]);
    await choose("silver fluoride: not asked");
    assert.deepEqual(await chosenCells(page), ["silver fluoride: not asked"]);
    await choose("Hide those that are never asked");
    assert.deepEqual([await chosenCells(page), await page.locator(".reason").innerText()], [[], ""]);
    await leave(page);
});

for (const media of /** @type {const} */ ([{}, { colorScheme: "dark" }, { forcedColors: "active" }])) {
    test(`the chosen cell has a frame of its own, and its row and column are marked, ${JSON.stringify(media)}`, async () => {
        const page = await openPage(browser, "#tables", media);
        await page.getByRole("button", { name: "zinc sulfide: insoluble" }).click();
        await page.getByRole("button", { name: "barium sulfate: insoluble" }).click();
        const framed = await page.locator(".solubility button").evaluateAll((cells) => {
            const frames = cells
                .map((cell) => getComputedStyle(cell))
                .map((style) => ({ width: parseFloat(style.borderTopWidth), color: style.borderTopColor, ground: style.backgroundColor }));
            return cells.flatMap((cell, at) =>
                frames[at].width >= 2 && frames[at].color !== frames[at].ground ? [cell.getAttribute("aria-label")] : [],
            );
        });
        assert.deepEqual(framed, ["barium sulfate: insoluble"]);
        const underlined = await page
            .locator(".solubility th span")
            .evaluateAll((heads) =>
                heads.filter((head) => getComputedStyle(head).textDecorationLine === "underline").map((head) => head.textContent),
            );
        assert.deepEqual(underlined.sort(), ["barium", "sulfate"]);
        await leave(page);
    });
}

const windows = [
    [320, 640],
    [360, 640],
    [360, 740],
    [640, 360],
    [768, 1024],
    [1024, 768],
    [1280, 800],
    [1366, 650],
    [1920, 1080],
];
const corners = ["lithium chloride", "iron(II) ethanoate", "calcium hydroxide", "iron(III) phosphate"];

for (const [width, height] of windows) {
    test(`the chosen cell and its reason are both in view, and the reason covers nothing, ${width} × ${height}`, async () => {
        const page = await openPage(browser, "#tables", { viewport: { width, height }, reducedMotion: "reduce" });
        for (const name of corners) {
            const cell = page.getByRole("button", { name: `${name}: ` });
            await cell.focus();
            await page.keyboard.press("Enter");
            const [one, reason, box] = await Promise.all(
                [cell, page.locator(".reason"), page.locator(".grid")].map((part) => part.boundingBox()),
            );
            for (const part of [one, reason]) {
                assert.ok(part.y >= 0 && part.y + part.height <= height + 0.5, `${name}: from ${part.y} to ${part.y + part.height}`);
            }
            assert.ok(reason.y >= box.y + box.height || reason.x >= box.x + box.width, `${name}: ${JSON.stringify({ reason, box })}`);
            const isUncovered = await cell.evaluate((target) => {
                const { left, top, width: across, height: down } = target.getBoundingClientRect();
                return document.elementFromPoint(left + across / 2, top + down / 2) === target;
            });
            assert.ok(isUncovered, `${name} is covered`);
        }
        await leave(page);
    });
}

test("the rules are listed, as the library words them, in the reader's names", async () => {
    const page = await openPage(browser, "#tables");
    const listed = () => page.locator(".rules li").allTextContents();
    assert.ok(tables.rules.length > 5);
    assert.deepEqual(
        await listed(),
        tables.rules.map(({ sentence }) => plainOf(sentence)),
    );
    await go(page, "#practice/4821/3/titration");
    await panel(page, "How it is written").click();
    await page.getByLabel("American").check();
    await go(page, "#tables");
    await page.locator(".rules").waitFor();
    const american = await listed();
    assert.ok(american.includes("Acetates are soluble."), american.join(" "));
    assert.doesNotMatch(american.join(" "), /thanoate|ydrogencarbonate/);
    await leave(page);
});

test("printed, the tables are whole: every element, every ion, every row and column of the grid, and no control", async () => {
    const page = await openPage(browser, "#tables");
    const text = execFileSync("pdftotext", ["-layout", "-", "-"], { input: await page.pdf({ format: "A4" }), encoding: "utf8" });
    const words = new Set(text.split(/\s+/));
    const missing = [...tables.elements.map(({ symbol }) => symbol), ...tables.ions.map(({ name }) => name)].filter(
        (word) => !words.has(word),
    );
    assert.deepEqual(missing, []);
    const signs = { "soluble": "s", "insoluble": "i", "not asked": "–" };
    for (const cation of askedIons("cation").asked) {
        const row = tables.pairs.filter((pair) => pair.cation === cation && askedIons("anion").asked.includes(pair.anion));
        const line = [cation, ...row.map(({ verdict }) => signs[verdict])].join(" ");
        assert.ok(
            text.split("\n").some((one) => one.trim().replace(/\s+/g, " ") === line),
            line,
        );
    }
    assert.doesNotMatch(text, /Find an element|Choose a cell|never asked|Show them/);
    await leave(page);
});
