import assert from "node:assert/strict";
import { test } from "node:test";
import { widthsByArea } from "../../src/practice/drawing-beakers";
import { burette, heightOf } from "../../src/practice/drawing-burette";

test("a burette reads downwards, each millilitre as far from the next as from the one before", () => {
    assert.equal(heightOf(0), burette.at0);
    const steps = Array.from({ length: 50 }, (_, at) => heightOf(at + 1)! - heightOf(at)!);
    assert.ok(
        steps.every((step) => step > 0 && Math.abs(step - steps[0]!) < 1e-9),
        String(steps),
    );
    assert.ok(Math.abs(heightOf(12.5)! - (3 * heightOf(0)! + heightOf(50)!) / 4) < 1e-9);
});

test("what a burette of 50 mL cannot read has no height", () => {
    for (const reading of [-0.05, 50.05, NaN, Infinity]) {
        assert.equal(heightOf(reading), null, String(reading));
    }
    assert.notEqual(heightOf(50), null);
});

test("areas of vessels of one shape are as the volumes", () => {
    for (const [first, second] of [
        [50, 100],
        [20, 1000],
        [0.25, 0.1],
        [1, 1],
    ] as const) {
        const [one, other] = widthsByArea(first, second);
        assert.ok(Math.abs(one ** 2 / other ** 2 - first / second) < 1e-9, `${first} to ${second}: ${one} and ${other}`);
        assert.equal(Math.max(one, other), 1);
    }
});
