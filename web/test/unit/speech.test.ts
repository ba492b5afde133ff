import assert from "node:assert/strict";
import { test } from "node:test";
import { speech } from "../../src/text/seen-and-spoken";
import type { Settings, Span } from "../../src/types";
import { unitWords } from "../../src/words/unit-words";

const usual: Settings = { volume: "mL", per: "slash", decimal: ".", names: "british", masses: "shown" };
const american: Settings = { ...usual, names: "american" };

test("units are said in the reader's language", () => {
    const spans: Span[] = [
        { text: "Take " },
        { number: "12.5" },
        { unit: "mL" },
        { text: " of " },
        { name: "aluminum nitrate" },
        { text: ", " },
        { number: "0,5" },
        { unit: "mol dm-3" },
        { text: ", and " },
        { formula: "H2O" },
        { text: "." },
    ];
    const said = (millilitres: string, decimetre: string) =>
        `Take 12.5 ${millilitres} of aluminum nitrate, 0,5 moles per cubic ${decimetre}, and H 2 O.`;
    assert.equal(speech(spans, usual), said("millilitres", "decimetre"));
    assert.equal(speech(spans, american), said("milliliters", "decimeter"));
});

test("each unit is said in both languages, in American English with -er", () => {
    const unspoken = /^(cm3|dm3|mL|L)$|\//;
    for (const [unit, british] of Object.entries(unitWords.british)) {
        assert.doesNotMatch(british, unspoken, unit);
        assert.equal(unitWords.american[unit], british.replace("litre", "liter").replace("metre", "meter"), unit);
    }
});

const written: [Span[], string][] = [
    [[{ name: "Sulfate" }, { text: "s are soluble." }], "Sulfates are soluble."],
    [
        [{ text: "Some " }, { name: "aluminium" }, { text: " is left (" }, { name: "aluminium" }, { text: ")." }],
        "Some aluminium is left (aluminium).",
    ],
    [[{ text: "'" }, { formula: "H2O" }, { text: "' is water: 1 " }, { formula: "O" }, { text: "-atom" }], "'H 2 O' is water: 1 O-atom"],
    [[{ name: "silver" }, { text: " " }, { name: "chloride" }, { text: ", " }, { formula: "AgCl" }], "silver chloride, A g C l"],
];

const divided: [Span[], Span[], string][] = [
    [[{ number: "10.90" }, { text: " + " }, { number: "10.85" }], [{ number: "2" }], "10.90 plus 10.85, all over 2"],
    [[{ quantity: "c" }, { text: " " }, { quantity: "V" }], [{ quantity: "n" }], "c V over n"],
    [[{ number: "1.5e-3" }], [{ number: "0.025" }], "1.5 times 10 to the minus 3, over 0.025"],
];

for (const [over, under, said] of divided) {
    test(`a fraction is said as "${said}"`, () => assert.equal(speech([{ fraction: [over, under] }], usual), said));
}

const half: Span = { fraction: [[{ number: "1" }], [{ number: "2" }]] };

// Whether what comes behind a fraction could be heard as standing under its line.
const behind: [Span[], string][] = [
    [[{ text: " " }, { quantity: "n", of: "HCl" }], "1 over 2, times n of H C l"],
    [[{ text: " + " }, { number: "3" }], "1 over 2, plus 3"],
    [[{ text: " × " }, { number: "3" }], "1 over 2, times 3"],
    [[{ text: " − " }, { number: "3" }], "1 over 2, minus 3"],
    [[{ unit: "mL" }], "1 over 2, millilitres"],
    [[{ text: " = " }, { number: "0.5" }], "1 over 2 equals 0.5"],
    [[{ text: "." }], "1 over 2."],
    [[{ text: ", or " }, { number: "0.5" }], "1 over 2, or 0.5"],
    [[{ text: " of it" }], "1 over 2 of it"],
    [[], "1 over 2"],
];

for (const [rest, said] of behind) {
    test(`"${said}" ends its fraction where that could be missed`, () => assert.equal(speech([half, ...rest], usual), said));
}

test("a mean of titres is said with the end of its sum", () => {
    const titres: Span[] = [{ number: "30.75" }, { text: " + " }, { number: "30.70" }];
    const line: Span[] = [
        { quantity: "V", of: "HCl" },
        { text: " = " },
        { fraction: [titres, [{ number: "2" }]] },
        { text: " = " },
        { number: "30.73" },
        { unit: "mL" },
    ];
    assert.equal(speech(line, american), "V of H C l equals 30.75 plus 30.70, all over 2 equals 30.73 milliliters");
});

for (const [spans, said] of written) {
    test(`"${said}" has its blanks where they are written`, () => assert.equal(speech(spans, usual), said));
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
