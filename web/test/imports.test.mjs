// Who may import whom: a line a folder, so that the page keeps its shape.
import assert from "node:assert/strict";
import { readdirSync, readFileSync } from "node:fs";
import { dirname, join, normalize } from "node:path";
import { test } from "node:test";
import { fileURLToPath } from "node:url";

const source = join(dirname(fileURLToPath(import.meta.url)), "../src");

// The library's own way into its module.
const border = "../../lesson/border/module.mjs";

// A folder, or a module that stands beside them, and what it may import besides itself.
/** @type {Record<string, string[]>} */
const allowed = {
    types: [],
    words: [],
    shared: ["types", "words", "fflate"],
    text: ["types", "words", "shared"],
    lesson: ["types", "shared", border],
    address: ["types", "words", "shared", "sheet/address"],
    practice: ["types", "words", "shared", "text", "address"],
    sheet: ["types", "words", "shared", "text", "address", "practice"],
    notices: ["words", "shared"],
    tables: ["types", "words", "shared", "text"],
    main: [
        "types",
        "words",
        "shared",
        "text",
        "address",
        "practice",
        "sheet",
        "tables",
        "notices",
        "lesson",
        "lesson.bin",
        "notices.bin",
        border,
    ],
};

/** @returns {string[]} */
function modules(folder = "") {
    return readdirSync(join(source, folder), { withFileTypes: true }).flatMap((entry) => {
        const path = join(folder, entry.name);
        return entry.isDirectory() ? modules(path) : path.endsWith(".d.ts") ? [] : [path.replace(/\.ts$/, "")];
    });
}

function textOf(/** @type {string} */ module) {
    return readFileSync(join(source, `${module}.ts`), "utf8");
}

function importsOf(/** @type {string} */ module) {
    const names = [...textOf(module).matchAll(/\b(?:from |import\()"([^"]+)"/g)].map((found) => found[1]);
    return names.map((name) => (name.startsWith(".") ? normalize(join(dirname(module), name)) : name));
}

function folderOf(/** @type {string} */ module) {
    return module.split("/")[0];
}

test("every folder is in the list, and the list holds no other", () => {
    assert.deepEqual([...new Set(modules().map(folderOf))].sort(), Object.keys(allowed).sort());
});

for (const module of modules()) {
    test(`${module} imports only what its folder may`, () => {
        const folder = folderOf(module);
        for (const name of importsOf(module)) {
            assert.ok(
                [folder, ...allowed[folder]].some((one) => name === one || name.startsWith(`${one}/`)),
                `${module} imports ${name}`,
            );
        }
    });
}

test("no module imports itself by way of others", () => {
    const done = new Set();
    const walk = (/** @type {string} */ module, /** @type {string[]} */ path) => {
        assert.ok(!path.includes(module), [...path, module].join(" > "));
        if (!done.has(module)) {
            importsOf(module)
                .filter((name) => modules().includes(name))
                .forEach((name) => walk(name, [...path, module]));
            done.add(module);
        }
    };
    modules().forEach((module) => walk(module, []));
});

test("every module is used", () => {
    const used = new Set(modules().flatMap(importsOf));
    assert.deepEqual(
        modules().filter((module) => !used.has(module)),
        ["main"],
    );
});

test("nothing touches the module's memory or makes markup from text", () => {
    for (const module of modules()) {
        assert.ok(!/memory\.buffer/.test(textOf(module)), module);
        assert.ok(!/innerHTML|outerHTML|insertAdjacentHTML|document\.write/.test(textOf(module)), module);
    }
});

// Safari before 16.4 takes such an expression for a mistake, and then runs nothing of the page.
test("no regular expression looks behind", () => {
    for (const module of modules()) {
        assert.doesNotMatch(textOf(module), /\(\?<[=!]/, module);
    }
});
