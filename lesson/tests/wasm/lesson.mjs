// The WebAssembly module as a page uses it: texts in, texts out.
import { readFileSync } from 'node:fs'

export const moduleBytes = readFileSync(process.env.LESSON_WASM)

export async function loadLesson() {
  const { instance } = await WebAssembly.instantiate(moduleBytes)
  const { memory, _initialize, malloc, free, ...functions } = instance.exports
  _initialize()

  // The memory may have grown and moved with every call, so nothing keeps a view of it.
  function handIn(bytes) {
    const address = malloc(bytes.length + 1)
    const copy = new Uint8Array(memory.buffer, address, bytes.length + 1)
    copy.set(bytes)
    copy[bytes.length] = 0
    return address
  }
  function bytesAt(address) {
    const rest = new Uint8Array(memory.buffer, address)
    return rest.subarray(0, rest.indexOf(0))
  }
  // Numbers go in as they are, texts and bytes as addresses, null as the null pointer.
  function call(name, args) {
    const texts = []
    const values = args.map((arg) => {
      if (typeof arg === 'number' || arg === null) return arg ?? 0
      texts.push(handIn(typeof arg === 'string' ? Buffer.from(arg) : arg))
      return texts.at(-1)
    })
    const result = bytesAt(functions[name](...values))
    texts.forEach((address) => free(address))
    return result
  }

  return {
    // What a function gives, as bytes that hold until the next call.
    bytes: (name, ...args) => call(name, args),
    // The same read as JSON; bytes that are no UTF-8 are an error.
    json: (name, ...args) =>
      JSON.parse(new TextDecoder('utf-8', { fatal: true }).decode(call(name, args))),
    memorySize: () => memory.buffer.byteLength,
  }
}
