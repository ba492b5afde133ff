import assert from "node:assert/strict";
import { test } from "node:test";
import { addressOf, routeOf } from "../../src/address";
import { countOf, entriesOf, listOf, oneByOne, readList } from "../../src/shared/exercise-list";
import { type Pick, picked, withCounts } from "../../src/sheet/picks";
import { usualSheet } from "../../src/sheet/sheet";

// "titration@5 dilution:1@1", spelt out one by one.
function spelt(list: string): string {
    return oneByOne(readList(list)!)
        .map(({ kind, level, number }) => `${kind}:${level}@${number}`)
        .join(" ");
}

test("a list is read one by one, in its order, from 1 or from the number behind @", () => {
    const cases: [string, string][] = [
        ["titration", "titration:2@1"],
        ["2*titration:1,dilution", "titration:1@1 titration:1@2 dilution:2@1"],
        ["titration:2@5", "titration:2@5"],
        ["3*titration@5,titration", "titration:2@5 titration:2@6 titration:2@7 titration:2@1"],
        ["titration@999999", "titration:2@999999"],
        ["dilution@2,titration,dilution@1", "dilution:2@2 titration:2@1 dilution:2@1"],
    ];
    for (const [list, expected] of cases) {
        assert.equal(spelt(list), expected, list);
    }
});

test("no list are numbers outside 1 to 999999, an exercise that is there twice, more than 1000", () => {
    const bad = [
        "titration@0",
        "titration@1000000",
        "titration@05",
        "titration@",
        "titration@-1",
        "titration@x",
        "2*titration@999999",
        "titration@5:2",
        "@5",
        "titration@5@6",
    ];
    const twice = [
        "titration,titration",
        "titration,titration@1",
        "5*titration,titration:2@5",
        "3*titration@4,titration@6",
        "titration@7,dilution,titration@7",
    ];
    const many = [
        "1001*titration",
        "600*titration,401*titration@601",
        Array.from({ length: 1001 }, (_, at) => `titration@${at + 1}`).join(","),
    ];
    for (const list of [...bad, ...twice, ...many, "", ",", "mixed,"]) {
        assert.equal(readList(list), null, list.slice(0, 60));
    }
});

test("what is written is read again as the same exercises", () => {
    for (const list of [
        "4*titration,3*dilution:1",
        "titration@3,2*titration,dilution,titration@9",
        "2*titration@8,titration@7",
        "1000*solubility:3@999000",
    ]) {
        const read = readList(list)!;
        assert.equal(listOf(read), list);
        assert.deepEqual(oneByOne(readList(listOf(entriesOf(oneByOne(read))))!), oneByOne(read), list);
    }
});

test("one replaced is the next of its kind and level that is not there, one moved changes places with its neighbour", () => {
    const cases: [string, number, Pick, string | null][] = [
        ["3*titration", 0, "another", "titration@4,2*titration@2"],
        ["3*titration", 2, "another", "2*titration,titration@4"],
        ["titration@4,2*titration@2", 1, "another", "2*titration@4,titration@3"],
        ["titration,titration:1@2", 0, "another", "titration@2,titration:1@2"],
        ["titration@999999", 0, "another", "titration"],
        ["titration@999999,titration", 0, "another", "titration@2,titration"],
        ["2*titration,dilution", 1, "up", "titration@2,titration,dilution"],
        ["2*titration,dilution", 1, "down", "titration,dilution,titration@2"],
        ["titration@2,titration", 0, "down", "2*titration"],
        ["2*titration,dilution", 0, "up", null],
        ["2*titration,dilution", 2, "down", null],
        ["2*titration,dilution", 3, "another", null],
    ];
    for (const [list, at, pick, expected] of cases) {
        const entries = picked(readList(list)!, at, pick);
        assert.equal(entries === null ? null : listOf(entries), expected, `${list}: ${pick} with exercise ${at + 1}`);
    }
});

const table = ["molar-mass", "dilution", "titration"].map((kind) => ({ kind, level: 2 }));

function counted(list: string, molarMass: number, dilution: number, titration: number): string {
    const counts = [molarMass, dilution, titration];
    return listOf(
        withCounts(
            readList(list)!,
            table.map((one, at) => ({ ...one, count: counts[at]! })),
        ),
    );
}

test("another count adds or takes the last ones of that kind and level, and nothing else is lost", () => {
    assert.equal(counted("2*dilution,2*titration", 0, 2, 3), "2*dilution,3*titration");
    assert.equal(counted("2*dilution,2*titration", 1, 2, 2), "molar-mass,2*dilution,2*titration");
    assert.equal(counted("molar-mass,titration", 1, 2, 1), "molar-mass,2*dilution,titration");
    assert.equal(counted("titration@7,dilution,titration@3", 0, 1, 3), "titration@7,dilution,titration@3,titration@8");
    assert.equal(counted("titration@7,dilution,titration@3", 0, 1, 1), "titration@7,dilution");
    assert.equal(counted("titration@7,dilution,titration@3", 2, 0, 2), "titration@7,titration@3,2*molar-mass");
    assert.equal(counted("titration@7,dilution,titration@3", 0, 1, 2), "titration@7,dilution,titration@3");
    assert.equal(counted("titration@999999,titration", 0, 0, 3), "titration@999999,2*titration");
    assert.equal(counted("titration", 0, 0, 0), "");
});

test("a thousand of a kind are counted at once", () => {
    const from = performance.now();
    assert.equal(counted("titration@5", 0, 0, 1000), "1000*titration@5");
    assert.ok(performance.now() - from < 200, `${performance.now() - from} ms`);
});

test("a sheet of a thousand exercises, each picked by hand, has an address that leads back to it", () => {
    const entries = entriesOf(Array.from({ length: 1000 }, (_, at) => ({ kind: "compound-formula", level: 1, number: 999999 - 2 * at })));
    const route = { ...usualSheet, paper: 999999, entries };
    assert.equal(countOf(entries), 1000);
    assert.deepEqual(routeOf(addressOf(route)), route);
});
