// What stands beside and below each other: nothing touches, and rows begin at one edge.
import assert from "node:assert/strict";
import { after, test } from "node:test";
import { states } from "./states.mjs";
import { leave, openChromium, openPage } from "./support.mjs";

/** @import { Page } from "./support.mjs" */

const browser = await openChromium();
after(() => browser.close());

// Controls with less than 4 pixels between them and what stands above them.
function touching() {
    const isSeen = (/** @type {Element} */ one) =>
        one.checkVisibility() && one.closest(".spoken, .leaf, .solubility, .overview") === null && one.getClientRects().length > 0;
    const seen = (/** @type {string} */ selector) => [...document.querySelectorAll(`main ${selector}`)].filter(isSeen);
    const others = ["p", "table", "ul", "ol", "dl", "button", "input", "select", "summary", "h1", "h2"].flatMap(seen);
    const gap = (/** @type {Element} */ one, /** @type {Element} */ other) => {
        const [below, above] = [one.getBoundingClientRect(), other.getBoundingClientRect()];
        const isAbove = above.bottom < below.top + below.height / 2 && above.left < below.right && above.right > below.left;
        return isAbove ? below.top - above.bottom : Infinity;
    };
    return ["button", "input[type=text]", "select"]
        .flatMap(seen)
        .flatMap((one) =>
            others
                .filter((other) => other !== one && !one.contains(other) && gap(one, other) < 4)
                .map((other) => `${one.outerHTML.slice(0, 60)} below ${other.outerHTML.slice(0, 60)}: ${gap(one, other)}`),
        );
}

for (const [name, hash, reach] of states.filter(([name]) => /record|sets|link|summary|side road|choice|verdict/.test(name))) {
    test(`${name}: nothing that is pressed touches what stands above it`, async () => {
        for (const width of [360, 768]) {
            const page = await openPage(browser, hash, { viewport: { width, height: 800 } });
            await reach(page);
            assert.deepEqual(await page.evaluate(touching), [], `${width} pixels wide`);
            await leave(page);
        }
    });
}

const box = (/** @type {Page} */ page, /** @type {string} */ name) => page.getByRole("button", { name, exact: true }).boundingBox();

for (const kind of ["titration:3", "dilution:1", "molar-mass:3"]) {
    test(`${kind}: beside a drawing too, the two buttons that help are in one row`, async () => {
        for (const width of [768, 1280]) {
            const page = await openPage(browser, `#practice/4821/3/${kind}`, { viewport: { width, height: 800 } });
            const [step, answer] = [await box(page, "Show a step"), await box(page, "Show the answer")];
            assert.equal(step.y, answer.y, `${width} pixels wide`);
            await leave(page);
        }
    });
}

test("what leads aside begins where the lines begin, in a row of its own", async () => {
    const page = await openPage(browser, "#practice/4821/500004/titration:2?back=4:mixed", { viewport: { width: 360, height: 800 } });
    const [back, aside] = [await box(page, "Back to exercise 4"), await box(page, "Another like this")];
    const begins = await page.getByRole("button", { name: "Another like this" }).evaluate((one) => {
        const range = document.createRange();
        range.selectNodeContents(one);
        return range.getBoundingClientRect().left;
    });
    assert.ok(aside.y > back.y + back.height, "it is in a row of its own");
    assert.ok(Math.abs(begins - back.x) <= 2, `${begins} and ${back.x}`);
    await leave(page);
});

test("the signs of charges stand in the middle of their keys", async () => {
    const page = await openPage(browser, "#practice/4821/3/ion-formula:3");
    const off = await page.locator(".keys button").evaluateAll((keys) =>
        keys.map((key) => {
            const range = document.createRange();
            range.selectNodeContents(key.querySelector("sup") ?? key);
            const [text, whole] = [range.getBoundingClientRect(), key.getBoundingClientRect()];
            return Math.abs((text.top + text.bottom - whole.top - whole.bottom) / 2);
        }),
    );
    assert.ok(off.length === 6 && off.every((distance) => distance <= 2), off.join(", "));
    await leave(page);
});

test("no date of a set that is kept is broken", async () => {
    const [, hash, reach] = states.find(([name]) => name === "the sets on the device");
    const page = await openPage(browser, hash, { viewport: { width: 360, height: 800 } });
    await reach(page);
    const lines = await page
        .locator(".kept-sets .hint")
        .first()
        .evaluate((hint) => {
            const walker = document.createTreeWalker(hint, NodeFilter.SHOW_TEXT);
            while (walker.nextNode()) {
                const found = /\d+ \w+ \d{4}, \d\d:\d\d/.exec(walker.currentNode.textContent);
                if (found !== null) {
                    const range = document.createRange();
                    range.setStart(walker.currentNode, found.index);
                    range.setEnd(walker.currentNode, found.index + found[0].length);
                    return range.getClientRects().length;
                }
            }
            return 0;
        });
    assert.equal(lines, 1);
    await leave(page);
});

// Where each dot begins, from the edge of the lines.
function dots(/** @type {Element} */ hint) {
    const walker = document.createTreeWalker(hint, NodeFilter.SHOW_TEXT);
    const begins = [];
    while (walker.nextNode()) {
        for (const { index } of walker.currentNode.textContent.matchAll(/·/g)) {
            const range = document.createRange();
            range.setStart(walker.currentNode, index);
            range.setEnd(walker.currentNode, index + 1);
            begins.push(range.getBoundingClientRect().left - hint.getBoundingClientRect().left);
        }
    }
    return begins;
}

test("no line of a kept set's facts begins with the dot that parts them", async () => {
    const [, hash, reach] = states.find(([name]) => name === "the sets on the device");
    const page = await openPage(browser, hash, { viewport: { width: 360, height: 800 } });
    await reach(page);
    for (let width = 250; width <= 450; width += 2) {
        await page.setViewportSize({ width, height: 800 });
        const begins = await page.locator(".kept-sets .hint").first().evaluate(dots);
        assert.ok(begins.length === 2 && begins.every((left) => left > 20), `${width} pixels wide: ${begins}`);
    }
    await leave(page);
});

test("the name of each fact of a summary is one line, and the fact begins beside it", async () => {
    const [, hash, reach] = states.find(([name]) => name === "a summary");
    for (const width of [360, 768]) {
        const page = await openPage(browser, hash, { viewport: { width, height: 800 } });
        await reach(page);
        const places = await page.locator(".facts :is(dt, dd)").evaluateAll((all) =>
            all.map((one) => {
                const range = document.createRange();
                range.selectNodeContents(one);
                return { lines: range.getClientRects().length, top: one.getBoundingClientRect().top };
            }),
        );
        for (let at = 0; at < places.length; at += 2) {
            assert.equal(places[at].lines, 1, `name ${at / 2}, ${width} pixels wide`);
            assert.ok(Math.abs(places[at].top - places[at + 1].top) < 4, `fact ${at / 2}, ${width} pixels wide`);
        }
        await leave(page);
    }
});

for (const colorScheme of /** @type {const} */ (["light", "dark"])) {
    test(`the periodic table is shaded where it goes on behind the edge, ${colorScheme}`, async () => {
        const page = await openPage(browser, "#tables", { viewport: { width: 360, height: 800 }, colorScheme });
        const box = page.locator(".scrolling").first();
        await box.waitFor();
        const { x, y, width } = await box.boundingBox();
        // Between the numbers of the groups and hydrogen nothing else is drawn.
        const clip = { x: x + width - 3, y: y + 35, width: 2, height: 4 };
        const edge = () => page.screenshot({ clip });
        const atBeginning = await edge();
        const plain = await page.screenshot({ clip: { ...clip, x: x + width / 2 } });
        assert.notDeepEqual(atBeginning, plain, "no shade at the beginning");
        await box.evaluate((one) => (one.scrollLeft = 40));
        assert.notDeepEqual(await edge(), plain, "no shade on the way");
        await leave(page);
    });
}

for (const name of ["the verdict correct", "the solution of dilution:1"]) {
    test(`${name}: what leads aside keeps its distance from Next`, async () => {
        const [, hash, reach] = states.find(([one]) => one === name);
        const page = await openPage(browser, hash, { viewport: { width: 360, height: 800 } });
        await reach(page);
        // Both at once, since the solution may still be scrolled into view.
        const [next, aside] = await page
            .locator(".go-on button")
            .evaluateAll((all) => all.map((one) => one.getBoundingClientRect().toJSON()));
        assert.equal(next.top, aside.top);
        assert.ok(aside.left - next.right >= 12, `${aside.left} and ${next.right}`);
        await leave(page);
    });
}
