// What a page relies on when it loads the module and calls it with anything.
import assert from "node:assert/strict";
import test from "node:test";
import { loadLesson, moduleBytes } from "./lesson.mjs";

test("the module imports nothing and exports the interface", async () => {
    const module = await WebAssembly.compile(moduleBytes);
    assert.deepEqual(WebAssembly.Module.imports(module), []);
    assert.deepEqual(
        WebAssembly.Module.exports(module)
            .map((one) => one.name)
            .sort(),
        [
            "_initialize",
            "free",
            "lesson_exercise",
            "lesson_export",
            "lesson_kinds",
            "lesson_mark",
            "lesson_read",
            "lesson_tables",
            "malloc",
            "memory",
        ],
    );
});

test("a kind that is listed has a title and levels, each of which has exercises", async () => {
    const lesson = await loadLesson();
    for (const row of lesson.json("lesson_kinds", null)) {
        assert.ok(row.title, row.kind);
        assert.equal(row.levels.length, 3, row.kind);
        row.levels.forEach((/** @type {string} */ _, /** @type {number} */ i) => {
            const exercise = lesson.json("lesson_exercise", `1/1/${row.kind}:${i + 1}`, null);
            assert.deepEqual([exercise.kind, exercise.level], [row.kind, i + 1]);
        });
    }
});

test("the tables are whole", async () => {
    const tables = (await loadLesson()).json("lesson_tables", null);
    assert.equal(tables.elements.length, 118);
    assert.equal(tables.pairs.length, 19 * 15);
});

test("bad arguments are told", async () => {
    const lesson = await loadLesson();
    for (const name of ["0/1/mixed", "1000000/1/mixed", "-1/1/mixed", "1/0/mixed", "1/1/titration:4", "1/1/", "", "dilution", null]) {
        assert.deepEqual(Object.keys(lesson.json("lesson_exercise", name, null)), ["error"], `${name}`);
        assert.deepEqual(Object.keys(lesson.json("lesson_mark", name, "1", null)), ["error"], `${name}`);
    }
    assert.deepEqual(Object.keys(lesson.json("lesson_mark", "1/1/mixed", null, null)), ["error"]);
    assert.deepEqual(Object.keys(lesson.json("lesson_exercise", "1/1/mixed", "xx")), ["error"]);
});

test("bad arguments of an export are told", async () => {
    const lesson = await loadLesson();
    const cases = [
        ["0/titration", "moodle"],
        ["titration", "moodle"],
        [null, "moodle"],
        ["1/titration", null],
        ["1/", "anki"],
        ["1/mixed", "moodle"],
        ["1/1001*titration", "moodle"],
        ["1/titration", "anki"],
        ["1/titration@0", "moodle"],
        ["1/titration@1000000", "moodle"],
        ["1/3*titration,titration@3", "moodle"],
        ["[dilution]", "moodle"],
    ];
    for (const args of cases) {
        assert.deepEqual(Object.keys(lesson.json("lesson_export", ...args, null)), ["error"], `${args}`);
    }
});

test("a described exercise is the drawn one but for paper and number", async () => {
    const lesson = await loadLesson();
    const { paper, number, ...drawn } = lesson.json("lesson_exercise", "4821/3/titration:3", null);
    assert.deepEqual([paper, number], [4821, 3]);
    assert.deepEqual(lesson.json("lesson_exercise", drawn.description, null), drawn);
});

test("a comma before decimals is read as the reader writes", async () => {
    const lesson = await loadLesson();
    const thousands = (/** @type {string | null} */ writing) =>
        lesson.json("lesson_mark", "molar-mass;formula=NaCl", "58,443", writing).verdict;
    assert.equal(thousands(null), "unreadable");
    assert.notEqual(thousands("en-GB;decimal=,"), "unreadable");
});

test("exercises that are named by their numbers are the same in a file", async () => {
    const lesson = await loadLesson();
    const fileOf = (/** @type {string} */ sheet) => Buffer.from(lesson.bytes("lesson_export", `4821/${sheet}`, "anki", null)).toString();
    assert.equal(fileOf("ion-formula@1,ion-formula@2,ion-formula@3"), fileOf("3*ion-formula"));
    assert.notEqual(fileOf("ion-formula@2,ion-formula@1,ion-formula@3"), fileOf("3*ion-formula"));
});

test("any typed text gets a mark", async () => {
    const lesson = await loadLesson();
    const texts = [
        "",
        "\u{10FFFF}",
        "(".repeat(10000),
        "1".repeat(1000000),
        "é".repeat(500000),
        "-> + ".repeat(200000),
        Uint8Array.of(0x80, 0xff, 0xc3),
        Uint8Array.of(1, 2, 31, 127),
    ];
    for (const { kind } of lesson.json("lesson_kinds", null)) {
        for (const text of texts) {
            const mark = lesson.json("lesson_mark", `1/1/${kind}`, text, null);
            assert.deepEqual(Object.keys(mark), ["verdict", "sentence"], kind);
        }
    }
});

test("a zero is a character of what is typed, not its end", async () => {
    const lesson = await loadLesson();
    const { key } = lesson.json("lesson_exercise", "4821/3/titration:3", null);
    const verdictOf = (/** @type {string} */ typed) => lesson.json("lesson_mark", "4821/3/titration:3", typed, null).verdict;
    assert.deepEqual([verdictOf(key.text), verdictOf(`${key.text}\0`)], ["correct", "unreadable"]);
});

test("the memory does not grow with the number of calls", async () => {
    const lesson = await loadLesson();
    const work = (/** @type {number} */ papers) => {
        for (let paper = 1; paper <= papers; ++paper) {
            lesson.bytes("lesson_exercise", `${paper}/${paper}/mixed`, null);
            lesson.bytes("lesson_mark", `${paper}/${paper}/mixed`, "0.0456 mol/L", null);
        }
    };
    work(5000);
    const before = lesson.memorySize();
    work(10000);
    assert.equal(lesson.memorySize(), before);
});
