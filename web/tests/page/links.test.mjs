// Links are the same universe in every browser.
import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";
import { browsers, look, serve, until, visit } from "./site.mjs";

const engine = (page, method, ...values) =>
  page.evaluate(([name, given]) => globalThis.starfolds.engine[name](...given), [method, values]);

let site;
before(async () => {
  site = await serve();
});
after(() => site.end());

describe("links from browser to browser", () => {
  for (const [from, to] of [
    ["chromium", "firefox"],
    ["firefox", "chromium"],
  ]) {
    test(`made in ${from}, opened in ${to}`, async () => {
      const [sender, receiver] = [await browsers[from](), await browsers[to]()];
      try {
        const sent = await visit(sender, site.address);
        await engine(sent.page, "set", "Universe_Stars", "3000");
        await sent.page.keyboard.press("l");
        await sent.page.getByLabel("In the size of this window").check();
        await until(sent.page, () => document.getElementById("share-link").value !== "");
        const link = await sent.page.locator("#share-link").inputValue();
        assert.ok(link.startsWith(`${site.address}#`) && link.length < 400, link);

        // A window of another size: the link brings its own.
        const viewport = { width: 700, height: 500 };
        const opened = await visit(receiver, link, { viewport });
        const frame = 900;
        assert.deepEqual(
          await engine(opened.page, "runUntil", frame),
          await engine(sent.page, "runUntil", frame),
        );
        const [there, here] = [await look(opened.page), await look(sent.page)];
        assert.deepEqual(there, here);
        assert.deepEqual([here.width, here.height], [960, 600]);
      } finally {
        await sender.close();
        await receiver.close();
      }
    });
  }
});
