// What a visitor does with the built page, in Debian's Chromium and Firefox.
import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { after, before, describe, test } from "node:test";
import { deflateRawSync, gzipSync } from "node:zlib";
import axe from "axe-core";
import {
  browsers,
  firstStars,
  kPatience,
  look,
  moves,
  nextDownload,
  seen,
  serve,
  until,
  visit,
} from "./site.mjs";

const template = (name) => new URL(`../../../templates/${name}.sfd`, import.meta.url);
/** A universe that is the same at each visit: the pixels of a frame can be compared. */
const kSeed = 7;

/** Runs a function of the page's engine. */
const engine = (page, method, ...parameters) =>
  page.evaluate(
    ([name, values]) => globalThis.starfolds.engine[name](...values),
    [method, parameters],
  );

/** The text that the page tells the visitor. */
const told = (page, text) => page.getByRole("status").filter({ hasText: text }).first().waitFor();

/** Shows body `index` and pauses at a frame, so that its pixels can be compared. */
async function stillOfBody(page, index) {
  await page.evaluate(
    async ([body, seed]) => {
      const app = globalThis.starfolds;
      app.pause(true);
      await app.show({ kind: "profile", index: body }, seed);
    },
    [index, kSeed],
  );
  // The canvas on the page may show a former frame for a moment.
  const still = await look(page, "picture");
  assert.ok(still.lit > 100, "a body");
  const { frame } = await engine(page, "hash");
  const view = await seen(page, ({ hash }) => hash === still.hash, "the still picture of a body");
  return { ...view, frame };
}

/** The still picture after a change of the body. Frames on the way to it are shown, too. */
async function stillAfter(page, former) {
  const end = Date.now() + kPatience;
  let last = former;
  while (Date.now() < end) {
    const { frame } = await engine(page, "hash");
    const still = await look(page, "picture");
    if (frame === former.frame && still.hash !== former.hash && still.hash === last.hash) {
      return seen(page, ({ hash }) => hash === still.hash, "the still picture after a change");
    }
    last = still;
    await page.waitForTimeout(100);
  }
  return assert.fail("the change is not seen");
}

async function chooseTab(page, tab) {
  await page.locator(`#tab-${tab}`).click();
  await page.locator(`#tab-${tab}[aria-selected=true]`).waitFor();
}

/** Waits until the gallery's search has left so many. */
const leftInGallery = (page, count) =>
  until(
    page,
    (wanted) => document.querySelectorAll("#gallery li:not([hidden])").length === wanted,
    count,
  );

const numberOf = (page, name) => page.locator(`[data-name="${name}"] input[type=number]`);

async function dropFile(page, name, bytes) {
  await page.evaluate(
    ([fileName, contents]) => {
      const transfer = new DataTransfer();
      transfer.items.add(new File([new Uint8Array(contents)], fileName));
      const event = { dataTransfer: transfer, bubbles: true, cancelable: true };
      document.body.dispatchEvent(new DragEvent("drop", event));
    },
    [name, [...bytes]],
  );
}

/** All visits with one browser, by its name. */
export function visits(name) {
  describe(name, () => {
    let browser;
    let site;
    before(async () => {
      site = await serve();
      browser = await browsers[name]();
    });
    after(async () => {
      await browser.close();
      await site.end();
    });

    /** Gives `actions` a new visitor's page, and finds no fault reported by the browser. */
    const visitor = (what, actions, fragment = "", options = {}) =>
      test(what, async () => {
        const { page, context, faults } = await visit(browser, site.address + fragment, options);
        try {
          await actions(page, faults);
          assert.deepEqual(faults, []);
        } finally {
          await context.close();
        }
      });

    visitor("a first visit shows moving stars, of at most 400 KB", async (page) => {
      const first = await look(page);
      assert.deepEqual([first.width, first.height], [960, 600]);
      await seen(page, ({ hash }) => hash !== first.hash, "stars that move");
      let bytes = 0;
      for (const file of new Set(site.asked)) {
        const response = await fetch(site.address + file);
        if (/\.(webp|sfd)$/.test(file) || !response.ok) continue;
        bytes += gzipSync(Buffer.from(await response.arrayBuffer())).length;
      }
      assert.ok(bytes > 50_000 && bytes <= 400_000, `${bytes} bytes`);
    });

    visitor("the gallery shows everything, finds, shows live and makes it mine", async (page) => {
      await page.keyboard.press("g");
      const tiles = page.locator("#gallery li");
      await tiles.first().waitFor();
      assert.equal(await tiles.count(), 134);
      await until(page, () => document.querySelector("#gallery img").naturalWidth === 384);
      await page.fill("#gallery-search", "fern ouse");
      await leftInGallery(page, 0);
      await page.fill("#gallery-search", "hous FERN");
      await leftInGallery(page, 1);
      await page.getByRole("button", { name: "Fern house" }).click();
      await page.locator("#visit-name").filter({ hasText: "Fern house" }).waitFor();
      await firstStars(page);
      assert.equal(await engine(page, "get", "Universe_Stars"), "14000");

      await page.getByRole("button", { name: "Back" }).click();
      await until(page, () => !globalThis.starfolds.visiting);
      assert.equal(await engine(page, "get", "Universe_Stars"), "5000");

      await page.getByRole("button", { name: "Fern house" }).click();
      await page.getByRole("button", { name: "Make it mine" }).click();
      await numberOf(page, "Universe_Stars").waitFor();
      assert.equal(await numberOf(page, "Universe_Stars").inputValue(), "14000");
      await page.locator("#undo").click();
      await until(
        page,
        async () => (await globalThis.starfolds.engine.get("Universe_Stars")) === "5000",
      );
    });

    visitor("a composite of the second set is taken with its members", async (page) => {
      await page.keyboard.press("g");
      const tile = page.locator("#gallery section").last().locator("li button").first();
      const title = await tile.locator("strong").textContent();
      await tile.click();
      await page.locator("#visit-name").filter({ hasText: title }).waitFor();
      const members = await engine(page, "values", "composite:0");
      const major = `Starfold${members.CompFold_Type0}/Starfold_Radius`;
      const radius = await engine(page, "get", major);
      const other = await engine(page, "names");
      await page.getByRole("button", { name: "Make it mine" }).click();
      await page.locator("#tab-composite[aria-selected=true]").waitFor();
      assert.deepEqual(await engine(page, "values", "composite:0"), members);
      assert.equal(await engine(page, "get", major), radius);
      const names = await engine(page, "names");
      const kept = names.profiles.filter((profile, at) => profile !== other.profiles[at]);
      assert.ok(kept.length > 30, "the other bodies stay as they were");
      await page.locator("#bar-next", { hasText: "My universe" }).click();
      await page.locator("#bar-next", { hasText: "Next universe" }).waitFor();
    });

    visitor(
      "a changed setting is seen, undone, reset, and kept for the next visit",
      async (page) => {
        const factory = await engine(page, "link", {});
        const before = await stillOfBody(page, 0);
        await page.keyboard.press("s");
        const radius = numberOf(page, "Starfold0/Starfold_Radius");
        await radius.fill("120");
        await radius.press("Enter");
        const after = await stillAfter(page, before);
        assert.ok(after.lit > 100);
        await page.locator("#undo").click();
        await seen(page, ({ hash }) => hash === before.hash, "the radius as before");
        await page.locator("#redo").click();
        await seen(page, ({ hash }) => hash === after.hash, "the radius again");

        await page.locator('[data-name="Starfold0/Starfold_Radius"] .reset').click();
        await seen(page, ({ hash }) => hash === before.hash, "the radius as it came");
        await page.locator("#redo:disabled").waitFor();

        await page.locator("#tab-advanced").click();
        await numberOf(page, "Adv_TimeDelay").fill("25");
        await numberOf(page, "Adv_TimeDelay").press("Enter");
        await until(page, async () => {
          const { engine } = globalThis.starfolds;
          const isSet = (await engine.get("Adv_TimeDelay")) === "25";
          return isSet && localStorage.getItem("starfolds.mine") === (await engine.link({}));
        });
        await page.reload();
        await firstStars(page);
        await until(page, () => "starfolds" in globalThis);
        assert.equal(await engine(page, "get", "Adv_TimeDelay"), "25");

        // Somebody's link is shown instead; undo leads back.
        const delayIs = (value) =>
          until(
            page,
            async (wanted) => (await globalThis.starfolds.engine.get("Adv_TimeDelay")) === wanted,
            value,
          );
        await page.evaluate((fragment) => (location.hash = fragment), factory);
        await delayIs("40");
        await page.keyboard.press("s");
        await page.locator("#undo").click();
        await delayIs("25");
      },
    );

    visitor("rows of the settings depend on the style; a surprise can be undone", async (page) => {
      await page.keyboard.press("s");
      await chooseTab(page, "profile");
      assert.equal(await numberOf(page, "Starfold0/Starfold_StdLevels").count(), 1);
      await page.selectOption("#list-style", "4");
      await numberOf(page, "Starfold0/Starfold_CP_Points").waitFor();
      assert.equal(await numberOf(page, "Starfold0/Starfold_StdLevels").count(), 0);
      const values = await engine(page, "values", "profile:0");
      await page.getByRole("button", { name: "Surprise me" }).click();
      await page.locator('#undo[title="Undo: a surprise"]').waitFor();
      assert.notDeepEqual(await engine(page, "values", "profile:0"), values);
      await page.locator("#undo").click();
      await page.locator('#redo[title="Redo: a surprise"]').waitFor();
      assert.deepEqual(await engine(page, "values", "profile:0"), values);
    });

    visitor("a template is dropped and saved byte for byte; others are refused", async (page) => {
      const file = await readFile(template("molecule-garden"));
      await dropFile(page, "molecule-garden.sfd", file);
      await told(page, "This is molecule-garden.sfd.");
      await page.keyboard.press("d");
      await page.getByRole("button", { name: "Save a template" }).click();
      assert.deepEqual(await nextDownload(page), file);
      await dropFile(page, "film.sfd", Buffer.alloc(3000, 0xff));
      await told(page, "film.sfd: ");
      await page.getByRole("button", { name: "Save a template" }).click();
      assert.deepEqual(await nextDownload(page), file);
    });

    visitor("pictures and clips are saved", async (page) => {
      await page.keyboard.press("d");
      await page.getByRole("button", { name: "Save the picture" }).click();
      const png = await nextDownload(page);
      assert.equal(png.subarray(1, 4).toString(), "PNG");
      assert.deepEqual([png.readUInt32BE(16), png.readUInt32BE(20)], [960, 600]);
      await page.getByRole("button", { name: "Record a clip" }).click();
      await until(page, () => document.getElementById("clip-bar").value > 0.05);
      await page.getByRole("button", { name: "Stop and save" }).click();
      await told(page, "The clip is saved.");
      const clip = await nextDownload(page);
      const isWebm = clip.readUInt32BE(0) === 0x1a45dfa3;
      assert.ok(isWebm || clip.subarray(4, 8).toString() === "ftyp");
      assert.ok(clip.length > 10_000, `${clip.length} bytes`);
    });

    visitor("the surface follows the window, and rests in the background", async (page) => {
      await page.setViewportSize({ width: 500, height: 700 });
      const view = await seen(page, ({ width, lit }) => width === 500 && lit > 100, "resized");
      assert.equal(view.height, 700);
      const show = (hidden) =>
        page.evaluate((isHidden) => {
          Object.defineProperty(document, "hidden", { value: isHidden, configurable: true });
          const state = isHidden ? "hidden" : "visible";
          Object.defineProperty(document, "visibilityState", { value: state, configurable: true });
          document.dispatchEvent(new Event("visibilitychange"));
        }, hidden);
      await show(true);
      await page.waitForTimeout(500); // a frame that is being drawn
      const { frames } = await engine(page, "stats");
      await page.waitForTimeout(500);
      assert.equal((await engine(page, "stats")).frames, frames);
      await show(false);
      await moves(page);
    });

    visitor("all of it can be reached by keyboard", async (page) => {
      const focused = (selector) =>
        until(page, (wanted) => document.activeElement?.matches(wanted), selector);
      await page.keyboard.press("Tab");
      await focused("#bar-pause");
      await page.keyboard.press("Space");
      await page.locator("#bar-pause", { hasText: "Play" }).waitFor();
      await page.keyboard.press("Space");
      await page.keyboard.press("g");
      await page.locator("#gallery li").first().waitFor();
      await page.keyboard.press("Tab");
      await focused("#gallery-search");
      await page.keyboard.type("star rings");
      await leftInGallery(page, 1);
      const isOnTile = () => document.activeElement.matches(".tile");
      for (let presses = 0; presses < 15 && !(await page.evaluate(isOnTile)); ++presses) {
        await page.keyboard.press("Tab");
      }
      await focused(".tile");
      await page.keyboard.press("Enter");
      await page.locator("#visit-name").filter({ hasText: "Star Rings" }).waitFor();
      await page.keyboard.press("Escape");
      await page.locator("#gallery").waitFor();
      await page.keyboard.press("Escape");
      await page.locator("#gallery").waitFor({ state: "hidden" });

      await page.keyboard.press("s");
      const stars = numberOf(page, "Universe_Stars");
      await page.locator('[data-name="Universe_Stars"] input[type=range]').focus();
      await page.keyboard.press("ArrowRight");
      await until(
        page,
        async () => Number(await globalThis.starfolds.engine.get("Universe_Stars")) > 5000,
      );
      assert.ok(Number(await stars.inputValue()) > 5000);
      await page.keyboard.press("Control+z");
      await page.locator("#undo:disabled").waitFor();
      await until(
        page,
        async () => (await globalThis.starfolds.engine.get("Universe_Stars")) === "5000",
      );
      await focused('[data-name="Universe_Stars"] input[type=range]');
      await page.keyboard.press("Escape");
      await page.locator("#settings").waitFor({ state: "hidden" });
      for (const [key, panel] of [
        ["d", "save"],
        ["l", "share"],
        ["h", "help"],
      ]) {
        await page.keyboard.press(key);
        await focused(`#${panel}-title`);
        await page.keyboard.press("Escape");
      }
      await page.keyboard.press("h");
      await page.uncheck("#single-keys");
      await page.keyboard.press("Escape");
      await page.keyboard.press("g");
      assert.ok(await page.locator("#gallery").isHidden());
    });

    for (const colorScheme of ["dark", "light"]) {
      // All that depends on the scheme is the contrast.
      const rules = colorScheme === "light" ? { runOnly: ["color-contrast"] } : {};
      const find = async (page) => {
        // As a part of the page it would be refused by the content security policy.
        await page.evaluate(axe.source);
        const states = ["g", "s", "d", "l", "h", ""];
        for (const key of states) {
          if (key === "") await page.keyboard.press("Space");
          else await page.keyboard.press(key);
          if (key === "g") await page.locator("#gallery li").first().waitFor();
          if (key === "s") await chooseTab(page, "profile");
          const { violations } = await page.evaluate(
            (options) => globalThis.axe.run(options),
            rules,
          );
          const found = violations.map(({ id, nodes }) => `${id}: ${nodes[0].html}`);
          assert.deepEqual(found, [], `panel of "${key}"`);
          if (key !== "") await page.keyboard.press("Escape");
        }
      };
      visitor(`axe-core finds nothing (${colorScheme})`, find, "", { colorScheme });
    }

    visitor("hostile links are refused, and a universe is shown", async (page, faults) => {
      const bomb = deflateRawSync(Buffer.alloc(50_000_000)).toString("base64url");
      const noise = Buffer.from(Array.from({ length: 400 }, (_, at) => (at * 37) % 251));
      const links = [
        "%",
        "x",
        "A".repeat(200_000),
        noise.toString("base64url"),
        bomb,
        "a&seed=1e99",
      ];
      for (const link of links) {
        await page.evaluate((fragment) => {
          document.getElementById("message").textContent = "";
          location.hash = fragment;
        }, link);
        await told(page, "This link cannot be opened");
      }
      await moves(page);
      assert.deepEqual(faults, []);
      await page.reload();
      await firstStars(page);
    });

    test("less motion: a still until asked", async () => {
      const still =
        name === "firefox" ? await browsers.firefox({ "ui.prefersReducedMotion": 1 }) : browser;
      const { page, context } = await visit(still, site.address, { reducedMotion: "reduce" });
      try {
        const before = await engine(page, "hash");
        assert.ok(before.frame > 1);
        await page.waitForTimeout(500);
        assert.deepEqual(await engine(page, "hash"), before);
        await page.locator("#bar-pause").press("Enter");
        await moves(page);
      } finally {
        await context.close();
        if (still !== browser) await still.close();
      }
    });

    test("without a network the page opens again", async () => {
      const own = await serve();
      const { page, context } = await visit(browser, own.address);
      try {
        const { groups } = await (await fetch(`${own.address}gallery/index.json`)).json();
        const templates = groups[0].items.length;
        const files = groups.flatMap(({ items }) => items).length + templates;
        await until(
          page,
          async (wanted) => {
            const later = (await caches.keys()).find((key) => key.endsWith(" later"));
            const kept = later ? await (await caches.open(later)).keys() : [];
            return navigator.serviceWorker.controller !== null && kept.length === wanted;
          },
          files,
        );
        await own.end();
        await page.reload();
        await firstStars(page);
        await moves(page);
        await page.keyboard.press("g");
        await page.getByRole("button", { name: "One lotus" }).click();
        await page.locator("#visit-name").filter({ hasText: "One lotus" }).waitFor();
      } finally {
        await context.close();
      }
    });
  });
}
