// The tables show the library's data, row by row.
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { announced, go, leave, openChromium, openLesson, openPage, panel } from "./support.mjs";

let browser;
let tables;
before(async () => {
    browser = await openChromium();
    tables = (await openLesson()).tables();
});
after(() => browser.close());

test("each element stands in its place with its mass", async () => {
    const page = await openPage(browser, "#tables");
    const shown = await page.locator(".periodic td:has(abbr)").evaluateAll((cells) =>
        cells.map((cell) => ({
            number: Number(cell.querySelector(".atomic").textContent),
            symbol: cell.querySelector("abbr").textContent,
            name: cell.querySelector("abbr").title,
            mass: cell.querySelector(".mass").textContent,
            row: cell.parentElement.rowIndex,
            column: cell.cellIndex,
        })),
    );
    // The two series stand in rows of their own, below the others.
    const placeOf = ({ period, group }) => (group === 0 ? { row: period + 2 } : { row: period, column: group });
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

async function find(page, typed) {
    await page.getByRole("textbox", { name: "Find an element" }).fill(typed);
    return page.locator(".results tbody tr").evaluateAll((rows) => rows.map((row) => [...row.cells].map((cell) => cell.textContent).join(" ")));
}

const markedCells = (page) => page.locator(".periodic .found abbr").allTextContents();

// What is typed, and the symbols of what is found.
const searches = [["na", "Na"], ["Sodium", "Na"], ["cesium", "Cs"], ["17", "Cl"], ["Na Cl", "Na Cl"], ["CuSO4.5H2O", "Cu S O H"], ["Uuh", ""], ["", ""]];

for (const [typed, symbols] of searches) {
    test(`"${typed}" finds ${symbols || "nothing"}, a line each with the mass, and marks it in the table`, async () => {
        const page = await openPage(browser, "#tables");
        const wanted = symbols.split(" ").flatMap((symbol) => tables.elements.filter((one) => one.symbol === symbol));
        assert.deepEqual(await find(page, typed), wanted.map(({ symbol, name, number, mass }) => `${symbol} ${name} ${number} ${mass}`), typed);
        assert.deepEqual((await markedCells(page)).sort(), wanted.map(({ symbol }) => symbol).sort(), typed);
        await leave(page);
    });
}

test("what is found is announced, and so is what there is none of", async () => {
    const page = await openPage(browser, "#tables");
    await find(page, "Na2O Uuh");
    const mass = (symbol) => tables.elements.find((one) => one.symbol === symbol).mass;
    const found = [["N a, sodium, number 11", "Na"], ["O, oxygen, number 8", "O"]].map(([told, symbol]) => `${told}, relative atomic mass ${mass(symbol)}.`);
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
    for (const viewport of [{ width: 360, height: 640 }, { width: 1280, height: 900 }]) {
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
    const shown = await page.locator(".halves tbody tr").evaluateAll((rows) =>
        rows.map((row) => [row.querySelector("th").textContent, row.querySelector("[aria-hidden]").textContent]),
    );
    const signs = { 1: "+", 2: "2+", 3: "3+", "-1": "−", "-2": "2−", "-3": "3−" };
    const wanted = tables.ions.map(({ name, formula, charge }) => [name, formula + signs[charge]]);
    assert.deepEqual(shown.sort(), wanted.sort());
    await leave(page);
});

test("each pair has its verdict, and its reason when it is pressed", async () => {
    const page = await openPage(browser, "#tables");
    const shown = await page.locator(".solubility button").evaluateAll((buttons) =>
        buttons.map((button) => {
            button.click();
            const reason = document.querySelector(".reason").cloneNode(true);
            reason.querySelectorAll(".spoken").forEach((one) => one.remove());
            return [button.getAttribute("aria-label"), reason.textContent.replaceAll("\u00A0", " ")];
        }),
    );
    const wanted = tables.pairs.map(({ cation, anion, formula, verdict, reason }) => [
        `${cation} ${anion}: ${verdict}`,
        `${formula ?? `${cation} ${anion}`}: ${verdict}. ${reason}`,
    ]);
    assert.ok(shown.length > 200);
    assert.deepEqual(shown.sort(), wanted.sort());
    await leave(page);
});
