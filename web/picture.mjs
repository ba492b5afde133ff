// The picture of the README: an exercise with a mark and the beginning of its solution.
//   node picture.mjs PRACTICE.HTML PICTURE.PNG
import { pathToFileURL } from "node:url";
import { chromium } from "playwright-core";

const [page, picture] = process.argv.slice(2);
const browser = await chromium.launch({ executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium", args: ["--no-sandbox"] });
const tab = await browser.newPage({ viewport: { width: 720, height: 900 }, colorScheme: "light" });
await tab.goto(`${pathToFileURL(page).href}#practice/4821/3/titration`);
await tab.getByLabel("Your answer").fill("0.251");
await tab.keyboard.press("Enter");
await tab.locator(".mark").waitFor();
for (let press = 0; press < 3; ++press) {
    await tab.getByRole("button", { name: "Show a step" }).click();
}
await tab.locator("body").evaluate((body) => body.querySelector("aside").remove());
await tab.locator("body").screenshot({ path: picture });
await browser.close();
