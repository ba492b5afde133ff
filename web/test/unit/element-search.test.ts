import assert from "node:assert/strict";
import { test } from "node:test";
import { elementsMeant } from "../../src/tables/element-search";
import type { ElementInfo } from "../../src/types";

const rows: [number, string, string, string?][] = [
    [1, "H", "hydrogen"],
    [2, "He", "helium"],
    [4, "Be", "beryllium"],
    [6, "C", "carbon"],
    [7, "N", "nitrogen"],
    [8, "O", "oxygen"],
    [9, "F", "fluorine"],
    [11, "Na", "sodium"],
    [12, "Mg", "magnesium"],
    [13, "Al", "aluminium", "aluminum"],
    [16, "S", "sulfur"],
    [17, "Cl", "chlorine"],
    [20, "Ca", "calcium"],
    [26, "Fe", "iron"],
    [27, "Co", "cobalt"],
    [29, "Cu", "copper"],
    [49, "In", "indium"],
    [50, "Sn", "tin"],
    [53, "I", "iodine"],
    [55, "Cs", "caesium", "cesium"],
    [82, "Pb", "lead"],
    [97, "Bk", "berkelium"],
];
const elements = rows.map(([number, symbol, name]) => ({ number, symbol, name }) as ElementInfo);
const others = rows.map(([number, symbol, name, american = name]) => ({ number, symbol, name: american }) as ElementInfo);

// What is typed, the symbols of what is meant, and what is none.
const cases: [string, string, string?][] = [
    ["", ""],
    ["  ", ""],
    ["Na", "Na"],
    ["na", "Na"],
    ["NA", "Na"],
    ["CL", "Cl"],
    ["h", "H"],
    ["Na Cl", "Na Cl"],
    ["Na, Cl; S", "Na Cl S"],
    ["co", "Co"],
    ["Co", "Co"],
    ["CO", "C O"],
    ["sodium", "Na"],
    ["Sodium", "Na"],
    ["SODIUM", "Na"],
    ["sod", "Na"],
    ["So", "Na"],
    ["tin", "Sn"],
    ["In", "In"],
    ["ber", "Be Bk"],
    ["aluminium", "Al"],
    ["aluminum", "Al"],
    ["cesium", "Cs"],
    ["sulphur", "S"],
    ["iron copper", "Fe Cu"],
    ["11", "Na"],
    ["1 8", "H O"],
    ["17,11", "Cl Na"],
    ["１１", "Na"],
    ["Na2SO4", "Na S O"],
    ["CuSO4.5H2O", "Cu S O H"],
    ["CuSO4·5H2O", "Cu S O H"],
    ["Na₂SO₄", "Na S O"],
    ["Ca(OH)2", "Ca O H"],
    ["Al2(SO4)3", "Al S O"],
    ["SO4^2-", "S O"],
    ["Mg2+", "Mg"],
    ["2 HNO3", "H N O"],
    ["2HCl + MgO -> MgCl2 + H2O", "H Cl Mg O"],
    ["NaCl Na", "Na Cl"],
    ["lead(II)", "Pb"],
    ["Pb(II) I", "Pb I"],
    ["0", "", "0"],
    ["300", "", "300"],
    ["11 300", "Na", "300"],
    ["1.5", "", "1.5"],
    ["Xy", "", "Xy"],
    ["NaX", "Na", "X"],
    ["nacl", "", "nacl"],
    ["sodium kryptonite", "Na", "kryptonite"],
    ["натрий", "", "натрий"],
    ["<x>", "", "x"],
    ["?", "", "?"],
];

for (const [typed, symbols, unknown = ""] of cases) {
    test(`"${typed}" means ${symbols || "no element"}`, () => {
        const meant = elementsMeant(typed, elements, others);
        assert.equal(meant.elements.map(({ symbol }) => symbol).join(" "), symbols);
        assert.equal(meant.unknown.join(" "), unknown);
    });
}
