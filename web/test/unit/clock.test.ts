import assert from "node:assert/strict";
import { test } from "node:test";
import { type Clock, running, startedAt, ticked } from "../../src/practice/clock";

const minutes = (count: number) => count * 60_000;
const from = Date.UTC(2026, 10, 22, 8);

// Times in minutes, and what happens then.
function after(...events: [number, "runs" | "stands" | "key"][]): Clock {
    return events.reduce((clock, [at, what]) => {
        const now = from + minutes(at);
        return what === "key" ? ticked(clock, now) : running(clock, what === "runs", now);
    }, startedAt(from));
}

const cases: [string, number, Parameters<typeof after>][] = [
    [
        "two keys a minute apart",
        2,
        [
            [0, "runs"],
            [1, "key"],
            [2, "key"],
        ],
    ],
    [
        "nothing to solve on the screen",
        0,
        [
            [0, "stands"],
            [1, "key"],
            [2, "key"],
        ],
    ],
    [
        "a part of the time",
        3,
        [
            [0, "runs"],
            [2, "stands"],
            [20, "runs"],
            [21, "key"],
        ],
    ],
    [
        "a pause of five minutes",
        5,
        [
            [0, "runs"],
            [5, "key"],
        ],
    ],
    [
        "lunch",
        6,
        [
            [0, "runs"],
            [55, "key"],
            [56, "key"],
        ],
    ],
    [
        "a clock that was set back by an hour",
        2,
        [
            [0, "runs"],
            [1, "key"],
            [-59, "key"],
            [-58, "key"],
        ],
    ],
];

for (const [what, expected, events] of cases) {
    test(`${what}: ${expected} minutes`, () => {
        assert.equal(after(...events).worked, minutes(expected), JSON.stringify(events));
    });
}

test("a clock tells when it was started", () => {
    assert.equal(after([0, "runs"], [3, "key"]).begun, from);
});
