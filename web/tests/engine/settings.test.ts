// The table of settings, and templates in and out.
import assert from "node:assert/strict";
import { mkdtempSync, readFileSync, readdirSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { test } from "node:test";
import type { FieldRow, SettingsTable } from "../../src/engine/protocol";
import { loadEngine, noPage, render } from "./native";

/** The keys of each section of a template that the native program writes. */
function templateKeys(text: string): Map<string, string[]> {
  const sections = new Map<string, string[]>();
  let keys: string[] = [];
  for (const line of text.split("\r\n")) {
    const section = /^\[(.*)\]$/.exec(line)?.[1];
    if (section !== undefined) sections.set(section, (keys = []));
    else if (line.includes("=")) keys.push(line.slice(0, line.indexOf("=")));
  }
  return sections;
}

test("the table has every setting that a template has, and the engine takes them", async () => {
  const folder = mkdtempSync(join(tmpdir(), "starfolds-"));
  const file = join(folder, "all.sfd");
  render(["--frames", "1", "--hash", "--save", file]);
  const keys = templateKeys(readFileSync(file, "latin1"));
  rmSync(folder, { recursive: true });
  const engine = await loadEngine(noPage);
  const table = JSON.parse(engine.table()) as SettingsTable;
  const names = (rows: FieldRow[]) => new Set(rows.map((row) => row.name));
  for (const [section, rows] of [
    ["Advanced", table.advanced],
    ["Universe", table.universe],
    ["UniFold0", table.profile],
  ] as const) {
    const missing = keys.get(section)!.filter((key) => !names(rows).has(key));
    assert.deepEqual(missing, [], section);
  }
  const groups: [string, FieldRow[]][] = [
    ["", table.universe],
    ["", table.advanced],
    ["Starfold7/", table.profile],
    ["Starfold7/", table.ifsCenter],
    ["Starfold7/IFS4/", table.ifsPoint],
    ["Starfold7/", table.atomCenter],
    ["Starfold7/Atom31/", table.atomPoint],
    ["CompFold15/", table.composite],
  ];
  for (const [prefix, rows] of groups) {
    for (const row of rows) checkRow(engine, prefix + row.name, row);
  }
  assert.notEqual(engine.set("Starfold50/Starfold_Radius", "5").fault, "");
  assert.notEqual(engine.set("Universe_Stars", "many").fault, "");
});

type Engine = Awaited<ReturnType<typeof loadEngine>>;

/** Values beyond the range are clamped to it; a text stays as it is. */
function checkRow(engine: Engine, name: string, row: FieldRow): void {
  assert.ok(row.label.length > 0 && !/[(:]/.test(row.label), `${name}: ${row.label}`);
  if (row.kind === "text") {
    assert.equal(engine.set(name, "a [b] = c").fault, "");
    assert.equal(engine.get(name), "a [b] = c");
    return;
  }
  const [low, high] = row.kind === "flag" ? [0, 1] : [row.low!, row.high!];
  for (const [value, expected] of [
    [high, high],
    [low, low],
    ...(row.kind === "flag" ? [] : [[high + 1, high] as const]),
  ]) {
    assert.equal(engine.set(name, `${value}`).fault, "");
    assert.equal(Number(engine.get(name)), expected, `${name} = ${value}`);
  }
  assert.equal(engine.set(name, row.default).fault, "");
  assert.equal(Number(engine.get(name)), Number(row.default), name);
}

test("templates come back byte for byte", async () => {
  const engine = await loadEngine(noPage);
  const folder = "templates";
  const files = readdirSync(folder)
    .filter((name) => name.endsWith(".sfd"))
    .map((name) => readFileSync(join(folder, name)));
  assert.ok(files.length > 0);
  // The desktop program stores its own default in this form.
  files.push(Buffer.from(files[0]!.toString("latin1").replace("FocalLength=1\r", "FocalLength=1.0\r"), "latin1"));
  for (const bytes of files) {
    assert.equal(engine.openTemplate(bytes), "");
    assert.deepEqual(Buffer.from(engine.saveTemplate()), bytes);
  }
  assert.notEqual(engine.openTemplate(new Uint8Array(2 ** 21)), "");
  assert.notEqual(engine.openTemplate(Buffer.from("hello\r\n")), "");
});
