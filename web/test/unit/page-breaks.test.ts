import assert from "node:assert/strict";
import { test } from "node:test";
import { fill, type Heights, rowsOf } from "../../src/sheet/page-breaks";

// "0-1 | 2" are items 0 and 1 on the first page and item 2 on the second; "A" the run.
function pages(runs: Heights[], capacity: number): string {
    const names = "ABCD";
    return fill(runs, capacity)
        .map((parts) => parts.map(({ run, from, to }) => `${names[run]}${from}-${to - 1}`).join(" "))
        .join(" | ");
}

const run = (head: number, again: number, ...items: number[]): Heights => ({ head, again, items });

const cases: [string, Heights[], string][] = [
    ["no run", [], ""],
    ["all fits", [run(20, 0, 30, 30, 20)], "A0-2"],
    ["one too many", [run(20, 0, 30, 30, 20, 1)], "A0-2 | A3-3"],
    ["the heading counts on the first page alone", [run(50, 0, 50, 50, 50)], "A0-0 | A1-2"],
    ["another heading counts on each further page", [run(0, 20, 50, 50, 50, 50)], "A0-1 | A2-2 | A3-3"],
    ["a higher item has a page of its own", [run(10, 0, 20, 300, 20)], "A0-0 | A1-1 | A2-2"],
    ["a higher first item stays with its heading", [run(10, 0, 300, 20)], "A0-0 | A1-1"],
    ["the next run goes on below", [run(10, 0, 20), run(10, 0, 20)], "A0-0 B0-0"],
    ["no heading stands alone at the end", [run(10, 0, 75), run(10, 0, 20)], "A0-0 | B0-0"],
    ["a run over two pages", [run(10, 10, 40), run(10, 10, 30, 30)], "A0-0 B0-0 | B1-1"],
    ["two runs over many pages", [run(10, 10, 80, 80), run(10, 10, 80, 80)], "A0-0 | A1-1 | B0-0 | B1-1"],
];

for (const [what, runs, expected] of cases) {
    test(`pages of 100: ${what}`, () => assert.equal(pages(runs, 100), expected));
}

test("every item comes once and in order, however high", () => {
    for (let seed = 1; seed <= 200; ++seed) {
        const items = Array.from({ length: 40 }, (_, at) => (seed * 7919 * (at + 1)) % 61);
        const parts = fill([run(13, 7, ...items)], 100).flat();
        assert.deepEqual(
            parts.flatMap(({ from, to }) => items.slice(from, to)),
            items,
            `seed ${seed}`,
        );
    }
});

// "a" is a half, "A" as wide as the page; each as high as its number.
const items = (text: string) => text.split(" ").map((one) => ({ height: Number(one.slice(1)), isHalf: one.startsWith("a") }));

const inRows: [string, string][] = [
    ["A5 A6", "0:5 1:6"],
    ["a5 a6", "0-1:6"],
    ["a6 a5 a4", "0-1:6 2:4"],
    ["A9 a5 a6 A1", "0:9 1-2:6 3:1"],
    ["a5 A6 a7 a8", "0:5 1:6 2-3:8"],
    ["a1 a2 a3 a4 A5 a6", "0-1:2 2-3:4 4:5 5:6"],
];
for (const [given, expected] of inRows) {
    test(`rows of ${given}`, () => {
        const rows = rowsOf(items(given)).map(({ from, to, height }) => `${to - from === 1 ? from : `${from}-${to - 1}`}:${height}`);
        assert.equal(rows.join(" "), expected);
    });
}
