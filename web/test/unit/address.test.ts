import assert from "node:assert/strict";
import { test } from "node:test";
import { addressOf, atNumber, knowVersions, mainRoad, routeOf, sideRoad } from "../../src/address";
import { usualSheet } from "../../src/sheet/sheet";
import type { PracticeRoute, SheetRoute } from "../../src/types";

const route: PracticeRoute = { view: "practice", paper: 4821, number: 3, kinds: "titration:1,dilution", set: 0 };

test("an address leads back to the route that it was made from", () => {
    for (const made of [
        route,
        { ...route, set: 10 },
        { ...route, kinds: "mixed" },
        { ...route, back: { number: 4, kinds: "mixed" } },
        { ...route, back: { number: 12, kinds: "titration:1,dilution" } },
        atNumber(route, 999999),
    ]) {
        assert.deepEqual(routeOf(addressOf(made)), made, addressOf(made));
    }
});

test("an address without a version is of this one, and one of another version says so", () => {
    assert.equal(routeOf("#practice/4821/3/titration").view, "practice");
    assert.equal(routeOf("#practice/4821/3/titration?v=1").view, "practice");
    const other = routeOf("#practice/4821/3/titration?v=2");
    assert.equal(other.view, "bad");
    assert.match(other.view === "bad" ? other.message : "", /another version/);
});

// Tells the page of a version of titrations, does something, and takes it back.
function withTitrations(version: number, act: () => void): void {
    const kinds = ["titration", "dilution"];
    knowVersions(kinds.map((kind) => ({ kind, version: kind === "titration" ? version : 1 })));
    try {
        act();
    } finally {
        knowVersions(kinds.map((kind) => ({ kind, version: 1 })));
    }
}

const sheet: SheetRoute = { ...usualSheet, paper: 4821, entries: [{ kind: "titration", level: 1, count: 2 }] };

test("an address tells the versions of its kinds that are not the first, and no others", () => {
    assert.equal(addressOf(route), "#practice/4821/3/titration:1,dilution?v=1");
    assert.equal(addressOf(sheet), "#sheet/4821/2*titration:1?v=1");
    withTitrations(3, () => {
        assert.equal(addressOf(route), "#practice/4821/3/titration:1,dilution?v=titration:3");
        assert.equal(addressOf({ ...route, kinds: "dilution" }), "#practice/4821/3/dilution?v=1");
        assert.equal(addressOf({ ...route, kinds: "mixed" }), "#practice/4821/3/mixed?v=titration:3");
        assert.equal(addressOf({ ...route, kinds: "4*dilution,1*titration@7" }), "#practice/4821/3/4*dilution,1*titration@7?v=titration:3");
        assert.equal(
            addressOf({ ...route, kinds: "dilution", back: { number: 4, kinds: "titration" } }),
            "#practice/4821/3/dilution?back=4:titration&v=titration:3",
        );
        const routes = [route, { ...route, kinds: "mixed" }, { ...route, kinds: "dilution" }, sheet];
        routes.forEach((made) => assert.deepEqual(routeOf(addressOf(made)), made, addressOf(made)));
    });
});

// The page's version of titrations, an address, and whether it names the same exercises still.
const versionCases: [number, string, boolean][] = [
    [1, "#practice/4821/3/titration", true],
    [1, "#practice/4821/3/titration?v=1", true],
    [1, "#practice/4821/3/titration?v=titration:1", true],
    [1, "#practice/4821/3/titration?v=titration:2", false],
    [1, "#practice/4821/3/alchemy?v=alchemy:2", false],
    [1, "#practice/4821/3/dilution?v=titration:2", true],
    [1, "#practice/4821/3/titration?v=", false],
    [1, "#practice/4821/3/titration?v=titration:x", false],
    [1, "#practice/4821/3/titration?v=titration:0", false],
    [1, "#sheet/4821/2*titration:1?v=titration%3A2", false],
    [2, "#practice/4821/3/titration", false],
    [2, "#practice/4821/3/titration?v=1", false],
    [2, "#practice/4821/3/titration?v=titration:2", true],
    [2, "#practice/4821/3/titration?v=titration:3", false],
    [2, "#practice/4821/3/mixed?v=1", false],
    [2, "#practice/4821/3/dilution", true],
    [2, "#practice/4821/3/dilution?v=1", true],
    [2, "#practice/4821/3/dilution?back=4:titration&v=1", false],
    [2, "#practice/4821/3/4*dilution,1*titration:3@7?v=1", false],
    [2, "#sheet/4821/2*dilution?v=1", true],
    [2, "#sheet/4821/2*titration:1", false],
    [2, "#sheet/4821/2*titration:1?v=titration%3A2", true],
];

for (const [version, address, isSame] of versionCases) {
    test(`with titrations of version ${version}, ${address} is ${isSame ? "what it was" : "of another version"}`, () => {
        withTitrations(version, () => {
            const read = routeOf(address);
            assert.equal(read.view === "bad" ? "bad" : "read", isSame ? "read" : "bad");
            assert.match(read.view === "bad" ? read.message : "another version", /another version/);
        });
    });
}

test("a side road leads far from what Next leads to, one further each time, and back to what was left", () => {
    for (const number of [1, 4, 499999, 500000, 999999]) {
        const left = { ...route, number };
        const first = sideRoad(left, "titration:1");
        const second = sideRoad(first, "titration:1");
        assert.ok(Math.abs(first.number - number) > 100_000, `${number} ${first.number}`);
        assert.equal(second.number, first.number === 999999 ? 1 : first.number + 1);
        for (const road of [first, second]) {
            assert.equal(road.kinds, "titration:1");
            assert.deepEqual(mainRoad(road), left, addressOf(road));
            assert.deepEqual(routeOf(addressOf(road)), road, addressOf(road));
        }
    }
    assert.deepEqual(mainRoad(route), route);
});

test("a list is a set as long as it is, whatever else the address says", () => {
    const list = "4*titration:1,1*dilution@7";
    for (const options of ["", "?set=5", "?set=3&v=1", "?set=0", "?set=%3Cb%3E", "?v=1"]) {
        const read = routeOf(`#practice/4821/2/${list}${options}`);
        assert.deepEqual(read, { view: "practice", paper: 4821, number: 2, kinds: list, set: 5 }, options);
        assert.deepEqual(routeOf(addressOf(read as PracticeRoute)), read);
    }
    assert.deepEqual(routeOf("#practice/1/1/titration@3"), { view: "practice", paper: 1, number: 1, kinds: "titration@3", set: 1 });
});

test("what is no list is no practice, and no side road leads out of one", () => {
    const lists = [
        "4*",
        "*titration",
        "0*titration",
        "1001*titration",
        "titration@0",
        "titration@1000000",
        "2*titration,1*titration@2",
        "1*mixed:4",
        "1*<b>",
        "1*%3Cscript%3E",
        "1*titration,",
        "1*titration@1@2",
        "titration:1@x",
    ];
    for (const list of lists) {
        assert.equal(routeOf(`#practice/1/1/${list}`).view, "bad", list);
    }
    assert.equal(routeOf("#practice/1/1/2*titration?back=4:titration").view, "bad");
    assert.equal(routeOf("#practice/1/1/titration?back=4:2*titration").view, "bad");
});

test("nothing behind the sign leads to the start, and no sheet to any", () => {
    assert.deepEqual(routeOf(""), { view: "start" });
    assert.deepEqual(routeOf("#"), { view: "start" });
    assert.deepEqual(routeOf("#sheet"), { view: "none", of: "sheet" });
});

const bad = [
    "#practice",
    "#practice/",
    "#practice/0/1/mixed",
    "#practice/1/0/mixed",
    "#practice/1000000/1/mixed",
    "#practice/1/1000000/mixed",
    "#practice/-1/1/mixed",
    "#practice/1.5/1/mixed",
    "#practice/1e3/1/mixed",
    "#practice/01/1/mixed",
    "#practice/ 1/1/mixed",
    "#practice/1/1/",
    "#practice/1/1/<b>",
    "#practice/1/1/%3Cscript%3E",
    "#practice/1/1/mixed/more",
    "#practice/1/1/mixed?set=0",
    "#practice/1/1/mixed?set=100",
    "#practice/1/1/mixed?set=ten",
    "#practice/1/1/mixed?back=",
    "#practice/1/1/mixed?back=4",
    "#practice/1/1/mixed?back=0:mixed",
    "#practice/1/1/mixed?back=4:",
    "#practice/1/1/mixed?back=mixed:4",
    "#practice/1/1/mixed?back=4:<b>",
    "#practice/1/1/mixed?back=1000000:mixed",
    "#practice/1/1/mixed?set=5&back=4:mixed",
    "#tables/more",
    "#notices/more",
    "#elsewhere",
    "#%",
    "#%E0%A4%A",
    `#practice/1/1/${"a".repeat(10_000_000)}`,
];

test("what names no exercise is a bad address", () => {
    for (const address of bad) {
        assert.equal(routeOf(address).view, "bad", address.slice(0, 80));
    }
});

test("the tables and the notices have an address of their own", () => {
    assert.deepEqual([routeOf("#tables").view, routeOf("#notices").view], ["tables", "notices"]);
});
