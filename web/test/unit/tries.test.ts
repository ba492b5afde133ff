import assert from "node:assert/strict";
import { test } from "node:test";
import {
    afterAnswer,
    afterMark as afterMarkOf,
    afterStep,
    isMarkStale,
    isShownWhole,
    offersHelp,
    type Progress,
    typed,
} from "../../src/practice/tries";
import type { Mark, Verdict } from "../../src/types";

const fresh: Progress = { typed: "", failed: 0, marked: null, decimal: ".", steps: 0, result: null };
const mark = (verdict: Verdict): Mark => ({ verdict, sentence: [] });
const afterMark = (progress: Progress, given: Mark, text = "777") => afterMarkOf(progress, { text, decimal: "." }, given);

test("right at once is solved at the first try", () => {
    assert.equal(afterMark(fresh, mark("correct")).result, "first");
});

test("right after a wrong try alone is solved at a later one", () => {
    assert.equal(afterMark(afterMark(fresh, mark("wrong")), mark("correct")).result, "later");
});

test("right after a hint or a step is solved with help, wrong before or not", () => {
    const afterHint = afterStep(fresh, 3);
    assert.equal(afterMark(afterHint, mark("correct")).result, "help");
    assert.equal(afterMark(afterMark(afterHint, mark("wrong")), mark("correct")).result, "help");
    assert.equal(afterMark(afterStep(afterMark(fresh, mark("wrong")), 3), mark("correct")).result, "help");
});

test("what could not be read or is nearly right is no failed try", () => {
    for (const verdict of ["unreadable", "figures", "close"] as const) {
        const after = afterMark(fresh, mark(verdict));
        assert.equal(after.failed, 0, verdict);
        assert.equal(afterMark(after, mark("correct")).result, "first", verdict);
    }
    for (const verdict of ["slip", "power-of-ten", "wrong"] as const) {
        assert.equal(afterMark(fresh, mark(verdict)).failed, 1, verdict);
    }
});

test("help is offered after two wrong tries, until it is taken", () => {
    const once = afterMark(fresh, mark("slip"));
    const twice = afterMark(once, mark("wrong"));
    assert.equal(offersHelp(once), false);
    assert.equal(offersHelp(twice), true);
    assert.equal(offersHelp(afterStep(twice, 3)), false);
    assert.equal(offersHelp(afterMark(twice, mark("correct"))), false);
});

test("steps come one a press, the words of the first one before the rest", () => {
    let progress = fresh;
    for (let press = 1; press <= 3; ++press) {
        progress = afterStep(progress, 3);
        assert.equal(progress.steps, press);
        assert.equal(progress.result, null);
    }
    progress = afterStep(progress, 3);
    assert.equal(isShownWhole(progress, 3), true);
    assert.equal(progress.result, "shown");
    assert.equal(afterStep(progress, 3).steps, 4);
});

test("the answer shown is shown, but not where it was solved before", () => {
    assert.equal(afterAnswer(fresh, 3).result, "shown");
    assert.equal(afterAnswer(afterMark(fresh, mark("correct")), 3).result, "first");
    assert.equal(afterMark(afterAnswer(fresh, 3), mark("correct")).result, "shown");
});

test("typing on keeps all else, and the mark is stale until its own text stands there again", () => {
    const marked = afterMark(fresh, mark("wrong"), "0.2");
    assert.deepEqual(typed(marked, "0.1"), { ...fresh, typed: "0.1", marked: "0.2", failed: 1 });
    const stale: [string, boolean][] = [
        ["0.2", false],
        ["0.21", true],
        ["", true],
        [" 0.2 ", false],
        ["0.20", true],
    ];
    for (const [text, expected] of stale) {
        assert.equal(isMarkStale(typed(marked, text)), expected, `"${text}"`);
    }
    assert.equal(isMarkStale(typed(fresh, "0.1")), false, "nothing was marked");
});

test("a mark goes with the text that it was given for and the decimal sign by which that was read", () => {
    const after = afterMarkOf(fresh, { text: "1,25", decimal: "," }, mark("wrong"));
    assert.deepEqual([after.marked, after.decimal], ["1,25", ","]);
    assert.equal(afterMark(after, mark("correct"), "1.25").decimal, ".");
});
