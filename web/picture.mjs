// The pictures of the README: an exercise with a mark and the beginning of its solution; a sheet beside
// its key.
//   node picture.mjs PRACTICE.HTML PRACTICE.PNG SHEET.PNG
import { pathToFileURL } from "node:url";
import { chromium } from "playwright-core";

const [page, practice, sheet] = process.argv.slice(2);
const browser = await chromium.launch({ executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium", args: ["--no-sandbox"] });
const tab = await browser.newPage({ viewport: { width: 720, height: 900 }, colorScheme: "light" });
await tab.goto(`${pathToFileURL(page).href}#practice/4821/3/titration`);
await tab.getByLabel("Your answer").fill("0.251");
await tab.keyboard.press("Enter");
await tab.locator(".mark").waitFor();
for (let press = 0; press < 3; ++press) {
    await tab.getByRole("button", { name: "Show a step" }).click();
}
await tab.mouse.move(0, 0);
await tab.locator("body").evaluate((body) => body.querySelector("aside").remove());
await tab.locator("body").screenshot({ path: practice });

await tab.setViewportSize({ width: 1300, height: 900 });
await tab.goto("about:blank");
await tab.goto(
    `${pathToFileURL(page).href}#sheet/4821/molar-mass:3,concentration:1,dilution:1,neutralisation:3,titration?key=working&drawings=1&room=none&leaf=0`,
);
await tab.locator(".size:not(:empty)").waitFor();
// The two pages alone, side by side.
await tab.evaluate(() => {
    /** @type {NodeListOf<HTMLElement>} */
    const others = document.querySelectorAll("header, .sheets, .outcome > :not(.leaves)");
    others.forEach((one) => (one.hidden = true));
    /** @type {HTMLElement} */
    const box = document.querySelector(".leaves");
    box.style.setProperty("--mm", "0.75mm");
    Object.assign(box.style, {
        display: "flex",
        gap: "1.5rem",
        position: "absolute",
        insetBlockStart: "0",
        insetInlineStart: "0",
        marginInlineStart: "0",
        inlineSize: "auto",
        padding: "1px",
    });
});
await tab.waitForTimeout(200);
const { width } = await tab.locator(".leaves").boundingBox();
await tab.screenshot({ path: sheet, clip: { x: 0, y: 0, width, height: 674 } });
await browser.close();
