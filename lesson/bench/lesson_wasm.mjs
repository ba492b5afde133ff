// Exercises and marks a second in the WebAssembly module, by CPU time: 20 exercises of each of 200
// papers, after as many to warm up. LESSON_WASM names the module.
import { loadLesson } from "../tests/wasm/lesson.mjs";

const papers = 200;
const numbersOfAPaper = 20;

function aSecond(/** @type {() => void} */ work) {
    work();
    const before = process.cpuUsage();
    work();
    const { user, system } = process.cpuUsage(before);
    return Math.round((papers * numbersOfAPaper * 1e6) / (user + system));
}

function forEachExercise(/** @type {(paper: number, number: number) => void} */ use) {
    for (let paper = 1; paper <= papers; ++paper) {
        for (let number = 1; number <= numbersOfAPaper; ++number) use(paper, number);
    }
}

const lesson = await loadLesson();
const kinds = lesson.json("lesson_kinds", null).flatMap((/** @type {{ kind: string }} */ { kind }) => [1, 2, 3].map((n) => `${kind}:${n}`));
console.log("kind                exercises/s    marks/s");
for (const kind of [...kinds, "mixed"]) {
    const exercises = aSecond(() =>
        forEachExercise((/** @type {number} */ paper, /** @type {number} */ number) =>
            lesson.bytes("lesson_exercise", `${paper}/${number}/${kind}`, null),
        ),
    );
    const marks = aSecond(() =>
        forEachExercise((/** @type {number} */ paper, /** @type {number} */ number) =>
            lesson.bytes("lesson_mark", `${paper}/${number}/${kind}`, "0.0456", null),
        ),
    );
    console.log(kind.padEnd(18), String(exercises).padStart(12), String(marks).padStart(10));
}
