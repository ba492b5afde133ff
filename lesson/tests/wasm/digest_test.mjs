// The module makes the same exercises, marks and files, byte for byte, as the native library does: see
// ../digest.hpp.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import test from "node:test";
import { loadLesson } from "./lesson.mjs";

const approved = readFileSync(new URL("../approved/digests.txt", import.meta.url), "utf8")
    .trimEnd()
    .split("\n");
const decoder = new TextDecoder();

function add(/** @type {number} */ digest, /** @type {Uint8Array} */ bytes) {
    let value = digest;
    for (let i = 0; i < bytes.length; ++i) value = Math.imul(value ^ bytes[i], 16777619);
    return Math.imul(value ^ 10, 16777619);
}
const hexadecimal = (/** @type {number} */ digest) => (digest >>> 0).toString(16).padStart(8, "0");

function typedTexts(/** @type {{ key: { text: string }, slips: { text: string }[] }} */ exercise) {
    const others = ["", "42", "Mg2O2", "SO4^2-", "no", "HCl + NaOH -> NaCl + H2O"];
    return [exercise.key.text, ...others, ...exercise.slips.map((slip) => slip.text)];
}

function digestLine(/** @type {Awaited<ReturnType<typeof loadLesson>>} */ lesson, /** @type {string} */ kind) {
    let exercises = 2166136261;
    let marks = 2166136261;
    let files = 2166136261;
    for (let paper = 1; paper <= 20; ++paper) {
        for (const format of ["moodle", "anki"]) {
            files = add(files, lesson.bytes("lesson_export", `${paper}/20*${kind}`, format, null));
        }
    }
    for (let paper = 1; paper <= 100; ++paper) {
        for (let number = 1; number <= 100; ++number) {
            const exercise = `${paper}/${number}/${kind}`;
            const bytes = lesson.bytes("lesson_exercise", exercise, null);
            exercises = add(exercises, bytes);
            if (number > 5) continue;
            for (const typed of typedTexts(JSON.parse(decoder.decode(bytes)))) {
                marks = add(marks, lesson.bytes("lesson_mark", exercise, typed, null));
            }
        }
    }
    return `${kind} ${hexadecimal(exercises)} ${hexadecimal(marks)} ${hexadecimal(files)}`;
}

test("every kind is approved at each of its levels", async () => {
    const kinds = (await loadLesson()).json("lesson_kinds", null);
    assert.deepEqual(
        approved.map((line) => line.split(" ")[0]),
        kinds.flatMap((/** @type {{ kind: string, levels: string[] }} */ row) => row.levels.map((_, i) => `${row.kind}:${i + 1}`)),
    );
});

for (const line of approved) {
    const [kind] = line.split(" ");
    test(`${kind} is the same as natively`, async () => {
        assert.equal(digestLine(await loadLesson(), kind), line);
    });
}
