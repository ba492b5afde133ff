// The WebAssembly module that LESSON_WASM names, as the tests and the benchmark call it.
import { readFileSync } from "node:fs";
import { bytesOf, instantiate, textOf } from "../../border/module.mjs";

/** @import { Argument, LessonFunction } from "../../border/module.mjs" */

export const moduleBytes = readFileSync(process.env.LESSON_WASM);

export async function loadLesson() {
    const module = await instantiate(moduleBytes);
    return {
        // What a function gives, as bytes that hold until the next call.
        bytes: (/** @type {LessonFunction} */ name, /** @type {Argument[]} */ ...args) => bytesOf(module, name, ...args),
        json: (/** @type {LessonFunction} */ name, /** @type {Argument[]} */ ...args) => JSON.parse(textOf(module, name, ...args)),
        memorySize: () => module.memory.buffer.byteLength,
    };
}
