import assert from "node:assert/strict";
import { test } from "node:test";
import { massesNeeded } from "../../src/practice/masses-needed";
import type { Page } from "../../src/shared/page";
import type { ElementInfo, Exercise, Given } from "../../src/types";

const elements = ["H", "C", "O", "Na", "S", "Cl", "Ca", "Co", "Cu"].map((symbol) => ({ symbol }) as ElementInfo);

const page = {
    kinds: [
        { kind: "weighing", masses: true },
        { kind: "counting", masses: false },
    ],
    lesson: { tables: () => ({ elements }) },
} as unknown as Page;

function exercise(ask: Exercise["ask"], ...given: Given[]): Exercise {
    return { kind: "weighing", ask, given } as unknown as Exercise;
}

const molarMass = (of: string) => exercise({ form: "number", quantity: "M", of });
const concentration = (of: string, shown: string) =>
    exercise({ form: "number", quantity: "c", of }, { quantity: "M", of, value: 1, unit: "g/mol", shown, shownUnit: "" });

const cases: [string, Exercise[], string][] = [
    ["a molar mass that is asked for", [molarMass("CuSO4.5H2O")], "H O S Cu"],
    ["two letters are one symbol", [molarMass("CoCl2")], "Cl Co"],
    ["a molar mass that is not told", [concentration("Ca(OH)2", "")], "H O Ca"],
    ["a molar mass that is told", [concentration("Ca(OH)2", "74.10")], ""],
    ["a formula that is asked for", [exercise({ form: "formula" }, { ion: "Na", charge: 1, name: "sodium" })], ""],
    ["a kind that needs none", [{ ...molarMass("NaCl"), kind: "counting" }], ""],
    ["each once, in the order of the table", [molarMass("NaCl"), molarMass("Na2CO3"), molarMass("NaHCO3")], "H C O Na Cl"],
];

for (const [what, exercises, symbols] of cases) {
    test(`masses for ${what}`, () => {
        assert.equal(
            massesNeeded(exercises, page)
                .map(({ symbol }) => symbol)
                .join(" "),
            symbols,
        );
    });
}
