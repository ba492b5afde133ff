// Makes the one file: the scripts bundled, the module and the notices inside them as compressed bytes, the
// styles, and a policy that allows these by their hashes and forbids every connection.
//   node build.mjs LESSON.WASM PRACTICE.HTML
import { createHash } from "node:crypto";
import { mkdir, readFile, writeFile } from "node:fs/promises";
import { dirname, join, resolve } from "node:path";
import { fileURLToPath } from "node:url";
import { zlibAsync } from "@gfx/zopfli";
import { build } from "esbuild";

const here = dirname(fileURLToPath(import.meta.url));
const [wasm, target] = process.argv.slice(2);

await mkdir(dirname(target), { recursive: true });
const inside = Object.fromEntries([await packed("lesson.bin", wasm), await packed("notices.bin", join(here, "../NOTICES.md"))]);

const script = await bundle("src/main.ts");
const style = await bundle("style/page.css");
const policy = [
    "default-src 'none'",
    `script-src '${hashOf(script)}' 'wasm-unsafe-eval'`,
    `style-src '${hashOf(style)}'`,
    "img-src data:",
    "base-uri 'none'",
    "form-action 'none'",
].join("; ");

const page = Object.entries({ POLICY: policy, STYLE: style, SCRIPT: script }).reduce(
    (html, [place, text]) => html.replace(place, () => text),
    await readFile(join(here, "index.html"), "utf8"),
);
await writeFile(target, page);

// By zopfli, which takes its time for a twentieth less, with the same bytes on every machine. Gives the name
// by which a script imports it, and where it is.
async function packed(/** @type {string} */ name, /** @type {string} */ file) {
    const path = resolve(dirname(target), name);
    await writeFile(path, await zlibAsync(await readFile(file), {}));
    return [name, path];
}

async function bundle(/** @type {string} */ entry) {
    const result = await build({
        entryPoints: [join(here, entry)],
        bundle: true,
        write: false,
        minify: true,
        charset: "utf8",
        target: ["safari15", "chrome90", "firefox90"],
        loader: { ".bin": "base64" },
        alias: inside,
    });
    return result.outputFiles[0].text.trim().replaceAll("</script", "<\\/script").replaceAll("<!--", "<\\!--");
}

function hashOf(/** @type {string} */ text) {
    return `sha256-${createHash("sha256").update(text).digest("base64")}`;
}
