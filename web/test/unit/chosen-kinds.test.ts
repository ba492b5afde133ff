import assert from "node:assert/strict";
import { test } from "node:test";
import { changedTo, choiceIn, entriesOf, inWords, shortest } from "../../src/practice/chosen-kinds";
import type { KindInfo } from "../../src/types";

const all: KindInfo[] = ["dilution", "solubility", "titration"].map((kind) => ({
    kind,
    version: 1,
    masses: false,
    title: kind.toUpperCase(),
    levels: ["one", "two", "three"],
}));

const cases = [
    { kinds: "mixed", entries: ["dilution:2", "solubility:2", "titration:2"], words: "every kind at level 2" },
    { kinds: "titration", entries: ["titration:2"], words: "TITRATION, level 2" },
    { kinds: "titration:3,dilution", entries: ["titration:3", "dilution:2"], words: "TITRATION, level 3; DILUTION, level 2" },
    {
        kinds: "dilution:1,dilution,dilution:3,solubility:1",
        entries: ["dilution:1", "dilution:2", "dilution:3", "solubility:1"],
        words: "DILUTION, level 1; DILUTION, level 2; and 2 more",
    },
];

for (const { kinds, entries, words } of cases) {
    test(`${kinds}: level by level, back again, and in words`, () => {
        assert.deepEqual(entriesOf(kinds, all), entries);
        assert.equal(shortest(entries, all), kinds);
        assert.equal(inWords(kinds, all).replaceAll("\u00A0", " "), words);
    });
}

test("a choice that is the same again keeps the order of its address, another has the order of the kinds", () => {
    const inOrder = ["dilution:2", "titration:3"];
    assert.equal(changedTo(inOrder, "titration:3,dilution", all), "titration:3,dilution");
    assert.equal(changedTo(inOrder, "titration:2,dilution", all), "dilution,titration:3");
    assert.equal(changedTo(inOrder, "titration:3,dilution,solubility", all), "dilution,titration:3");
    assert.equal(changedTo([], "titration:3", all), "");
});

test("of a list the kinds are a choice, of a choice it is itself", () => {
    for (const [kinds, choice] of [
        ["4*titration:1,1*dilution@7", "titration:1,dilution"],
        ["titration@3,2*titration:2", "titration"],
        ["3*titration,dilution@9,1*solubility,dilution@3", "mixed"],
        ["titration:3,dilution", "titration:3,dilution"],
        ["mixed", "mixed"],
        ["4*<b>", ""],
    ] as const) {
        assert.equal(choiceIn(kinds, all), choice, kinds);
    }
});
