// The drawings say what the numbers say: the level in the burette, the titres, the volumes in the beakers.
import assert from "node:assert/strict";
import { after, test } from "node:test";
import { go, leave, openChromium, openLesson, openPage, panel } from "./support.mjs";

const lesson = await openLesson();
const browser = await openChromium();
after(() => browser.close());

const numbers = [1, 2, 3, 4, 5, 6];

// The volumes to two decimals that the question tells, in its order.
function titresOf(/** @type {import("../../src/types").Exercise} */ exercise) {
    const prompt = /** @type {{ number?: string, unit?: string }[]} */ (exercise.prompt);
    return prompt.filter((span, at) => /^\d+\.\d\d$/.test(span.number ?? "") && prompt[at + 1]?.unit === "mL").map(({ number }) => number);
}

// Where the liquid begins, going down the middle of the tube, measured on the first mark and the last;
// and on the same scale where the numbers stand.
function levelDrawn() {
    const shape = document.querySelector(".titration svg");
    shape.scrollIntoView({ block: "center", behavior: "instant" });
    /** @type {NodeListOf<SVGElement>} */ (shape.querySelectorAll(".glass")).forEach((one) =>
        one.style.setProperty("pointer-events", "none"),
    );
    /** @type {SVGGraphicsElement} */
    const marks = shape.querySelector(".marks");
    const { y, height } = marks.getBBox();
    const { d, f } = marks.getScreenCTM();
    const onScale = (/** @type {number} */ pixel) => (((pixel - f) / d - y) / height) * 50;
    const { left, right, top, bottom } = shape.querySelector(".burette .liquid").getBoundingClientRect();
    let pixel = top - 20;
    while (pixel < bottom && document.elementFromPoint((left + right) / 2, pixel)?.matches(".liquid") !== true) {
        pixel += 0.05;
    }
    const numbers = [...shape.querySelectorAll("text")].filter((one) => /^\d+$/.test(one.textContent));
    const placeOf = (/** @type {Element} */ one) => onScale((one.getBoundingClientRect().top + one.getBoundingClientRect().bottom) / 2);
    return { reading: onScale(pixel), numbers: numbers.map((one) => [Number(one.textContent), placeOf(one)]) };
}

for (const level of [1, 2, 3]) {
    test(`titration, level ${level}: the burette is filled down to its last titre, with 0 at the top`, async () => {
        const page = await openPage(browser, "", { viewport: { width: 1280, height: 900 } });
        for (const number of numbers) {
            const titre = titresOf(lesson.exercise(4821, number, `titration:${level}`)).at(-1);
            await page.goto(`${page.url().split("#")[0]}#practice/4821/${number}/titration:${level}`);
            await page.getByRole("heading", { name: `Exercise ${number}` }).waitFor();
            const { reading, numbers: scale } = await page.evaluate(levelDrawn);
            assert.ok(Math.abs(reading - Number(titre)) < 0.1, `exercise ${number}: drawn ${reading}, told ${titre}`);
            assert.deepEqual(
                scale.map(([ten]) => ten),
                [0, 10, 20, 30, 40, 50],
            );
            assert.ok(
                scale.every(([ten, place]) => Math.abs(place - ten) < 1.5),
                JSON.stringify(scale),
            );
            assert.equal(await page.locator(".titration .reading").textContent(), titre);
            assert.equal(
                await page.getByRole("figure").getByText("The burette was filled to 0").textContent(),
                `The burette was filled to 0 and now reads ${titre} millilitres.`,
            );
        }
        await leave(page);
    });
}

test("several titres are a table that begins with the rough one, and the burette shows the last", async () => {
    for (const number of numbers) {
        const titres = titresOf(lesson.exercise(4821, number, "titration:3"));
        const page = await openPage(browser, `#practice/4821/${number}/titration:3`);
        const table = page.getByRole("table", { name: "V in millilitres" });
        const names = titres.map((_, at) => (at === 0 ? "rough" : String(at)));
        assert.deepEqual(await table.getByRole("rowheader").allTextContents(), names, `exercise ${number}`);
        assert.deepEqual(await table.getByRole("cell").allTextContents(), titres, `exercise ${number}`);
        const tops = await table.getByRole("row").evaluateAll((rows) => rows.map((row) => row.getBoundingClientRect().top));
        assert.equal(new Set(tops).size, 1, "side by side");
        assert.ok(await page.getByText(`The burette is shown after titration ${titres.length - 1}.`).isVisible());
        await leave(page);
    }
});

test("titres are written with the reader's decimal sign and unit", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration:3");
    await panel(page, "How it is written").click();
    await page.getByLabel("Comma: 0,5").check();
    await page.getByLabel(/^cm³/).check();
    assert.equal(await page.locator(".titration .reading").textContent(), "12,10");
    assert.equal(await page.locator(".titration .scale").first().textContent(), "cm³");
    assert.deepEqual(await page.getByRole("table", { name: "V in cubic centimetres" }).getByRole("cell").allTextContents(), [
        "12,75",
        "12,20",
        "12,15",
        "12,10",
    ]);
    await leave(page);
});

// Boxes of the burette, the flask, and what is said of each.
function boxes() {
    const [burette, flask] = [".burette", ".flask"].map((one) => document.querySelector(`.titration ${one}`).getBoundingClientRect());
    const [first, second] = [...document.querySelectorAll(".titration .label")].map((one) => one.getBoundingClientRect());
    /** @type {SVGTextElement} */
    const text = document.querySelector(".titration .reading");
    return {
        shapes: flask.top - burette.bottom,
        labels: second.top - first.bottom,
        sideways: [first, second].every((label) => label.left >= burette.right || label.top >= flask.bottom),
        text: parseFloat(getComputedStyle(text).fontSize) * (text.getScreenCTM()?.a ?? 1),
    };
}

for (const width of [320, 360, 768, 1280]) {
    test(`burette and flask keep apart at ${width} pixels, and so do their labels`, async () => {
        for (const level of [1, 3]) {
            const page = await openPage(browser, `#practice/4821/3/titration:${level}`, { viewport: { width, height: 740 } });
            const { shapes, labels, sideways, text } = await page.evaluate(boxes);
            assert.ok(shapes >= 5, `level ${level}: ${shapes} pixels between the tip and the flask`);
            assert.ok(labels >= 10, `level ${level}: ${labels} pixels between the labels`);
            assert.ok(sideways, `level ${level}: a label covers the shapes`);
            assert.ok(text >= 11, `level ${level}: the reading is ${text} pixels high`);
            await leave(page);
        }
    });
}

for (const [width, height] of [
    [1366, 650],
    [1024, 768],
]) {
    test(`Check is in view on arrival at a titration in a window of ${width} by ${height}`, async () => {
        const page = await openPage(browser, "#practice/4821/9/molar-mass:1", {
            context: await browser.newContext({ viewport: { width, height } }),
        });
        for (const [level, number] of [1, 2, 3].flatMap((one) => numbers.map((other) => [one, other]))) {
            await go(page, `#practice/4821/${number}/titration:${level}`);
            await page.locator(".titration").waitFor();
            const { bottom } = await page.getByRole("button", { name: "Check" }).evaluate((one) => one.getBoundingClientRect().toJSON());
            assert.equal(await page.evaluate(() => scrollY), 0);
            assert.ok(bottom <= height, `exercise ${number}, level ${level}: ${bottom}`);
        }
        await leave(page);
    });
}

function areas() {
    return [.../** @type {NodeListOf<SVGGraphicsElement>} */ (document.querySelectorAll(".dilution .liquid"))].map((liquid) => {
        const { width, height } = liquid.getBBox();
        return width * height;
    });
}

// Levels 1 and 2 with both volumes given, level 2 with one sought, level 3 with the water sought.
test("beakers are to scale by area where both volumes are given, and else say that they are not", async () => {
    const seen = new Set();
    for (const [level, number] of [1, 2, 3].flatMap((one) => numbers.map((other) => [one, other]))) {
        const { given } = lesson.exercise(4821, number, `dilution:${level}`);
        const [first, second] = ["V1", "V2"].map(
            (name) => given.flatMap((one) => ("quantity" in one && one.quantity === name ? [one.value] : []))[0],
        );
        const isToScale = first !== undefined && second !== undefined;
        const page = await openPage(browser, `#practice/4821/${number}/dilution:${level}`);
        const [before, after] = await page.evaluate(areas);
        const what = `exercise ${number}, level ${level}: ${before} and ${after}`;
        assert.ok(isToScale ? Math.abs(after / before / (second / first) - 1) < 0.01 : after > before, what);
        assert.equal(
            await page.locator(".dilution figcaption").textContent(),
            isToScale ? "The areas of liquid are to scale." : "Not to scale.",
            what,
        );
        seen.add(isToScale);
        await leave(page);
    }
    assert.equal(seen.size, 2);
});

test("beakers that are not to scale look the same whatever is to be found", async () => {
    const looks = new Set();
    for (const number of numbers) {
        const page = await openPage(browser, `#practice/4821/${number}/dilution:3`);
        looks.add((await page.evaluate(areas)).join(" "));
        assert.ok(await page.getByRole("figure").getByText("V of H 2 O is to be found").count(), `exercise ${number}`);
        await leave(page);
    }
    assert.equal(looks.size, 1);
});

test("a sheet has the same drawings, and its burettes have the level of their titres", async () => {
    const page = await openPage(browser, "#sheet/4821/titration:1,titration:3,dilution:1?drawings=1&v=1");
    await page.locator(".leaf .titration").first().waitFor();
    await page.locator(".size:not(:empty)").waitFor();
    const readings = await page.locator(".leaf .titration .reading").allTextContents();
    assert.deepEqual(
        readings,
        ["titration:1", "titration:3"].map((kind) => titresOf(lesson.exercise(4821, 1, kind)).at(-1)),
    );
    assert.equal(await page.locator(".leaf .titres th").count(), titresOf(lesson.exercise(4821, 1, "titration:3")).length);
    assert.equal(await page.locator(".leaf .dilution .liquid").count(), 2);
    await leave(page);
});
