// The lesson's WebAssembly module from JavaScript, in a browser or in Node: the one place that touches its memory.

/**
 * @typedef {"lesson_kinds" | "lesson_exercise" | "lesson_mark" | "lesson_read" | "lesson_tables" | "lesson_export"} LessonFunction
 * @typedef {string | Uint8Array | null} Argument Bytes are UTF-8; null is the null pointer.
 * @typedef {Record<LessonFunction, (...values: number[]) => number> & {
 *     memory: WebAssembly.Memory,
 *     _initialize(): void,
 *     malloc(size: number): number,
 *     free(address: number): void,
 * }} LessonModule
 */

const encoder = new TextEncoder();
const decoder = new TextDecoder("utf-8", { fatal: true });

/**
 * Compiles in other threads; asynchronously, since older browsers refuse a module of this size at once.
 * @param {BufferSource} bytes
 * @returns {Promise<LessonModule>}
 */
export async function instantiate(bytes) {
    const { instance } = await WebAssembly.instantiate(bytes, {});
    const module = /** @type {LessonModule} */ (/** @type {unknown} */ (instance.exports));
    module._initialize();
    return module;
}

/**
 * What a function gives, as text.
 * @param {LessonModule} module
 * @param {LessonFunction} name
 * @param {Argument[]} args
 */
export function textOf(module, name, ...args) {
    return decoder.decode(bytesOf(module, name, ...args));
}

/**
 * The same as bytes, which hold until the next call.
 * @param {LessonModule} module
 * @param {LessonFunction} name
 * @param {Argument[]} args
 */
export function bytesOf(module, name, ...args) {
    const addresses = args.map((arg) => (arg === null ? 0 : put(module, arg)));
    try {
        return bytesAt(module, module[name](...addresses));
    } finally {
        addresses.forEach((address) => module.free(address));
    }
}

/**
 * The address of a copy. A zero would end a text for the module, so it goes as a replacement character.
 * @param {LessonModule} module
 * @param {string | Uint8Array} text
 */
function put(module, text) {
    const bytes = typeof text === "string" ? encoder.encode(text.replaceAll("\0", "\uFFFD")) : text;
    const address = module.malloc(bytes.length + 1);
    if (address === 0) {
        throw new Error("no memory for the typed text");
    }
    const memory = new Uint8Array(module.memory.buffer);
    memory.set(bytes, address);
    memory[address + bytes.length] = 0;
    return address;
}

/**
 * Up to the zero that ends them. The memory moves when it grows, so that nothing keeps a view of it.
 * @param {LessonModule} module
 * @param {number} address
 */
function bytesAt(module, address) {
    const memory = new Uint8Array(module.memory.buffer);
    return memory.subarray(address, memory.indexOf(0, address));
}
