// The speed of the page, as medians of cold starts: each in a browser that has just been started.
//   node bench.mjs PRACTICE.HTML LESSON.WASM
import { readFileSync, writeFileSync } from "node:fs";
import { resolve } from "node:path";
import { pathToFileURL } from "node:url";
import { gzipSync } from "node:zlib";

const [page, lesson] = process.argv.slice(2).map((path) => resolve(path));
process.env.PAGE = page;
process.env.LESSON = lesson;
const { address, openChromium, openLesson, type } = await import("./test/page/support.mjs");

const starts = 10;
// A browser that has just been started is still busy with itself.
const settling = 1500;
const marksEach = 30;
const slowed = 6;
const classSets = 10;

const bytes = readFileSync(page);
const empty = resolve(page, "../empty.html");
writeFileSync(empty, emptyPage(bytes.length));

const median = (numbers) => {
    const sorted = [...numbers].sort((a, b) => a - b);
    return (sorted[(sorted.length - 1) >> 1] + sorted[sorted.length >> 1]) / 2;
};

// As large as the page, with a heading as the last thing and nothing to do.
function emptyPage(size) {
    const [before, behind] = ["<!doctype html><meta charset=utf-8><title>Empty</title><!--", "--><body><main><h1>Empty</h1></main>"];
    return before + "x".repeat(size - before.length - behind.length) + behind;
}

// From the start of the navigation until a heading is there and a frame with it has been made. Told by a
// message of the page: to ask it would run scripts in it meanwhile.
function tellWhenShown() {
    const shown = () => requestAnimationFrame(() => setTimeout(() => console.info(performance.now())));
    const watch = new MutationObserver(() => {
        if (document.querySelector("h1") !== null) {
            watch.disconnect();
            shown();
        }
    });
    watch.observe(document, { childList: true, subtree: true });
}

async function coldStart(url, slowness) {
    const browser = await openChromium();
    const tab = await browser.newPage();
    await tab.addInitScript(tellWhenShown);
    const client = await tab.context().newCDPSession(tab);
    await client.send("Emulation.setCPUThrottlingRate", { rate: slowness });
    await tab.waitForTimeout(settling);
    const [message] = await Promise.all([tab.waitForEvent("console"), tab.goto(url)]);
    await browser.close();
    return Number(message.text());
}

async function coldStarts(url, slowness = 1) {
    const times = [];
    for (let start = 0; start < starts; ++start) {
        times.push(await coldStart(url, slowness));
    }
    return times;
}

// From the press of Check until the page is laid out with the mark.
function markTime() {
    const form = document.querySelector(".exercise form");
    const from = performance.now();
    form.requestSubmit();
    document.body.getBoundingClientRect();
    return performance.now() - from;
}

async function marks(browser, kind, exercise) {
    const tab = await browser.newPage();
    await tab.goto(`${address}#practice/1/1/${kind}`);
    await type(tab, exercise.slips[0]?.text ?? exercise.key.text);
    const times = [];
    for (let mark = 0; mark < marksEach; ++mark) {
        times.push(await tab.evaluate(markTime));
    }
    await tab.close();
    return times;
}

async function allMarks() {
    const library = await openLesson();
    const browser = await openChromium();
    const byKind = [];
    for (const { kind } of library.kinds()) {
        byKind.push([kind, await marks(browser, kind, library.exercise(1, 1, kind))]);
    }
    await browser.close();
    return byKind;
}

// From the press of a link until all pages of a class set, 30 papers of 20 exercises and their keys, are
// there and laid out.
function classSetTime(hash) {
    return new Promise((done) => {
        const from = performance.now();
        const laidOut = () => {
            document.body.getBoundingClientRect();
            done(performance.now() - from);
        };
        const main = document.querySelector("main");
        const shown = new MutationObserver(() => {
            shown.disconnect();
            new MutationObserver(laidOut).observe(main.querySelector(".size"), { childList: true });
        });
        shown.observe(main, { childList: true });
        location.hash = hash;
    });
}

// Each in a tab of its own, so that nothing is compiled or laid out yet.
async function classSetTimes() {
    const browser = await openChromium();
    const times = [];
    for (let set = 0; set < classSets; ++set) {
        const tab = await browser.newPage();
        await tab.goto(`${address}#tables`);
        await tab.locator("h1").waitFor();
        await tab.waitForTimeout(settling);
        times.push(await tab.evaluate(classSetTime, `#sheet/${1 + 30 * set}/7*concentration,7*dilution,6*titration?versions=30`));
        await tab.close();
    }
    await browser.close();
    return times;
}

function line(what, value) {
    console.log(`${what.padEnd(46)} ${value.padStart(10)}`);
}

function timeLine(what, times) {
    const [least, most] = [Math.min(...times), Math.max(...times)];
    line(what, `${median(times).toFixed(1)} ms   (${least.toFixed(1)} to ${most.toFixed(1)})`);
}

const hash = "#practice/1/1/titration";
const emptyTimes = await coldStarts(pathToFileURL(empty).href);
const pageTimes = await coldStarts(address + hash);
const slowTimes = await coldStarts(address + hash, slowed);

line("practice.html", `${bytes.length} bytes`);
line("compressed by gzip", `${gzipSync(bytes, { level: 9 }).length} bytes`);
console.log(`\nMedians of ${starts} cold starts, least and most in brackets`);
timeLine("first exercise on the screen", pageTimes);
timeLine("an empty file of the same size", emptyTimes);
line("difference of the medians", `${(median(pageTimes) - median(emptyTimes)).toFixed(1)} ms`);
timeLine(`first exercise, processor slowed ${slowed} times`, slowTimes);
console.log(`\nA mark: medians of ${marksEach}`);
for (const [kind, times] of await allMarks()) {
    timeLine(kind, times);
}

timeLine(`\nA class set, 30 papers of 20 exercises with keys, median of ${classSets}`, await classSetTimes());
