// Takes the README's pictures of the built page: node pictures.mjs FOLDER
import { join } from "node:path";
import { browsers, seen, serve, visit } from "./tests/page/site.mjs";

const folder = process.argv[2];
const site = await serve();
const browser = await browsers.chromium();
const kPhone = { viewport: { width: 338, height: 600 }, isMobile: true, hasTouch: true };

/** A picture of the page after `actions`, the same each time. */
async function take(name, options, actions) {
  const { page, context } = await visit(browser, site.address, { colorScheme: "dark", ...options });
  await page.evaluate(() => globalThis.starfolds.pause(true));
  await actions(page);
  await page.waitForLoadState("networkidle");
  await page.evaluate(() => document.getElementById("message").classList.remove("shown"));
  await page.waitForTimeout(1000); // what fades has faded
  await page.screenshot({ path: join(folder, name) });
  await context.close();
}

await take("web-settings.png", {}, async (page) => {
  const body = { kind: "profile", index: 18 };
  await page.evaluate((scene) => globalThis.starfolds.show(scene, 4), body);
  await seen(page, ({ lit }) => lit > 500, "the body");
  await page.keyboard.press("s");
  await page.locator("#tab-profile[aria-selected=true]").waitFor();
  await page.locator("#settings details").first().scrollIntoViewIfNeeded();
});
await take("web-gallery.png", kPhone, async (page) => {
  await page.keyboard.press("g");
  await page.locator("#gallery li").first().waitFor();
});

await browser.close();
await site.end();
