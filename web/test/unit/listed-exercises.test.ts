import assert from "node:assert/strict";
import { test } from "node:test";
import { withLists } from "../../src/lesson/listed-exercises";
import { readList, spelt } from "../../src/shared/exercise-list";
import type { Exercise, Lesson } from "../../src/types";

// Tells what it was asked for.
const asked: string[] = [];
const lesson = {
    kinds: () => ["titration", "dilution"].map((kind) => ({ kind, title: kind, levels: [] })),
    exercise(paper: number, number: number, kinds: string) {
        asked.push(`${paper}/${number}/${kinds}`);
        return {} as Exercise;
    },
    mark(paper: number, number: number, kinds: string, typed: string) {
        asked.push(`${paper}/${number}/${kinds} ${typed}`);
        return { verdict: "correct", sentence: [] };
    },
    read(paper: number, number: number, kinds: string, typed: string) {
        asked.push(`${paper}/${number}/${kinds} read ${typed}`);
        return [];
    },
} as unknown as Lesson;

function ask(number: number, kinds: string): (string | null)[] {
    asked.length = 0;
    const library = withLists(lesson);
    const exercise = library.exercise(4821, number, kinds);
    library.mark(4821, number, kinds, "0.1");
    library.read(4821, number, kinds, "0.1");
    return exercise === null ? [null] : [...asked];
}

test("exercise n of a list is its n-th, and kinds are asked for as they are", () => {
    const list = "2*titration:1,1*dilution@7,1*titration:1@9";
    ["1/titration:1", "2/titration:1", "7/dilution", "9/titration:1"].forEach((place, at) => {
        assert.deepEqual(ask(at + 1, list), [`4821/${place}`, `4821/${place} 0.1`, `4821/${place} read 0.1`]);
    });
    assert.deepEqual(ask(77, "titration:3,dilution"), [
        "4821/77/titration:3,dilution",
        "4821/77/titration:3,dilution 0.1",
        "4821/77/titration:3,dilution read 0.1",
    ]);
});

test("there is nothing behind the end of a list, nor in one that names a kind that is none", () => {
    for (const [number, list] of [
        [3, "2*titration"],
        [1, "2*alchemy"],
        [1, "1*titration,1*alchemy"],
        [1, "0*titration"],
        [1, "1*"],
    ] as const) {
        assert.deepEqual(ask(number, list), [null], `${number} of ${list}`);
    }
});

test("a list for practice is never taken for a choice of kinds", () => {
    assert.equal(spelt(readList("titration,4*dilution,titration@9")!), "1*titration,4*dilution,1*titration@9");
    assert.equal(spelt(readList("titration,dilution")!), "1*titration,1*dilution");
});
