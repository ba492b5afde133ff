// Who may import whom: one list, so that the page keeps its shape.
import assert from "node:assert/strict";
import { readdirSync, readFileSync } from "node:fs";
import { dirname, join, normalize } from "node:path";
import { test } from "node:test";
import { fileURLToPath } from "node:url";

const source = join(dirname(fileURLToPath(import.meta.url)), "../src");

const allowed = {
    "types": [],
    "texts": [],
    "dom": [],
    "storage": ["types"],
    "state": ["types"],
    "record": ["state", "storage"],
    "progress": ["address", "sets", "state", "storage", "types", "working"],
    "clock": [],
    "sets": ["address", "state", "storage", "types"],
    "working": ["address", "clock", "sets", "types"],
    "summary": ["sets", "texts", "types"],
    "address": ["list", "sheet", "texts", "types"],
    "list": ["types"],
    "lists": ["list", "types"],
    "picks": ["list", "types"],
    "sheet": ["list", "types"],
    "kinds": ["list", "texts", "types"],
    "masses": ["types"],
    "elements": ["types"],
    "filling": [],
    "levels": [],
    "marks": ["types"],
    "asking": ["marks", "types"],
    "slices": [],
    "equation": ["types"],
    "spans": ["dom", "equation", "types", "units"],
    "units": ["types"],
    "sentence": ["spans", "types"],
    "engine/inflate": ["fflate"],
    "engine/memory": ["engine/inflate"],
    "engine/lesson": ["engine/memory", "types"],
    "views/counts": ["dom", "list", "picks", "texts", "types", "views/meanings", "views/problems"],
    "views/page": ["sentence", "types"],
    "views/answer": ["dom", "spans", "texts", "types", "units"],
    "views/choice": [
        "address", "dom", "kinds", "list", "texts", "types",
        "views/kind-rows", "views/page", "views/paper-field", "views/problems",
    ],
    "views/display": ["dom", "storage", "texts", "types", "views/page"],
    "views/apparatus": ["dom", "levels", "types", "units"],
    "views/drawing": ["dom", "levels", "spans", "texts", "types", "views/apparatus"],
    "views/exercise": [
        "address", "dom", "spans", "progress", "record", "state", "texts", "types", "working",
        "views/answer", "views/drawing", "views/finish", "views/head", "views/mark", "views/masses-line", "views/overview", "views/page", "views/question", "views/solution",
    ],
    "views/files": ["address", "dom", "list", "sheet", "texts", "types", "views/link", "views/page"],
    "views/head": ["dom", "texts", "types", "views/page"],
    "views/finish": ["address", "sets", "texts", "types", "views/page", "views/question"],
    "views/kept-sets": ["address", "dom", "kinds", "progress", "sets", "summary", "texts", "types", "views/page", "views/question"],
    "views/link": ["address", "dom", "texts", "types"],
    "views/overview": ["address", "dom", "sets", "texts", "types"],
    "views/kind-rows": ["dom", "kinds", "texts", "types", "views/meanings", "views/problems"],
    "views/leaves": ["dom", "filling", "sheet", "texts", "types", "views/page", "views/printed-heads", "views/runs"],
    "views/mark": ["dom", "sentence", "spans", "texts", "types", "views/page"],
    "views/masses-line": ["dom", "masses", "spans", "texts", "types", "views/page"],
    "views/meanings": ["dom", "types"],
    "views/message": ["dom"],
    "views/paper-field": ["dom", "sheet", "texts", "views/page", "views/problems"],
    "views/pick-tools": ["dom", "list", "picks", "texts", "types"],
    "views/practice": ["address", "dom", "texts", "types", "views/choice", "views/display", "views/exercise", "views/link", "views/page", "views/record"],
    "views/preview": ["dom", "list", "slices", "texts", "types", "views/leaves", "views/page"],
    "views/printed": ["asking", "dom", "marks", "sentence", "spans", "texts", "types", "views/drawing", "views/page"],
    "views/printed-heads": ["asking", "dom", "marks", "masses", "spans", "texts", "types", "views/masses-line", "views/page"],
    "views/problems": ["dom"],
    "views/runs": ["asking", "dom", "filling", "types", "views/page", "views/printed", "views/printed-heads"],
    "views/question": ["dom"],
    "views/record": ["dom", "record", "state", "texts", "types", "views/kept-sets", "views/page", "views/question"],
    "views/sheet-form": ["dom", "list", "sheet", "texts", "types", "views/counts", "views/page", "views/problems"],
    "views/sheets": [
        "dom", "picks", "texts", "types",
        "views/display", "views/files", "views/page", "views/pick-tools", "views/preview", "views/problems", "views/sheet-form",
    ],
    "views/solution": ["dom", "sentence", "spans", "texts", "types", "views/page"],
    "views/start": ["address", "dom", "kinds", "texts", "types", "views/choice", "views/page"],
    "views/results": ["address", "dom", "summary", "texts", "types"],
    "views/summary": ["address", "dom", "progress", "sets", "summary", "texts", "types", "views/link", "views/page", "views/question", "views/results"],
    "views/tables": ["dom", "texts", "views/elements", "views/ions", "views/page", "views/pairs", "views/solubility"],
    "views/elements": ["dom", "elements", "spans", "texts", "types", "units", "views/page", "views/periodic"],
    "views/periodic": ["dom", "texts", "types", "units", "views/page"],
    "views/ions": ["dom", "spans", "texts", "types", "views/page"],
    "views/pairs": ["dom", "sentence", "spans", "texts", "types", "views/page"],
    "views/solubility": ["dom", "sentence", "texts", "types", "views/page", "views/pairs"],
    "main": [
        "address", "dom", "engine/lesson", "engine/memory", "kinds", "lesson.bin", "lists", "sentence", "sheet", "storage", "texts", "types",
        "views/answer", "views/head", "views/message", "views/page", "views/practice", "views/sheets", "views/start", "views/summary", "views/tables", "working",
    ],
};

function modules(folder = "") {
    return readdirSync(join(source, folder), { withFileTypes: true }).flatMap((entry) => {
        const path = join(folder, entry.name);
        return entry.isDirectory() ? modules(path) : path.endsWith(".d.ts") ? [] : [path.replace(/\.ts$/, "")];
    });
}

function importsOf(module) {
    const text = readFileSync(join(source, `${module}.ts`), "utf8");
    const names = [...text.matchAll(/\b(?:from |import\()"([^"]+)"/g)].map((found) => found[1]);
    return names.map((name) => (name.startsWith(".") ? normalize(join(dirname(module), name)) : name));
}

test("every module is in the list, and the list holds no other", () => {
    assert.deepEqual(modules().sort(), Object.keys(allowed).sort());
});

for (const module of modules()) {
    test(`${module} imports only what it may`, () => {
        for (const name of importsOf(module)) {
            assert.ok(allowed[module].includes(name), `${module} imports ${name}`);
        }
    });
}

test("only engine/memory touches the module's memory, and nothing makes markup from text", () => {
    for (const module of modules()) {
        const text = readFileSync(join(source, `${module}.ts`), "utf8");
        assert.ok(module === "engine/memory" || !/memory\.buffer/.test(text), module);
        assert.ok(!/innerHTML|outerHTML|insertAdjacentHTML|document\.write/.test(text), module);
    }
});

// Safari before 16.4 takes such an expression for a mistake, and then runs nothing of the page.
test("no regular expression looks behind", () => {
    for (const module of modules()) {
        assert.doesNotMatch(readFileSync(join(source, `${module}.ts`), "utf8"), /\(\?<[=!]/, module);
    }
});
