import assert from "node:assert/strict";
import { test } from "node:test";
import { agreedFigures, groupsOf, ownPartOf } from "../../src/sheet/common-words";
import type { Ask, Exercise, Span } from "../../src/types";

function exercise(ask: Ask, prompt: Span[]): Exercise {
    const solution = ask.form === "number" ? [{ say: [], hint: [], math: [{ quantity: "M" }, { number: "1" }, { unit: "g/mol" }] }] : [];
    return {
        version: 1,
        paper: 1,
        number: 1,
        kind: "",
        level: 1,
        prompt,
        ask,
        given: [],
        key: { text: "", spans: [] },
        solution,
        slips: [],
    };
}

const ion = (name: string) => exercise({ form: "ion" }, [{ text: "Write the formula of the " }, { name }, { text: " ion." }]);
const compound = (name: string) => exercise({ form: "formula" }, [{ text: "Write the formula of " }, { name }, { text: "." }]);
const mass = (formula: string, figures = 4) =>
    exercise({ form: "number", quantity: "M", figures }, [
        { text: "Calculate the molar mass of " },
        { name: "it" },
        { text: ", " },
        { formula },
        { text: ", in " },
        { unit: "g/mol" },
        { text: "." },
    ]);
const titration = exercise({ form: "number", quantity: "c", figures: 3 }, [
    { text: "20 mL of " },
    { name: "it" },
    { text: " is titrated." },
]);

const usual = { columns: "auto", room: "some" } as const;
const times = (count: number, one: Exercise) => Array.from({ length: count }, () => one);

// "0-4 framed" are the exercises 0 to 3 under words that they share.
function groups(exercises: Exercise[], route: Parameters<typeof groupsOf>[1] = usual): string {
    return groupsOf(exercises, route)
        .map(({ from, to, frame }) => `${from}-${to}${frame === null ? "" : " framed"}`)
        .join(", ");
}

test("four short questions with the same words stand under them", () => {
    assert.equal(groups(times(4, ion("oxide"))), "0-4 framed");
    assert.equal(groups(times(3, ion("oxide"))), "0-3");
});

test("only neighbours with the same words do, and what is between them keeps its own", () => {
    const four = times(4, compound("lime"));
    assert.equal(
        groups([titration, ...times(4, ion("oxide")), ...four, titration, ion("oxide"), ...times(5, mass("HF"))]),
        "0-1, 1-5 framed, 5-9 framed, 9-11, 11-16 framed",
    );
    assert.equal(groups([...times(3, ion("oxide")), titration, ...times(3, ion("oxide"))]), "0-7");
});

test("long questions never do, nor where one column is wanted", () => {
    assert.equal(groups(times(9, titration)), "0-9");
    assert.equal(groups(times(9, ion("oxide")), { columns: "one", room: "some" }), "0-9");
});

test("a molar mass with much room has the whole width", () => {
    assert.equal(groups(times(9, mass("HF")), { columns: "auto", room: "much" }), "0-9");
    assert.equal(groups(times(9, ion("oxide")), { columns: "auto", room: "much" }), "0-9 framed");
});

test("questions that want other figures have words of their own", () => {
    assert.equal(groups([...times(4, mass("HF")), ...times(4, mass("HF", 3))]), "0-4 framed, 4-8 framed");
});

test("the words leave a gap for what each question asks for", () => {
    const frameOf = (one: Exercise) =>
        groupsOf(times(4, one), usual)[0]!
            .frame!.map((span) => Object.values(span)[0])
            .join("");
    assert.equal(frameOf(ion("oxide")), "Write the formula of the … ion.");
    assert.equal(frameOf(compound("lime")), "Write the formula of …");
    assert.equal(frameOf(mass("HF")), "Calculate the molar mass of … in g/mol.");
    assert.deepEqual(ownPartOf(mass("HF")), [{ name: "it" }, { text: ", " }, { formula: "HF" }]);
});

test("figures are said once where all numbers agree", () => {
    assert.equal(agreedFigures([titration, ion("oxide"), titration]), 3);
    assert.equal(agreedFigures([titration, mass("HF")]), null);
    assert.equal(agreedFigures([titration, ion("oxide")]), null, "of one number alone");
    assert.equal(agreedFigures(times(3, ion("oxide"))), null);
});
