import assert from "node:assert/strict";
import { test } from "node:test";
import { addressOf, routeOf } from "../../src/address";
import { listOf } from "../../src/shared/exercise-list";
import { exercisesOf, papersOf, usualSheet } from "../../src/sheet/sheet";
import type { SheetRoute } from "../../src/types";

const sheet: SheetRoute = { ...usualSheet, paper: 4821 };

const changes: Partial<SheetRoute>[] = [
    {},
    { paper: 999999 },
    {
        entries: [
            { kind: "titration", level: 3, count: 1 },
            { kind: "dilution", level: 2, count: 12 },
        ],
    },
    { entries: [{ kind: "titration", level: 2, count: 1000 }] },
    { versions: 30 },
    { title: "" },
    { title: "Säuren & Basen: 100 % / #1? a=b+c" },
    { title: "<b>bold</b>" },
    { room: "none" },
    { room: "much" },
    { masses: "table" },
    { columns: "one" },
    { marks: true },
    { drawings: true },
    { leaf: false },
    { parts: "sheet" },
    { parts: "key" },
    { key: "working" },
    { keys: "apart" },
    { size: "Letter" },
];

test("an address leads back to the sheet that it was made from", () => {
    for (const change of changes) {
        const route = { ...sheet, ...change };
        assert.deepEqual(routeOf(addressOf(route)), route, addressOf(route));
    }
});

test("half of a character in a title is no error", () => {
    const read = routeOf(addressOf({ ...sheet, title: "a\uD800" }));
    assert.equal(read.view === "sheet" && read.title, "a\uFFFD");
});

// As it may stand in a mail of years ago: what it does not name is what it was then.
test("an old address is the same sheet", () => {
    assert.deepEqual(routeOf("#sheet/4821/4*titration:2,3*dilution?versions=3&v=1"), {
        view: "sheet",
        paper: 4821,
        entries: [
            { kind: "titration", level: 2, count: 4 },
            { kind: "dilution", level: 2, count: 3 },
        ],
        versions: 3,
        title: "Chemical calculations",
        room: "some",
        masses: "shown",
        columns: "auto",
        drawings: false,
        marks: false,
        leaf: true,
        parts: "both",
        key: "line",
        keys: "together",
        size: "A4",
    });
});

const bad = [
    "#sheet/4821",
    "#sheet/4821/",
    "#sheet//titration",
    "#sheet/0/titration",
    "#sheet/1000000/titration",
    "#sheet/4821/titration/more",
    "#sheet/4821/0*titration",
    "#sheet/4821/04*titration",
    "#sheet/4821/-1*titration",
    "#sheet/4821/4titration",
    "#sheet/4821/4*",
    "#sheet/4821/*titration",
    "#sheet/4821/titration,",
    "#sheet/4821/titration:0",
    "#sheet/4821/titration:22",
    "#sheet/4821/titration,titration:2",
    "#sheet/4821/Titration",
    "#sheet/4821/%3Cscript%3E",
    "#sheet/4821/1001*titration",
    "#sheet/4821/600*titration,401*dilution",
    "#sheet/4821/34*titration?versions=30",
    "#sheet/4821/titration?versions=0",
    "#sheet/4821/titration?versions=31",
    "#sheet/4821/titration?versions=three",
    "#sheet/4821/titration?room=lots",
    "#sheet/4821/titration?masses=none",
    "#sheet/4821/titration?columns=2",
    "#sheet/4821/titration?marks=2",
    "#sheet/4821/titration?drawings=yes",
    "#sheet/4821/titration?leaf=",
    "#sheet/4821/titration?parts=",
    "#sheet/4821/titration?key=none",
    "#sheet/4821/titration?keys=constructor",
    "#sheet/4821/titration?size=A5",
    `#sheet/4821/titration?title=${"x".repeat(81)}`,
    "#sheet/4821/titration?v=2",
];

test("what names no sheet is a bad address of a sheet", () => {
    for (const address of bad) {
        const route = routeOf(address);
        assert.deepEqual([route.view, route.view === "bad" && route.of], ["bad", "sheet"], address);
    }
});

test("versions are consecutive papers, and behind the greatest comes 1", () => {
    assert.deepEqual(papersOf({ ...sheet, versions: 3 }), [4821, 4822, 4823]);
    assert.deepEqual(papersOf({ ...sheet, paper: 999998, versions: 4 }), [999998, 999999, 1, 2]);
});

test("the exercises of each kind and level are numbered from 1, in the order of the list", () => {
    const entries = [
        { kind: "titration", level: 2, count: 2 },
        { kind: "dilution", level: 1, count: 1 },
        { kind: "titration", level: 3, count: 1 },
    ];
    assert.equal(listOf(entries), "2*titration,dilution:1,titration:3");
    assert.deepEqual(
        exercisesOf(entries).map(({ kind, number }) => `${kind} ${number}`),
        ["titration 1", "titration 2", "dilution:1 1", "titration:3 1"],
    );
});
