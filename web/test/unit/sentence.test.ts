import assert from "node:assert/strict";
import { test } from "node:test";
import { spansOf, spokenSentence } from "../../src/sentence";
import type { Settings, Span } from "../../src/types";

const usual: Settings = { volume: "mL", per: "slash", decimal: ".", names: "british" };
const other: Settings = { volume: "cm3", per: "power", decimal: ",", names: "american" };
const names = new Map([["aluminium", "aluminum"]]);

const taken: [string, Span[]][] = [
    ["", []],
    ["Correct.", [{ text: "Correct." }]],
    ["That is in g/L.", [{ text: "That is in " }, { unit: "g/L" }, { text: "." }]],
    ["0.125 mol/L", [{ number: "0.125" }, { unit: "mol/L" }]],
    ["Move the point by 3.", [{ text: "Move the point by " }, { number: "3" }, { text: "." }]],
    ["I see Ca(OH)2.", [{ text: "I see " }, { formula: "Ca(OH)2" }, { text: "." }]],
    ["CuSO4.5H2O is a hydrate.", [{ formula: "CuSO4.5H2O" }, { text: " is a hydrate." }]],
    ["SO4^2-", [{ ion: "SO4", charge: "2-" }]],
    ["Na^+ and Cl^-", [{ ion: "Na", charge: "+" }, { text: " and " }, { ion: "Cl", charge: "-" }]],
    ["2NaOH + H2SO4", [{ number: "2" }, { text: "NaOH + " }, { formula: "H2SO4" }]],
    ["Litres, not Lithium; gold in grams", [{ text: "Litres, not Lithium; gold in grams" }]],
    ["'x^' and '->'", [{ text: "'x^' and '->'" }]],
];

for (const [sentence, expected] of taken) {
    test(`"${sentence}" as spans`, () => assert.deepEqual(spansOf(sentence), expected));
}

test("a sentence is said in the reader's units and names", () => {
    const sentence = "Take 12.5 mL of aluminium nitrate, 0.5 mol/L, and H2O.";
    assert.equal(spokenSentence(sentence, usual, names), "Take 12.5 millilitres of aluminium nitrate, 0.5 moles per litre, and H 2 O.");
    assert.equal(
        spokenSentence(sentence, other, names),
        "Take 12,5 cubic centimetres of aluminum nitrate, 0,5 moles per cubic decimetre, and H 2 O.",
    );
});
