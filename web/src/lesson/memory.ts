// The one file that touches the memory of the WebAssembly module.

export interface Exports {
    memory: WebAssembly.Memory;
    _initialize(): void;
    malloc(size: number): number;
    free(address: number): void;
    lesson_kinds(): number;
    lesson_exercise(paper: number, number: number, kind: number): number;
    lesson_mark(paper: number, number: number, kind: number, typed: number): number;
    lesson_tables(): number;
    lesson_export(paper: number, sheet: number, format: number): number;
}

const encoder = new TextEncoder();
const decoder = new TextDecoder();

// Compiles in other threads; asynchronously, since older browsers refuse a module of this size at once.
export async function instantiate(bytes: BufferSource): Promise<Exports> {
    const { instance } = await WebAssembly.instantiate(bytes, {});
    const exports = instance.exports as unknown as Exports;
    exports._initialize();
    return exports;
}

// The module's bytes from compressed ones, written in base64.
export function unpacked(packed: string): Promise<BufferSource> {
    return inflated(bytesOf(packed));
}

// What browsers do in one step as far as they are new enough, in a tenth of the time that a script takes.
// Without it are Chrome before 140 and Safari before 18.2 for the first, Safari before 16.4 and Firefox
// before 113 for the second.
function bytesOf(base64: string): Uint8Array<ArrayBuffer> {
    const { fromBase64 } = Uint8Array as { fromBase64?: (text: string) => Uint8Array<ArrayBuffer> };
    return fromBase64?.(base64) ?? Uint8Array.from(atob(base64), (character) => character.charCodeAt(0));
}

async function inflated(compressed: Uint8Array<ArrayBuffer>): Promise<BufferSource> {
    if (typeof DecompressionStream === "undefined") {
        const { unzlibSync } = await import("./inflate");
        return unzlibSync(compressed);
    }
    const { readable, writable } = new DecompressionStream("deflate");
    const writer = writable.getWriter();
    void writer.write(compressed);
    void writer.close();
    return new Response(readable).arrayBuffer();
}

// Calls with texts put into the module's memory, and takes them out again afterwards. A zero byte
// would end the text for the module, so it goes as a replacement character.
export function withTexts(module: Exports, texts: string[], call: (...addresses: number[]) => number): string {
    const addresses = texts.map((text) => put(module, text.replaceAll("\0", "\uFFFD")));
    try {
        return take(module, call(...addresses));
    } finally {
        addresses.forEach((address) => module.free(address));
    }
}

function put(module: Exports, text: string): number {
    const bytes = encoder.encode(text);
    const address = module.malloc(bytes.length + 1);
    if (address === 0) {
        throw new Error("no memory for the typed text");
    }
    const memory = new Uint8Array(module.memory.buffer);
    memory.set(bytes, address);
    memory[address + bytes.length] = 0;
    return address;
}

// The views on the memory are made anew each time: it moves when it grows.
function take(module: Exports, address: number): string {
    const memory = new Uint8Array(module.memory.buffer);
    return decoder.decode(memory.subarray(address, memory.indexOf(0, address)));
}
