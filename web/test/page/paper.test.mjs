// What stands on a sheet besides the exercises' own words: how many figures, the line for the answer, marks;
// and short questions beside each other.
import assert from "node:assert/strict";
import { after, test } from "node:test";
import { pagesOf, plain } from "./pdf.mjs";
import { isMade, leave, openChromium, openLesson, openMadeSheet, reload } from "./support.mjs";

/** @import { Line } from "./pdf.mjs" */
/** @import { Options } from "./support.mjs" */

const lesson = await openLesson();
const browser = await openChromium();
after(() => browser.close());

const openSheet = (/** @type {string} */ hash, options = {}) => openMadeSheet(browser, hash, options);

// The lines on paper of the sheet, and those of its key.
async function printed(/** @type {string} */ hash, /** @type {Options} */ options = {}) {
    const page = await openSheet(hash, options);
    const pages = pagesOf(await page.pdf({ preferCSSPageSize: true }));
    await leave(page);
    const isKey = (/** @type {Line[]} */ lines) => lines.some((line) => line.text.startsWith("Keyto"));
    const textsOf = (/** @type {Line[][]} */ some) => some.flat().map((line) => line.text);
    return { pages, sheet: textsOf(pages.filter((lines) => !isKey(lines))), key: textsOf(pages.filter(isKey)) };
}

// In millimetres, on the named page and around the page of the preview: above, right, below, left.
function margins(/** @type {string} */ name) {
    const rules = [...document.styleSheets].flatMap(({ cssRules }) => [...cssRules]);
    const { style } = rules.flatMap((rule) => (rule instanceof CSSPageRule && rule.selectorText === name ? [rule] : []))[0];
    const leaf = getComputedStyle(document.querySelector(".leaf"));
    const millimetre = Number.parseFloat(leaf.width) / Number(leaf.getPropertyValue("--across"));
    const sides = ["top", "right", "bottom", "left"];
    return {
        onPaper: sides.map((side) => Number.parseFloat(style.getPropertyValue(`margin-${side}`))),
        inPreview: sides.map((side) => Math.round((10 * Number.parseFloat(leaf.getPropertyValue(`padding-${side}`))) / millimetre) / 10),
    };
}

for (const [size, name] of [
    ["A4", "a4"],
    ["Letter", "letter"],
]) {
    test(`a page of ${size} has the margins of the preview, but for half a millimetre at the right`, async () => {
        const page = await openSheet(`#sheet/4821/2*ion-formula?size=${size}`);
        const { onPaper, inPreview } = await page.evaluate(margins, name);
        assert.deepEqual(onPaper, [15, 18, 15, 18]);
        assert.deepEqual(inPreview, [15, 18.5, 15, 18]);
        await leave(page);
    });
}

// Of each question: its own words, those above it that it shares, its line for the answer.
function questions() {
    const seen = (/** @type {Element | null} */ one) => {
        const copy = /** @type {Element} */ (one?.cloneNode(true));
        copy?.querySelectorAll(".spoken").forEach((spoken) => spoken.remove());
        return copy?.textContent.replace(/\s/g, "") ?? "";
    };
    return [...document.querySelectorAll(".leaf:not(:has(.of-key)) li")].map((item) => {
        const before = item.parentElement.previousElementSibling;
        return {
            own: seen(item.querySelector(".asks")),
            shared: before.matches(".frame") ? seen(before) : "",
            answer: seen(item.querySelector(".answer-line")),
        };
    });
}

async function questionsOf(/** @type {string} */ hash, /** @type {Options} */ options = {}) {
    const page = await openSheet(hash, options);
    const found = await page.evaluate(questions);
    await leave(page);
    return found;
}

function exercisesOf(/** @type {string} */ hash, /** @type {number} */ paper) {
    return hash
        .split("/")[2]
        .split("?")[0]
        .split(",")
        .flatMap((entry) => {
            const [count, kind] = entry.includes("*") ? entry.split("*") : [1, entry];
            return Array.from({ length: Number(count) }, (_, at) => lesson.exercise(paper, at + 1, kind));
        });
}

// As they are counted by hand: without the zeros in front.
const figuresIn = (/** @type {string} */ number) =>
    number
        .replace(/e.*/, "")
        .replace(/^[0.]+/, "")
        .replace(".", "").length;

const every =
    "2*molar-mass:1,6*molar-mass:3,5*compound-formula,5*ion-formula:3,5*solubility:1,2*solubility:3,2*concentration,2*dilution:3,2*neutralisation,2*titration:3";

test("where numbers want different figures, each question says how many its key has, and no other says any", async () => {
    const hash = `#sheet/4821/${every}?parts=sheet&v=1`;
    const found = await questionsOf(hash);
    exercisesOf(hash, 4821).forEach(({ ask, key }, at) => {
        const { own, shared } = found[at];
        const said = /\((\d)significantfigures\)/.exec(own + shared)?.[1];
        assert.equal(said, ask.form === "number" ? String(figuresIn(key.text.split(" ")[0])) : undefined, `${at + 1}. ${shared} ${own}`);
    });
});

test("where all numbers want the same figures, one line above says so", async () => {
    const { sheet } = await printed("#sheet/4821/2*titration,2*dilution,ion-formula?v=1");
    assert.equal(sheet.filter((line) => line.includes("significantfigures")).join(), "Giveeachnumericalanswerto3significantfigures.");
    const { sheet: one } = await printed("#sheet/4821/titration,ion-formula?v=1");
    assert.equal(one.filter((line) => line.includes("significantfigures")).length, 1);
    assert.ok(!one.some((line) => line.startsWith("Give")), "each, of one alone");
    const { sheet: none } = await printed("#sheet/4821/ion-formula,compound-formula?v=1");
    assert.doesNotMatch(none.join(), /significant/);
});

test("how many figures are wanted is on one line", async () => {
    for (const hash of ["#sheet/4821/molar-mass:1,9*titration:1?v=1", "#sheet/77/molar-mass:1,9*titration:1?size=Letter&v=1"]) {
        const { sheet } = await printed(hash);
        assert.deepEqual(
            sheet.filter((line) => /significant/.test(line) && !/\(\dsignificantfigures\)$/.test(line)),
            [],
            hash,
        );
        assert.equal(sheet.filter((line) => line.endsWith("significantfigures)")).length, 10, hash);
    }
});

test("the line above an equation is not a word alone", async () => {
    const { sheet } = await printed("#sheet/77/titration,titration:3,dilution,3*molar-mass:1?size=Letter&v=1");
    const above = sheet.filter((_, at) => /^\d*[A-Z].*→/.test(sheet[at + 1] ?? ""));
    assert.ok(above.length > 0 && above.every((line) => line.endsWith("equationis")), above.join("\n"));
});

// The steps in which the sign in front of a fraction is not on its line.
function partedSigns() {
    const texts = document.createTreeWalker(document.querySelector(".leaves"), NodeFilter.SHOW_TEXT);
    return [...document.querySelectorAll(".leaf .stacked")].flatMap((fraction) => {
        texts.currentNode = fraction;
        while (texts.previousNode().textContent.trim() === "");
        const text = /** @type {Text} */ (texts.currentNode);
        const end = text.data.trimEnd().length;
        const range = document.createRange();
        range.setStart(text, end - 1);
        range.setEnd(text, end);
        const isApart = range.getBoundingClientRect().right > fraction.getBoundingClientRect().left;
        return isApart && "=+×−".includes(text.data[end - 1]) ? [text.parentElement.closest(".step").textContent] : [];
    });
}

test("a sign in front of a fraction is on its line", async () => {
    const page = await openSheet("#sheet/31/20*titration:3,20*titration:2,20*dilution:3,20*concentration:3?parts=key&key=working&v=1");
    assert.ok((await page.locator(".leaf .stacked").count()) > 100);
    assert.deepEqual(await page.evaluate(partedSigns), []);
    await leave(page);
});

test("the room to write ends with a line for the answer, with its symbol and unit", async () => {
    const answers = async (/** @type {string} */ hash) => (await questionsOf(hash)).map(({ answer }) => answer);
    assert.deepEqual(await answers("#sheet/4821/titration,dilution:1,concentration,molar-mass:1,ion-formula,neutralisation?v=1"), [
        "c(HNO3)=mol/L",
        "c2(KOH)=mol/L",
        "m(KI)=g",
        "M(Li3N)=g/mol",
        "Answer:",
        "Answer:",
    ]);
    assert.deepEqual(await answers("#sheet/4821/titration,ion-formula?room=none&v=1"), ["", ""]);
});

test("the unit of the answer's line is the reader's", async () => {
    const setUp = () =>
        localStorage.setItem("chempractice.settings", JSON.stringify({ volume: "cm3", per: "power", decimal: ",", names: "british" }));
    const { sheet } = await printed("#sheet/4821/titration,dilution:3?v=1", { before: setUp });
    assert.ok(sheet.includes("c(HNO3)=moldm−3"), sheet.join("\n"));
    assert.ok(sheet.includes("V(H2O)=cm3"), sheet.join("\n"));
});

const numbered = (/** @type {Line[]} */ lines) => lines.filter((line) => /^\d+\.(?!\d)/.test(line.text));

test("thirty ions with a line for each are one page, and their numbers run across and then down", async () => {
    const page = await openSheet("#sheet/4821/10*ion-formula:1,10*ion-formula,10*ion-formula:3?v=1");
    const [lines, ...others] = pagesOf(await page.pdf({ preferCSSPageSize: true }));
    assert.ok(others.every((some) => numbered(some).length === 0 || some.some((line) => line.text.startsWith("Keyto"))));
    const items = numbered(lines);
    assert.deepEqual(
        items.map((line) => parseInt(line.text, 10)),
        Array.from({ length: 30 }, (_, at) => at + 1),
    );
    for (let at = 0; at < 30; at += 2) {
        const [left, right] = [items[at], items[at + 1]];
        assert.ok(left.top === right.top && left.right < 105 && right.left > 105, `${left.text} and ${right.text}`);
        assert.ok(at === 0 || left.top - items[at - 2].top > 8, `no room for a pen above ${left.text}`);
    }
    const gaps = await page
        .locator(".leaf .half .gap")
        .evaluateAll((all) =>
            all.map((gap) => (gap.getBoundingClientRect().width / document.querySelector(".leaf").getBoundingClientRect().width) * 210),
        );
    assert.equal(gaps.length, 30);
    assert.ok(Math.min(...gaps) > 20, `${Math.min(...gaps)} mm`);
    await leave(page);
});

test("what short questions share stands above them once, and again on a further page", async () => {
    const { pages } = await printed("#sheet/4821/70*compound-formula?parts=sheet&v=1");
    assert.equal(pages.length, 2);
    for (const lines of pages) {
        assert.equal(lines.filter((line) => line.text === "Exercises1to70:Writetheformulaof…").length, 1);
    }
    assert.deepEqual(
        pages.flatMap((lines) => numbered(lines)).map((line) => parseInt(line.text, 10)),
        Array.from({ length: 70 }, (_, at) => at + 1),
    );
});

test("one below the other, each question has all its words", async () => {
    const hash = `#sheet/4821/${every}?columns=one&v=1`;
    const found = await questionsOf(hash);
    exercisesOf(hash, 4821).forEach(({ prompt }, at) => {
        const said = plain(prompt.map((span) => Object.values(span)[0]).join("")).slice(0, 20);
        assert.ok(found[at].own.startsWith(said), `${found[at].own}: ${said}`);
        assert.equal(found[at].shared, "");
    });
    const { pages } = await printed(hash);
    assert.deepEqual([...new Set(numbered(pages.flat()).map((line) => line.left > 60))], [false]);
});

// "SO4^2-" and "->" with the signs that are printed.
const onPaper = (/** @type {string} */ text) => plain(text).replace("->", "→").replaceAll("^", "").replace(/-/g, "−");

test("answers of one short line stand beside each other in the key, and a longer one has a line of its own", async () => {
    const hash = "#sheet/4821/3*ion-formula,6*neutralisation:1,3*titration?parts=key&v=1";
    const { pages } = await printed(hash);
    const items = exercisesOf(hash, 4821).map(({ key }, at) => {
        const found = pages.flat().find((line) => line.text.startsWith(`${at + 1}.`) && line.text.endsWith(onPaper(key.text)));
        return found ?? assert.fail(`${at + 1}. ${key.text} is not on one line`);
    });
    assert.ok(items[1].left > 105 && items[1].top === items[0].top);
    assert.ok(
        items.some((line) => line.left < 60 && line.right > 105),
        "no equation is longer than a column",
    );
    assert.ok(items.some((line) => line.left > 105));
});

// What a teacher gives: the equation, the mean, each amount, the result; not for converting or checking.
const worth = {
    "titration:3": 5,
    "titration": 3,
    "dilution:1": 2,
    "dilution:3": 3,
    "concentration:1": 2,
    "concentration": 3,
    "molar-mass": 1,
    "neutralisation:3": 2,
    "compound-formula": 1,
    "ion-formula": 1,
    "solubility:1": 1,
    "solubility:3": 1,
};

for (const [room, atOneMark] of /** @type {const} */ ([
    ["some", 3],
    ["much", 7],
    ["none", 0],
])) {
    test(`room to write, ${room}: ${room === "none" ? "no calculation has any" : "a calculation has a line more for each further mark"}`, async () => {
        const page = await openSheet(
            `#sheet/4821/molar-mass:1,concentration:1,concentration:3,dilution:2,titration:1,titration:3?parts=sheet&marks=1&room=${room}&v=1`,
        );
        const found = await page
            .locator(".leaf li")
            .evaluateAll((items) =>
                items.map((item) => [
                    parseInt(item.querySelector(".marks").textContent.replace("(", ""), 10),
                    item.querySelectorAll(".rule").length,
                ]),
            );
        await leave(page);
        assert.ok(new Set(found.map(([marks]) => marks)).size >= 4, `${found}`);
        for (const [marks, rules] of found) {
            assert.equal(rules, room === "none" ? 0 : atOneMark + marks - 1, `${marks} marks`);
        }
    });
}

test("a key of worked answers tells once how its lines are rounded, another key does not", async () => {
    const told = "Valuesareshownrounded;thenextlineusesthemunrounded.";
    const times = async (/** @type {string} */ kinds, /** @type {string} */ options) =>
        (await printed(`#sheet/4821/${kinds}?versions=2&${options}v=1`)).key.filter((line) => line === told).length;
    assert.equal(await times("2*titration:3", "key=working&"), 1);
    assert.equal(await times("2*titration:3", "key=working&keys=apart&"), 2, "of keys that are handed out apart, each");
    assert.equal(await times("2*titration:3", ""), 0);
    for (const kinds of ["2*ion-formula", "2*neutralisation:3", "2*molar-mass:3", "2*dilution:1"]) {
        assert.equal(await times(kinds, "key=working&"), 0, `${kinds}: nothing goes on`);
    }
});

test("where the masses come from a table, the key tells those that it has used", async () => {
    const told = async (/** @type {string} */ options) => {
        const { sheet, key } = await printed(`#sheet/4821/2*molar-mass,ion-formula?${options}v=1`);
        return [sheet, key].map((lines) => lines.filter((line) => /^Relativeatomicmasses:[A-Z][a-z]?\d/.test(line)));
    };
    const [onSheet, inKey] = await told("masses=table&");
    assert.equal(onSheet.length, 0);
    assert.equal(inKey.length, 1);
    assert.deepEqual(await told(""), [inKey, []], "else they stand on the sheet alone");
});

test("what of a worked line does not fit goes on further in", async () => {
    const page = await openSheet("#sheet/20417/2*concentration:3,2*titration:3?parts=key&key=working&v=1");
    const edges = await page.locator(".leaf .step > [aria-hidden]").evaluateAll((steps) =>
        steps.map((step) => {
            const text = [...step.childNodes].filter((node) => node.nodeType === Node.TEXT_NODE);
            const boxes = text.flatMap((node) => {
                const range = document.createRange();
                range.selectNodeContents(node);
                return [...range.getClientRects()];
            });
            const { left } = step.closest("li").getBoundingClientRect();
            const first = Math.min(...boxes.map((box) => box.top));
            return { begins: boxes[0].left - left, further: boxes.filter((box) => box.top > first + 15).map((box) => box.left - left) };
        }),
    );
    await leave(page);
    const further = edges.flatMap((edge) => edge.further);
    assert.ok(further.length > 0, "no line goes on");
    assert.ok(
        edges.every(({ begins }) => begins < 5),
        `the lines begin at ${edges.map(({ begins }) => begins)}`,
    );
    assert.ok(
        further.every((left) => left > 20),
        `they go on at ${further}`,
    );
});

test("marks stand behind each question and in the key, and their total above", async () => {
    const kinds = Object.keys(worth);
    const hash = `#sheet/4821/${kinds.join(",")}?marks=1&v=1`;
    const found = await questionsOf(hash);
    const expected = Object.values(worth);
    assert.deepEqual(
        found.map(({ own }) => /\((\d)marks?\)$/.exec(own)?.[0]),
        expected.map((marks) => (marks === 1 ? "(1mark)" : `(${marks}marks)`)),
    );
    const { sheet, key } = await printed(hash);
    assert.ok(sheet.includes("Total:25marks"), sheet.join("\n"));
    assert.ok(
        sheet.some((line) => line.startsWith("Name") && line.endsWith("Mark/25")),
        sheet.join("\n"),
    );
    assert.deepEqual(key.flatMap((line) => [...(/^\d+\..*\((\d)\)$/.exec(line) ?? [])].slice(1)).map(Number), expected);
});

test("questions with marks are in the letters of the others", async () => {
    const facesOf = async (/** @type {string} */ hash) => {
        const page = await openSheet(hash);
        const faces = await page
            .locator(".leaf :is(.asks, .frame)")
            .evaluateAll((all) =>
                all.map((one) => getComputedStyle(one)).map(({ fontFamily, fontSize, color }) => `${fontFamily} ${fontSize} ${color}`),
            );
        await leave(page);
        return faces;
    };
    const hash = "#sheet/4821/4*ion-formula,titration?v=1";
    const [plainly, marked] = [await facesOf(hash), await facesOf(hash.replace("?", "?marks=1&"))];
    assert.equal(new Set(plainly).size, 1);
    assert.deepEqual(marked, plainly);
});

test("marks of questions with the same words stand behind those", async () => {
    const { sheet } = await printed("#sheet/4821/5*ion-formula?marks=1&v=1");
    assert.ok(sheet.includes("Exercises1to5:Writetheformulaofthe…ion,togetherwithitscharge.(1markeach)"), sheet.join("\n"));
    assert.ok(sheet.includes("Total:5marks"));
});

test("without the option no mark is spoken of", async () => {
    const { sheet, key } = await printed(`#sheet/4821/${every}?v=1`);
    assert.doesNotMatch([...sheet, ...key].join("\n"), /[Mm]ark|Total/);
});

test("what is chosen of it in the form stands in the address, and is there again", async () => {
    const page = await openSheet("#sheet/4821/5*ion-formula,molar-mass?v=1");
    await page.getByLabel("Relative atomic masses").selectOption("Use the table");
    await page.getByLabel("Short questions").selectOption("One below the other");
    await page.getByLabel("Marks for each question and in all").check();
    await page.getByLabel("Start the key on a new leaf").uncheck();
    await page.waitForFunction(() => location.hash.includes("leaf=0"));
    assert.equal(page.url().split("#")[1], "sheet/4821/5*ion-formula,molar-mass?masses=table&columns=one&marks=1&leaf=0&v=1");
    await reload(page);
    await isMade(page);
    assert.equal(await page.getByLabel("Short questions").inputValue(), "one");
    assert.ok(await page.getByLabel("Marks for each question and in all").isChecked());
    assert.ok(!(await page.getByLabel("Start the key on a new leaf").isChecked()));
    await leave(page);
});
