// Narrow and zoomed windows, large text, forced colours, motion, paper.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { after, test } from "node:test";
import { press, states, verdicts } from "./states.mjs";
import { announced, leave, openChromium, opener, openPage } from "./support.mjs";

/** @import { Page } from "./support.mjs" */

const browser = await openChromium();
after(() => browser.close());

// A window 1280 pixels wide and 1024 high, at 400 %, has 320 by 256 left.
const windows = [
    { what: "at 320 pixels", viewport: { width: 320, height: 640 }, textSize: 1 },
    { what: "at 400 %", viewport: { width: 320, height: 256 }, textSize: 1 },
    { what: "with text twice as large", viewport: { width: 640, height: 800 }, textSize: 2 },
    { what: "with text twice as large on a phone", viewport: { width: 360, height: 740 }, textSize: 2 },
    { what: "with text twice as large at 320 pixels", viewport: { width: 320, height: 640 }, textSize: 2 },
];

// What sticks out of the window, but for what scrolls in a box of its own or is for the ear alone.
function sticksOut() {
    const ownBox = ".scrolling, .box, .leaves, .math, .preview, .spoken, .skip";
    const wide = [...document.querySelectorAll("body *")].filter((element) => {
        const { left, right } = element.getBoundingClientRect();
        return (
            element.parentElement.closest(ownBox) === null &&
            !element.matches(".spoken, .skip") &&
            element.checkVisibility() &&
            (right > innerWidth + 0.5 || left < -0.5)
        );
    });
    const page = document.documentElement;
    return [
        ...(page.scrollWidth > page.clientWidth ? [`the page is ${page.scrollWidth} wide`] : []),
        ...wide.slice(0, 5).map((element) => element.outerHTML.slice(0, 120)),
    ];
}

function cutOff() {
    return [...document.querySelectorAll("button, label, summary, legend, th, td, h1, h2, p")]
        .filter((element) => element.scrollWidth > element.clientWidth + 1 && getComputedStyle(element).overflowX !== "visible")
        .filter((element) => !element.matches(".math, .preview"))
        .map((element) => element.outerHTML.slice(0, 120));
}

// Words of a heading or a fact that go on in the next line.
function brokenWords() {
    const words = [...document.querySelectorAll("h1, h2, .facts :is(dt, dd)")]
        .filter((heading) => heading.checkVisibility())
        .flatMap((heading) => {
            const walker = document.createTreeWalker(heading, NodeFilter.SHOW_TEXT);
            /** @type {Text[]} */
            const texts = [];
            while (walker.nextNode()) {
                texts.push(/** @type {Text} */ (walker.currentNode));
            }
            return texts.flatMap((text) => [...text.data.matchAll(/[^\s]+/g)].map(({ 0: word, index }) => ({ text, word, index })));
        });
    return words
        .filter(({ text, word, index }) => {
            const range = document.createRange();
            range.setStart(text, index);
            range.setEnd(text, index + word.length);
            return new Set([...range.getClientRects()].map(({ top }) => Math.round(top))).size > 1;
        })
        .map(({ word }) => word);
}

async function withText(/** @type {Page} */ page, /** @type {number} */ times) {
    await page.evaluate((factor) => {
        const root = document.documentElement;
        root.style.fontSize = "";
        root.style.fontSize = `${parseFloat(getComputedStyle(root).fontSize) * factor}px`;
    }, times);
}

for (const [name, hash, reach] of states) {
    test(`${name}: nothing sticks out of a narrow window, nor is cut off`, async () => {
        const page = await openPage(browser, hash);
        await reach(page);
        for (const { what, viewport, textSize } of windows) {
            await page.setViewportSize(viewport);
            await withText(page, textSize);
            assert.deepEqual(await page.evaluate(sticksOut), [], what);
            assert.deepEqual(await page.evaluate(cutOff), [], what);
            assert.deepEqual(await page.evaluate(brokenWords), [], what);
        }
        await leave(page);
    });
}

test("what is wider than a narrow window scrolls in its own box, which the Tab key reaches", async () => {
    const page = await openPage(browser, "#tables", { viewport: { width: 320, height: 640 } });
    for (const name of ["Relative atomic masses", "Solubility in water"]) {
        const box = page.getByRole("region", { name });
        assert.equal(await box.evaluate((element) => element.scrollWidth > element.clientWidth && element.tabIndex === 0), true, name);
    }
    await leave(page);
});

test("the field is on the screen when it is zoomed to 400 % and has the focus", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration:3", {
        viewport: { width: 320, height: 256 },
        reducedMotion: "reduce",
    });
    await page.locator("#answer").focus();
    const { top, bottom } = await page.locator("#answer").evaluate((field) => field.getBoundingClientRect().toJSON());
    assert.ok(top >= 0 && bottom <= 256, `from ${top} to ${bottom}`);
    await leave(page);
});

// Half of the window is what a tablet's or a phone's keyboard leaves.
for (const [what, viewport] of /** @type {const} */ ([
    ["a tablet, upright", { width: 768, height: 1024 }],
    ["a tablet", { width: 1024, height: 768 }],
    ["a phone", { width: 360, height: 640 }],
])) {
    test(`the field, its preview and Check stay in view while the keyboard of ${what} is open, and so does the mark`, async () => {
        for (const [kind, typed] of [
            ["titration:3", "7.7e-7"],
            ["neutralisation:3", "H2SO4 + NaOH -> Na2SO4 + H2O"],
            ["ion-formula:3", "SO4^3-"],
        ]) {
            const page = await openPage(browser, `#practice/4821/3/${kind}`, { viewport, reducedMotion: "reduce" });
            await page.locator("#answer").focus();
            await page.setViewportSize({ ...viewport, height: viewport.height / 2 });
            await page.keyboard.type(typed);
            await isInView(page, ["#answer", ".preview", ".exercise form > button"]);
            await page.keyboard.press("Enter");
            await isInView(page, viewport.width < 500 ? [".mark"] : ["#answer", ".mark"]);
            await leave(page);
        }
    });
}

// The first character of each line of an equation, and whether it shares its first and last line with other text.
function equationLines() {
    const equation = document.querySelector(".prompt .equation");
    /** @type {{ sign: string, top: number, isOf: boolean }[]} */
    const characters = [];
    const walker = document.createTreeWalker(document.querySelector(".prompt > [aria-hidden]"), NodeFilter.SHOW_TEXT);
    while (walker.nextNode()) {
        const text = /** @type {Text} */ (walker.currentNode);
        const isLow = text.parentElement.matches("sub, sup");
        for (let at = 0; at < text.data.length && !isLow; ++at) {
            const range = document.createRange();
            range.setStart(text, at);
            range.setEnd(text, at + 1);
            const { top, width } = range.getBoundingClientRect();
            if (text.data[at].trim() !== "" && width > 0) {
                characters.push({ sign: text.data[at], top: Math.round(top), isOf: equation.contains(text) });
            }
        }
    }
    const tops = [...new Set(characters.filter(({ isOf }) => isOf).map(({ top }) => top))];
    return {
        lines: tops.length,
        firsts: tops.map((top) => characters.find((one) => one.top === top).sign),
        shared: characters.filter(({ top, isOf }) => tops.includes(top) && !isOf).length,
    };
}

for (const [width, textSize, most] of [
    [1280, 1, 1],
    [768, 1, 1],
    [360, 1, 2],
    [320, 1, 2],
    [320, 2, 6],
]) {
    test(`an equation in a question has its own lines, which begin with no sign, ${width} pixels wide, text ${textSize} times as large`, async () => {
        for (const kind of ["titration:1", "titration:2"]) {
            for (const number of [1, 2, 3, 4, 5, 6]) {
                const page = await openPage(browser, `#practice/4821/${number}/${kind}`, { viewport: { width, height: 740 } });
                await withText(page, textSize);
                const { lines, firsts, shared } = await page.evaluate(equationLines);
                const where = `${kind}, exercise ${number}: ${firsts}`;
                assert.ok(lines >= 1 && lines <= most, where);
                assert.equal(shared, 0, where);
                assert.ok(
                    firsts.every((sign) => /[A-Z0-9(]/.test(sign)),
                    where,
                );
                await leave(page);
            }
        }
    });
}

// "Another like exercise 4" is wider by itself than a window of 360 pixels.
const headings = [
    ["Exercise 4", "#practice/4821/4/titration:2"],
    ["Exercise 12", "#practice/4821/12/titration:2"],
    ["Exercise 10 of 20", "#practice/4821/10/neutralisation:2?set=20"],
];

for (const [name, hash] of [...headings, ["Another like exercise 4", "#practice/4821/500004/titration:2?back=4:titration:2"]]) {
    test(`${name}: the heading is on one line on a phone, and the choice below it covers nothing`, async () => {
        for (const width of [320, 360, 390, 412, 520, 576, 580]) {
            const page = await openPage(browser, hash, { viewport: { width, height: 740 } });
            const heading = page.getByRole("heading", { level: 1, name, exact: true });
            const lines = await heading.evaluate(
                (one) => one.getBoundingClientRect().height / parseFloat(getComputedStyle(one).lineHeight),
            );
            assert.ok(lines < (name.startsWith("Another") && width <= 360 ? 2.5 : 1.5), `${width} pixels: ${lines} lines`);
            const [kind, choose] = await Promise.all([page.locator(".which").boundingBox(), opener(page).boundingBox()]);
            const isApart = choose.x >= kind.x + kind.width || choose.y >= kind.y + kind.height || choose.y + choose.height <= kind.y;
            assert.ok(isApart, `${width} pixels: ${JSON.stringify({ kind, choose })}`);
            await leave(page);
        }
    });
}

test("a molar mass in brackets is not broken on a phone", async () => {
    for (const width of [320, 340, 360, 400]) {
        for (const number of [1, 2, 3, 4]) {
            const page = await openPage(browser, `#practice/4821/${number}/concentration:1`, { viewport: { width, height: 740 } });
            const mass = page.locator(".together");
            assert.match(await mass.innerText(), /^\(M\s=\s[\d.]+\sg\/mol\)/);
            const { height, line } = await mass.evaluate((one) => ({
                height: one.getBoundingClientRect().height,
                line: parseFloat(getComputedStyle(one).lineHeight),
            }));
            assert.ok(height < 1.5 * line, `${width} pixels, exercise ${number}: ${height} high`);
            await leave(page);
        }
    }
});

const phone = { viewport: { width: 360, height: 740 }, hasTouch: true, isMobile: true, reducedMotion: /** @type {const} */ ("reduce") };
const keyboard = 300; // pixels, of a usual one on a phone
const openOnPhone = (/** @type {string} */ hash) => openPage(browser, hash, phone);
const withKeyboard = (/** @type {Page} */ page) => page.setViewportSize({ ...phone.viewport, height: phone.viewport.height - keyboard });
const nothingFocused = (/** @type {Page} */ page) => page.evaluate(() => document.activeElement === document.body && scrollY === 0);

test("on a phone nothing has the focus on arrival, by any way, and the question is in view", async () => {
    const page = await openOnPhone("#practice/4821/3/titration:3");
    assert.equal(await nothingFocused(page), true, "by the address");
    const ways = [
        ["Next", "Exercise 4"],
        ["Another like this", "Another like exercise 4"],
        ["Back to exercise 4", "Exercise 4"],
    ];
    for (const [name, heading] of ways) {
        await press(page, name);
        await page.getByRole("heading", { level: 1, name: heading, exact: true }).waitFor();
        assert.equal(await nothingFocused(page), true, name);
        await isInView(page, ["h1"]);
        assert.equal(await announced(page), heading);
    }
    await opener(page).tap();
    await page.getByRole("button", { name: "Start", exact: true }).tap();
    await page.getByRole("heading", { level: 1, name: "Exercise 1", exact: true }).waitFor();
    assert.equal(await nothingFocused(page), true, "Start");
    await leave(page);
});

// The bottom of the question's last line; the field's top and bottom; of Check.
function placesInView() {
    const prompt = document.querySelector(".prompt > [aria-hidden]") ?? document.querySelector(".prompt");
    const range = document.createRange();
    range.selectNodeContents(prompt);
    const line = [...range.getClientRects()].pop();
    const edges = (/** @type {string} */ selector) => {
        const { top, bottom } = document.querySelector(selector).getBoundingClientRect();
        return { top, bottom };
    };
    const seen = window.visualViewport;
    return {
        line: { top: line.top, bottom: line.bottom },
        field: edges("#answer"),
        preview: edges(".preview"),
        check: edges(".exercise form > button"),
        from: seen.offsetTop,
        to: seen.offsetTop + seen.height,
    };
}

for (const [kind, typed] of [
    ["titration:3", "2e-2"],
    ["titration:1", "2e-2"],
    ["dilution:2", "2e-2"],
    ["concentration:3", "2e-2"],
    ["molar-mass:3", "2e-2"],
    ["compound-formula:3", "CaSO4"],
    ["ion-formula:3", "SO4^2-"],
    ["solubility:3", "CaSO4"],
    ["neutralisation:3", "CaSO4 -> H2O"],
]) {
    test(`${kind}, on a phone: where the field is tapped, it and Check are in view above the keyboard, and the question's last line`, async () => {
        for (const order of ["focus, then keyboard", "keyboard, then focus"]) {
            const page = await openOnPhone(`#practice/4821/3/${kind}`);
            const [first, second] = order.startsWith("focus")
                ? [() => page.locator("#answer").tap(), () => withKeyboard(page)]
                : [() => withKeyboard(page), () => page.locator("#answer").focus()];
            await first();
            await second();
            await page.waitForTimeout(100);
            for (const step of [order, "typed"]) {
                const { line, field, preview, check, from, to } = await page.evaluate(placesInView);
                const where = `${step}: ${JSON.stringify({ line, field, check, from, to })}`;
                assert.ok(field.top >= from && check.bottom <= to, where);
                assert.ok(step !== "typed" || (preview.top >= field.bottom && preview.bottom <= check.top), where);
                assert.ok(line.top >= from, `the question, ${where}`);
                await page.locator("#answer").fill(typed);
                await page.waitForTimeout(100);
            }
            await leave(page);
        }
    });
}

for (const [device, viewport] of /** @type {const} */ ([
    ["a phone", { width: 360, height: 740 }],
    ["a tablet", { width: 1024, height: 700 }],
])) {
    test(`on ${device} the drawing is ${device === "a phone" ? "below" : "beside"} the field`, async () => {
        for (const kind of ["titration:3", "dilution:2"]) {
            const page = await openPage(browser, `#practice/4821/3/${kind}`, { viewport, hasTouch: true, isMobile: true });
            const [form, drawing] = await Promise.all([".exercise form", ".drawing"].map((one) => page.locator(one).boundingBox()));
            const [isBelow, isBeside] = [
                drawing.y >= form.y + form.height,
                drawing.x >= form.x + form.width && drawing.y < form.y + form.height,
            ];
            assert.deepEqual([isBelow, isBeside], device === "a phone" ? [true, false] : [false, true], JSON.stringify({ form, drawing }));
            await leave(page);
        }
    });
}

for (const kind of ["titration:3", "dilution:2", "neutralisation:3", "ion-formula:3", "titration:3?set=5"]) {
    test(`${kind}, on a phone: the mark stays in view where the keyboard comes up again behind Check`, async () => {
        const page = await openOnPhone(`#practice/4821/3/${kind}`);
        await page.locator("#answer").tap();
        await withKeyboard(page);
        await page.keyboard.type("777");
        await page.setViewportSize(phone.viewport);
        await press(page, "Check");
        await page.locator(".mark").waitFor();
        await withKeyboard(page);
        await isInView(page, ["#answer", ".mark"]);
        await leave(page);
    });
}

test("on a phone, behind a right answer the field, the mark and Next are in view together, above the keyboard too", async () => {
    const page = await openOnPhone("#practice/4821/3/titration:3");
    await withKeyboard(page);
    await page.locator("#answer").fill(verdicts.correct);
    await press(page, "Check");
    await page.locator(".mark").waitFor();
    await isInView(page, ["#answer", ".mark", ".go-on"]);
    await leave(page);
});

async function isInView(/** @type {Page} */ page, /** @type {string[]} */ selectors) {
    for (const selector of selectors) {
        const seen = page.locator(selector);
        await seen.waitFor();
        await page.waitForFunction((one) => {
            const { top, bottom } = document.querySelector(one).getBoundingClientRect();
            const { offsetTop, height } = window.visualViewport;
            return top >= offsetTop && bottom <= offsetTop + height;
        }, selector);
    }
}

test("each step of a solution is brought into view, and in the end its beginning", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration:3", {
        viewport: { width: 360, height: 640 },
        reducedMotion: "reduce",
    });
    await press(page, "Show a step");
    await isInView(page, [".solution"]);
    await press(page, "Show the answer");
    await isInView(page, [".solution h2"]);
    await leave(page);
});

test("the heads of the tables stay where the rest is scrolled", async () => {
    const page = await openPage(browser, "#tables", { viewport: { width: 360, height: 640 } });
    const corner = (/** @type {string} */ selector) => page.locator(selector).evaluate((one) => one.getBoundingClientRect().toJSON());
    for (const [name, head] of [
        ["Relative atomic masses", ".periodic tbody tr:nth-child(4) th"],
        ["Solubility in water", ".solubility tbody tr:nth-child(9) th"],
    ]) {
        const box = page.getByRole("region", { name });
        const { left } = await corner(head);
        await box.evaluate((one) => one.scrollTo(200, 0));
        assert.equal(await box.evaluate((one) => one.scrollLeft), 200, name);
        assert.ok(Math.abs((await corner(head)).left - left) <= 1, name);
    }
    const names = ".solubility thead th:nth-child(5)";
    const { top } = await corner(names);
    await page.getByRole("region", { name: "Solubility in water" }).evaluate((one) => one.scrollTo(200, 150));
    assert.ok(Math.abs((await corner(names)).top - top) <= 1);
    await leave(page);
});

// 44 pixels are a fingertip; and a field with smaller text than 16 is zoomed into by Safari on a phone.
test("what is pressed on a phone is as large as a fingertip", async () => {
    for (const kind of ["compound-formula:3", "ion-formula:3", "neutralisation:3", "solubility:3", "titration:3"]) {
        const page = await openPage(browser, `#practice/4821/3/${kind}`, {
            viewport: { width: 360, height: 740 },
            hasTouch: true,
            isMobile: true,
        });
        const small = await page
            .locator(".top a:visible, main button:visible, main input:visible")
            .evaluateAll((/** @type {HTMLElement[]} */ all) =>
                all
                    .filter((one) => one.offsetWidth < 44 || one.offsetHeight < 44)
                    .map((one) => `${one.outerHTML.slice(0, 80)} ${one.offsetWidth} × ${one.offsetHeight}`),
            );
        assert.deepEqual(small, [], kind);
        assert.ok((await page.locator("#answer").evaluate((field) => parseFloat(getComputedStyle(field).fontSize))) >= 16, kind);
        await leave(page);
    }
});

test("each choice is as high as a fingertip, the words beside it included", async () => {
    const page = await openPage(browser, "#practice/4821/3/solubility:1", { viewport: { width: 360, height: 740 }, hasTouch: true });
    const heights = await page
        .locator("label.word:visible")
        .evaluateAll((/** @type {HTMLElement[]} */ all) => all.map((one) => one.offsetHeight));
    assert.equal(heights.length, 2);
    assert.deepEqual(
        heights.filter((height) => height < 44),
        [],
    );
    await leave(page);
});

const forced = { forcedColors: /** @type {const} */ ("active") };

for (const colorScheme of /** @type {const} */ (["light", "dark"])) {
    test(`in forced colours, ${colorScheme}, what matters is drawn in the system's text colour`, async () => {
        const page = await openPage(browser, "#practice/4821/3/titration:3", { ...forced, colorScheme });
        await page.locator("#answer").fill("777");
        await press(page, "Check");
        await press(page, "Show the answer");
        await page.locator(".over").first().waitFor();
        const drawn = await page.evaluate(() => {
            const probe = document.createElement("i");
            document.body.append(probe);
            probe.style.color = "CanvasText";
            const text = getComputedStyle(probe).color;
            probe.style.color = "ButtonText";
            const buttonText = getComputedStyle(probe).color;
            probe.remove();
            const style = (/** @type {string} */ selector) => getComputedStyle(document.querySelector(selector));
            return {
                glass: style(".glass").stroke === text,
                mark:
                    style(".mark").borderInlineStartColor !== style("body").backgroundColor &&
                    style(".mark").borderInlineStartStyle !== "none",
                fraction: [...document.querySelectorAll(".over")].every((over) => getComputedStyle(over).borderBlockEndColor === text),
                button: parseFloat(style("form button").borderTopWidth) >= 1 && style("form button").color === buttonText,
                field: parseFloat(style("#answer").borderTopWidth) >= 1,
            };
        });
        assert.deepEqual(drawn, { glass: true, mark: true, fraction: true, button: true, field: true });
        await leave(page);
    });
}

test("nothing moves where less motion is wished", async () => {
    const page = await openPage(browser, "#practice/4821/3/titration:3", { reducedMotion: "reduce" });
    await press(page, "Show the answer");
    const moving = await page.evaluate(() => ({
        scrolling: getComputedStyle(document.documentElement).scrollBehavior,
        animations: document.getAnimations().length,
        transitions: [...document.querySelectorAll("*")].filter((one) => getComputedStyle(one).transitionDuration !== "0s").length,
    }));
    assert.deepEqual(moving, { scrolling: "auto", animations: 0, transitions: 0 });
    await leave(page);
});

// The lightest text and the darkest background on paper, each from 0, black, to 255, white.
function onPaper() {
    const shade = (/** @type {string} */ colour) => {
        const [red, green, blue, alpha = 1] = colour.match(/[\d.]+/g).map(Number);
        return alpha === 0 ? 255 : Math.round((red + green + blue) / 3);
    };
    const seen = [.../** @type {NodeListOf<HTMLElement>} */ (document.querySelectorAll("html, body, main, main *"))].filter(
        (one) => one.getClientRects().length > 0,
    );
    return {
        text: Math.max(...seen.filter((one) => one.innerText?.trim()).map((one) => shade(getComputedStyle(one).color))),
        background: Math.min(...seen.map((one) => shade(getComputedStyle(one).backgroundColor))),
    };
}

for (const [name, hash, reach] of states.filter(([name]) => /titration:3|correct|summary|tables|reason/.test(name))) {
    test(`${name}: from a dark screen it prints dark on white`, async () => {
        const page = await openPage(browser, hash, { colorScheme: "dark" });
        await reach(page);
        await page.emulateMedia({ media: "print", colorScheme: "dark" });
        const { text, background } = await page.evaluate(onPaper);
        assert.ok(text <= 0x33, `text of ${text}`);
        assert.ok(background >= 0xe0, `background of ${background}`);
        await leave(page);
    });
}

test("a printed summary has the paper, when, how long, each exercise and the total, and no button", async () => {
    const [, hash, reach] = states.find(([name]) => name === "a summary");
    const page = await openPage(browser, hash);
    await reach(page);
    const text = execFileSync("pdftotext", ["-layout", "-", "-"], { input: await page.pdf({ format: "A4" }), encoding: "utf8" });
    assert.match(text, /Summary of paper 4821/);
    assert.match(text, /Begun +\d+ \w+ \d{4}, \d\d:\d\d/);
    assert.match(text, /Time worked +less than a minute/);
    assert.match(text, /Total +0 of 5 solved, none at the first try/);
    assert.deepEqual(
        text.match(/(?<=Exercise \d +Molar mass, level 1 +)\d +.*$/gm)?.map((line) => line.replace(/ +/g, " ")),
        ["0 shown", "1 not solved", "0 not solved", "0 not solved", "0 not solved"],
        text,
    );
    assert.doesNotMatch(text, /Print|Save|New set|Skip|Clear|Copy|link/);
    await leave(page);
});
