// The parts of the page that need no browser.
import assert from "node:assert/strict";
import { test } from "node:test";
import { fileURLToPath } from "node:url";
import { build } from "esbuild";

/** The exports of a file of src/page. */
async function load(name) {
  const { outputFiles } = await build({
    entryPoints: [fileURLToPath(new URL(`../../src/page/${name}.ts`, import.meta.url))],
    bundle: true,
    format: "esm",
    write: false,
  });
  return import(`data:text/javascript,${encodeURIComponent(outputFiles[0].text)}`);
}

test("each value has a position of the slider, and each position a value of the range", async () => {
  const { kPositions, positionOf, valueAt } = await load("scale");
  const ranges = [
    [1, 99, 1],
    [10, 30000, 5000],
    [0, 999999, 0],
    [0, 360, 0.005],
    [0.1, 0.9999, 0.95],
  ];
  for (const [low, high, usual] of ranges) {
    const range = { low, high, usual, whole: Number.isInteger(low + usual) };
    assert.equal(positionOf(low - 1, range), 0);
    assert.equal(positionOf(high + 1, range), kPositions);
    assert.equal(valueAt(0, range), low);
    let last = low;
    for (let position = 1; position <= kPositions; ++position) {
      const value = valueAt(position, range);
      assert.ok(value >= last && value <= high, `${position} of ${low} to ${high}`);
      last = value;
    }
    assert.equal(last, high);
  }
});

test("bodies are taken from template to template, byte for byte", async () => {
  const { withRecords, withValues } = await load("template_text");
  const bytes = (text) => Uint8Array.from(Buffer.from(text, "latin1"));
  const mine =
    "\r\n[Universe]\r\nA=1\r\n[UniFold1]\r\nName=m\xe9\r\n[UniFold11]\r\nName=eleven\r\n";
  const theirs = "[UniFold1]\r\nName=\xff\x00\r\n[UniFold1\\IFS]\r\nP=2\r\n[UniFold2]\r\nName=two";
  const merged = withRecords(bytes(mine), bytes(theirs), ["UniFold1"]);
  assert.equal(
    Buffer.from(merged).toString("latin1"),
    "\r\n[Universe]\r\nA=1\r\n[UniFold11]\r\nName=eleven\r\n" +
      "[UniFold1]\r\nName=\xff\x00\r\n[UniFold1\\IFS]\r\nP=2\r\n",
  );
  const changed = withValues(bytes(mine), "UniFold1", { Name: "$&", A: "2" });
  assert.equal(
    Buffer.from(changed).toString("latin1"),
    mine.replace("m\xe9", () => "$&"),
  );
});

test("steps of the history with one key are one, until they are sealed", async () => {
  const { History } = await load("history");
  const history = new History();
  let value = 0;
  const set = (to, key) => {
    const from = value;
    value = to;
    const put = (result) => async () => void (value = result);
    history.add({ text: String(to), key, undo: put(from), redo: put(to) });
  };
  set(1, "a");
  set(2, "a");
  history.seal();
  set(3, "a");
  await history.undo();
  assert.equal(value, 2);
  await history.undo();
  assert.equal(value, 0);
  await history.redo();
  assert.equal(value, 2);
  set(9, "b");
  assert.equal(history.redoText, undefined);
});

test("surprises are in range and leave what a body is", async () => {
  const { surprise } = await load("surprise");
  const row = (name, more) => ({
    name,
    label: name,
    kind: "integer",
    default: "0",
    page: "p",
    ...more,
  });
  const fields = [
    row("_UniFoldName", { kind: "text" }),
    row("Starfold_FoldStyle", { low: 0, high: 9 }),
    row("Starfold_NewFreq", { low: 0, high: 500 }),
    row("Starfold_QG_Force", { kind: "single", low: 0.5, high: 99.9 }),
  ];
  const donor = {
    _UniFoldName: "x",
    Starfold_FoldStyle: "4",
    Starfold_NewFreq: "400",
    Starfold_QG_Force: "0.5",
  };
  for (const random of [() => 0, () => 0.5, () => 0.999999]) {
    const values = surprise(fields, [donor], random);
    assert.equal(values._UniFoldName, undefined);
    assert.equal(values.Starfold_FoldStyle, "4");
    assert.ok(values.Starfold_NewFreq >= 0 && values.Starfold_NewFreq <= 500);
    assert.ok(values.Starfold_QG_Force >= 0.5 && values.Starfold_QG_Force <= 0.8);
  }
});
