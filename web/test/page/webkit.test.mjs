// In WebKitGTK, from a file: the first exercise of each kind, a mark, a sheet, the tables. Its driver is spoken
// to in plain WebDriver requests, on a screen that nobody sees.
import assert from "node:assert/strict";
import { spawn } from "node:child_process";
import { existsSync, readdirSync } from "node:fs";
import { createServer } from "node:net";
import { after, before, test } from "node:test";
import { address, openLesson } from "./support.mjs";

const driver = process.env.WEBKIT_DRIVER ?? "/usr/bin/WebKitWebDriver";
const binary = process.env.MINIBROWSER ?? findMiniBrowser();
const missing = [driver, binary, "/usr/bin/xvfb-run"].filter((path) => !existsSync(path));
const skip = missing.length === 0 ? false : `there is no ${missing.join(", no ")}`;

// Debian keeps it in a folder of the machine and the version.
function findMiniBrowser() {
    const folders = readdirSync("/usr/lib").filter((name) => name.endsWith("-linux-gnu"));
    const candidates = folders.flatMap((folder) => ["4.1", "4.0"].map((version) => `/usr/lib/${folder}/webkit2gtk-${version}/MiniBrowser`));
    return candidates.find((path) => existsSync(path)) ?? "MiniBrowser";
}

const lesson = await openLesson();
/** @type {import("node:child_process").ChildProcess} */
let server;
/** @type {string} */
let base;
/** @type {string} */
let session;

function freePort() {
    return new Promise((done) => {
        const probe = createServer().listen(0, "127.0.0.1", () => {
            const { port } = /** @type {import("node:net").AddressInfo} */ (probe.address());
            probe.close(() => done(port));
        });
    });
}

async function request(/** @type {string} */ method, /** @type {string} */ path, /** @type {object} */ body = undefined) {
    const response = await fetch(base + path, { method, ...(body === undefined ? {} : { body: JSON.stringify(body) }) });
    const { value } = await response.json();
    assert.ok(response.ok, `${method} ${path}: ${value?.error}: ${value?.message}`);
    return value;
}

async function until(/** @type {() => Promise<boolean>} */ isTrue, /** @type {string} */ what) {
    for (let tries = 0; tries < 300; ++tries) {
        if (await isTrue().catch(() => false)) {
            return;
        }
        await new Promise((done) => setTimeout(done, 100));
    }
    assert.fail(`waited 30 s for ${what}`);
}

before(async () => {
    if (skip) {
        return;
    }
    const port = await freePort();
    base = `http://127.0.0.1:${port}`;
    // A group of processes of its own, which ends as a whole.
    server = spawn("xvfb-run", ["-a", driver, `--port=${port}`], { detached: true, stdio: "ignore" });
    await until(async () => (await fetch(`${base}/status`)).ok, "the driver");
    const capabilities = { alwaysMatch: { "webkitgtk:browserOptions": { binary, args: ["--automation"] } } };
    const { sessionId } = await request("POST", "/session", { capabilities });
    session = `/session/${sessionId}`;
});

after(async () => {
    if (session !== undefined) {
        await request("DELETE", session);
    }
    if (server !== undefined) {
        process.kill(-server.pid);
    }
});

const run = (/** @type {string} */ script, /** @type {unknown[]} */ ...args) =>
    request("POST", `${session}/execute/sync`, { script, args });
const isThere = (/** @type {string} */ selector) =>
    until(() => run("return document.querySelector(arguments[0]) !== null", selector), selector);
const textOf = (/** @type {string} */ selector) => run("return document.querySelector(arguments[0]).textContent", selector);

async function find(/** @type {string} */ selector) {
    const found = await request("POST", `${session}/element`, { using: "css selector", value: selector });
    return `${session}/element/${Object.values(found)[0]}`;
}

// The page scrolls smoothly, and what still moves cannot be pressed.
async function click(/** @type {string} */ selector) {
    await run("document.querySelector(arguments[0]).scrollIntoView({ block: 'center', behavior: 'instant' })", selector);
    await request("POST", `${await find(selector)}/click`, {});
}

const typeInto = async (/** @type {string} */ selector, /** @type {string} */ text) =>
    request("POST", `${await find(selector)}/value`, { text });

// From one address of the page to another it goes on, without loading anew.
async function open(/** @type {string} */ hash, /** @type {string} */ heading, /** @type {string} */ which) {
    await request("POST", `${session}/url`, { url: address + hash });
    const isShown =
        "return document.querySelector('h1')?.textContent === arguments[0] && (document.querySelector('.which')?.textContent ?? '') === arguments[1]";
    await until(() => run(isShown, heading, which), `${heading}, ${which}`);
}

for (const { kind, title } of lesson.kinds()) {
    test(`${kind}: its first exercise, and a right answer`, { skip }, async () => {
        const exercise = lesson.exercise(1, 1, kind);
        await open(`#practice/1/1/${kind}`, "Exercise 1", `${title}, level\u00A0${exercise.level} · Paper\u00A01`);
        if (exercise.ask.choices === undefined) {
            await typeInto("#answer", exercise.key.text);
        } else {
            await click(`input[name=answer][value="${exercise.key.text}"]`);
        }
        await click("form button[type=submit]");
        await isThere(".mark[data-verdict=correct]");
        assert.equal(await run("return document.activeElement.textContent"), "Next");
    });
}

// The driver knows no command to print; what would be printed are these pages.
test("a sheet: its pages with their paper, nothing cut", { skip }, async () => {
    await open(
        "#sheet/4821/3*titration:3,2*dilution:3,3*molar-mass:3,2*ion-formula?versions=2&drawings=1&leaf=0&v=1",
        "Sheets to print",
        "",
    );
    await isThere(".size:not(:empty)");
    const pages = await run(
        "return [...document.querySelectorAll('.leaf')].map((leaf) => [leaf.querySelector('.running').textContent, leaf.scrollHeight <= leaf.clientHeight])",
    );
    assert.equal(await textOf(".size"), `10 exercises, 2 versions, ${pages.length} pages`);
    for (const [line, isWhole] of pages) {
        assert.match(line, /^(Paper 482[12], version [12]|Papers 4821 to 4822)Page \d of \d$/);
        assert.ok(isWhole, line);
    }
    assert.equal(await run("return document.querySelectorAll('.leaf li').length"), 40);
});

test("the tables, and the reason of a pair", { skip }, async () => {
    await open("#tables", "Tables", "");
    assert.ok((await run("return document.querySelectorAll('.periodic abbr').length")) > 100);
    await click(".solubility button");
    assert.match(await textOf(".reason"), /: (soluble|insoluble|not asked)\. \w/);
});
