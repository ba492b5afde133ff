// The tables show the library's data, row by row.
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { leave, openChromium, openLesson, openPage } from "./support.mjs";

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
