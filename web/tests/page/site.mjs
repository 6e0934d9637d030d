// What the tests of the page share: the built page on a server, browsers, and a visitor's view of it.
import assert from "node:assert/strict";
import { fileURLToPath } from "node:url";
import { chromium, firefox } from "playwright-core";

import { folderServer } from "../../serve.mjs";

const folder =
  process.env.STARFOLDS_SITE ?? fileURLToPath(new URL("../../../build/web", import.meta.url));
/** The page works below any path. */
const path = "/some where/below/";
/** Generous: the machine may do other things too. */
export const kPatience = 30_000;

/** The server: its address, the files that were asked for, and how to end it. */
export async function serve() {
  const asked = [];
  const server = folderServer(folder, path, (name) => asked.push(name));
  await new Promise((done) => server.listen(0, "127.0.0.1", done));
  const end = () =>
    new Promise((done) => {
      server.close(done);
      server.closeAllConnections();
    });
  return { address: `http://127.0.0.1:${server.address().port}${encodeURI(path)}`, asked, end };
}

/** Debian's browsers. Its Firefox is driven by WebDriver BiDi: Playwright's own needs a patched one. */
export const browsers = {
  chromium: () =>
    chromium.launch({
      executablePath: "/usr/bin/chromium",
      // Tests run as root, where its sandbox does not start; and on machines without a GPU.
      args: ["--no-sandbox", "--disable-gpu"],
    }),
  firefox: (prefs = {}) =>
    firefox.launch({
      executablePath: "/usr/bin/firefox-esr",
      channel: "moz-firefox",
      firefoxUserPrefs: prefs,
    }),
};

/**
 * Opens the page as a new visitor and waits for its first stars. `faults` collects what browsers
 * report: errors, refused resources, requests to other hosts.
 */
export async function visit(browser, address, options = {}) {
  const context = await browser.newContext({ viewport: { width: 960, height: 600 }, ...options });
  const page = await context.newPage();
  page.setDefaultTimeout(kPatience);
  const faults = [];
  page.on("pageerror", (error) => faults.push(error.message));
  page.on("console", (line) => {
    if (line.type() === "error") faults.push(line.text());
  });
  page.on("request", (request) => {
    const { protocol, host } = new URL(request.url());
    if (/^https?:$/.test(protocol) && host !== new URL(address).host) faults.push(request.url());
  });
  await page.addInitScript(keepDownloads);
  await page.goto(address);
  await firstStars(page);
  return { page, context, faults };
}

/** Downloads are kept on the page too: not every browser hands them to its driver. */
function keepDownloads() {
  const create = URL.createObjectURL;
  globalThis.downloads = [];
  URL.createObjectURL = (blob) => {
    globalThis.downloads.push(blob);
    return create.call(URL, blob);
  };
}

/**
 * Waits until the function is true on the page. It may be asynchronous: waitForFunction takes every
 * promise for true.
 */
export async function until(page, isTrue, argument) {
  const end = Date.now() + kPatience;
  for (;;) {
    const result = await page.evaluate(isTrue, argument);
    if (result) return result;
    if (Date.now() > end) return assert.fail(`never true: ${isTrue}`);
    await page.waitForTimeout(50);
  }
}

/** The bytes of the next file that the page offers as a download. */
export async function nextDownload(page) {
  const address = await until(page, async () => {
    const blob = globalThis.downloads.shift();
    if (!blob) return undefined;
    const reader = new FileReader();
    await new Promise((done) => {
      reader.onload = done;
      reader.readAsDataURL(blob);
    });
    return reader.result;
  });
  return Buffer.from(address.slice(address.indexOf(",") + 1), "base64");
}

/**
 * What is on the canvas, or in the worker ("picture"), where it is never late: its size, the number
 * of pixels that are not black, and the hash of all pixels.
 */
export async function look(page, source = "canvas") {
  return page.evaluate(async (from) => {
    const sky =
      from === "canvas"
        ? document.getElementById("sky")
        : await createImageBitmap(await globalThis.starfolds.engine.picture());
    const { width, height } = await createImageBitmap(sky);
    const copy = new OffscreenCanvas(width, height);
    const context = copy.getContext("2d");
    context.drawImage(sky, 0, 0);
    const words = new Uint32Array(context.getImageData(0, 0, width, height).data.buffer);
    let lit = 0;
    let hash = 0;
    for (const word of words) {
      if ((word & 0xffffff) !== 0) ++lit;
      hash = (Math.imul(hash, 31) + word) | 0;
    }
    return { width, height, lit, hash };
  }, source);
}

/** Waits until what `look` sees satisfies `isMeant`, and returns it. */
export async function seen(page, isMeant, what) {
  const end = Date.now() + kPatience;
  let view;
  do {
    view = await look(page);
    if (isMeant(view)) return view;
    await page.waitForTimeout(100);
  } while (Date.now() < end);
  return assert.fail(`${what}: the canvas shows ${JSON.stringify(view)}`);
}

export async function firstStars(page) {
  await page.waitForSelector("body.ready");
  return seen(page, ({ lit }) => lit > 100, "first stars");
}

/** Waits until the engine has shown more frames than it had. */
export async function moves(page) {
  const { frames } = await page.evaluate(() => globalThis.starfolds.engine.stats());
  await until(
    page,
    async (before) => (await globalThis.starfolds.engine.stats()).frames > before,
    frames,
  );
}
