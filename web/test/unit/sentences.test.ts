import assert from "node:assert/strict";
import { test } from "node:test";
import { speech } from "../../src/text/seen-and-spoken";
import { spansOf, spansOfFormulas, spokenSentence } from "../../src/text/sentences";
import type { Settings, Span } from "../../src/types";

const usual: Settings = { volume: "mL", per: "slash", decimal: ".", names: "british", masses: "shown" };
const other: Settings = { volume: "cm3", per: "power", decimal: ",", names: "american", masses: "shown" };
const names = () => new Map([["aluminium", "aluminum"]]);

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

const written: [Span[], string][] = [
    [[{ name: "Sulfate" }, { text: "s are soluble." }], "Sulfates are soluble."],
    [
        [{ text: "Some " }, { name: "aluminium", american: "aluminum" }, { text: " is left (" }, { name: "aluminium" }, { text: ")." }],
        "Some aluminium is left (aluminium).",
    ],
    [[{ name: "silver" }, { text: " " }, { name: "chloride" }, { text: ", " }, { formula: "AgCl" }], "silver chloride, A g C l"],
];

const divided: [Span[], Span[], string][] = [
    [[{ number: "10.90" }, { text: " + " }, { number: "10.85" }], [{ number: "2" }], "10.90 plus 10.85, all over 2"],
    [[{ quantity: "c" }, { text: " " }, { quantity: "V" }], [{ quantity: "n" }], "c V over n"],
    [[{ number: "1.5e-3" }], [{ number: "0.025" }], "1.5 times 10 to the minus 3 over 0.025"],
];

for (const [over, under, said] of divided) {
    test(`a fraction is said as "${said}"`, () => assert.equal(speech([{ fraction: [over, under] }], usual), said));
}

for (const [spans, said] of written) {
    test(`"${said}" has its blanks where they are written`, () => assert.equal(speech(spans, usual), said));
}

const formulas: [string, Span[]][] = [
    ["none", [{ text: "none" }]],
    ["BaSO4", [{ formula: "BaSO4" }]],
    ["CuSO4.5H2O", [{ formula: "CuSO4.5H2O" }]],
    ["CH3COO^-", [{ ion: "CH3COO", charge: "-" }]],
    [
        "2HCl + Mg(OH)2 -> MgCl2 + 2H2O",
        [
            { number: "2" },
            { formula: "HCl" },
            { text: " + " },
            { formula: "Mg(OH)2" },
            { text: " → " },
            { formula: "MgCl2" },
            { text: " + " },
            { number: "2" },
            { formula: "H2O" },
        ],
    ],
];

for (const [text, expected] of formulas) {
    test(`"${text}" as formulas`, () => assert.deepEqual(spansOfFormulas(text), expected));
}

const said: [string, Span[]][] = [
    [
        "M equals 2 times (22.99) plus 12.01 grams per mole",
        [
            { quantity: "M" },
            { text: " = " },
            { number: "2" },
            { text: "(" },
            { number: "22.99" },
            { text: ") + " },
            { number: "12.01" },
            { unit: "g/mol" },
        ],
    ],
    ["1 over 2 times n of H C l", [{ fraction: [[{ number: "1" }], [{ number: "2" }]] }, { text: " " }, { quantity: "n", of: "HCl" }]],
    ["c 1 is to be found", [{ quantity: "c", index: "1" }, { text: " = ?" }]],
    [
        "4 O plus 7 times (2 H plus O)",
        [
            { number: "4" },
            { text: " " },
            { formula: "O" },
            { text: " + " },
            { number: "7" },
            { text: "(" },
            { number: "2" },
            { text: " " },
            { formula: "H" },
            { text: " + " },
            { formula: "O" },
            { text: ")" },
        ],
    ],
    ["3.1 times 10 to the minus 3 moles.", [{ number: "3.1e-3" }, { unit: "mol" }, { text: "." }]],
];

for (const [expected, spans] of said) {
    test(`a line is said "${expected}"`, () => assert.equal(speech(spans, usual), expected));
}
