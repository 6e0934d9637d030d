// Links: what was sent comes back, and hostile ones are refused without harm.
import assert from "node:assert/strict";
import { test } from "node:test";
import { deflateRawSync } from "node:zlib";
import { LinkFault, longestFragment, longestText, packLink, unpackLink } from "../../src/engine/link";
import type { EngineModule } from "../../src/engine/module";
import type { LinkContents } from "../../src/engine/protocol";
import { loadEngine, noPage, provideRawDeflate } from "./native";

provideRawDeflate();

const encode = (text: string) => new TextEncoder().encode(text);
const packed = (bytes: Uint8Array) => deflateRawSync(bytes).toString("base64url");

function faultOf(engine: EngineModule, text: string): string {
  return (JSON.parse(engine.openLinkText(encode(text))) as LinkContents).fault;
}

test("a link shows the same universe in another engine", async () => {
  const sender = await loadEngine(noPage);
  sender.useFactory(1);
  for (const [name, value] of [
    ["Universe_Stars", "1234"],
    ["Universe_Persist", "0.3125"],
    ["Starfold7/_UniFoldName", "Größe [東京] = #"],
    ["Starfold7/Starfold_FoldStyle", "9"],
    ["Starfold7/Starfold_Atoms", "2"],
    ["Starfold7/Atom1/Atom_Structure", "8"],
    ["Starfold7/Atom1/Atom_LocX", "7"],
    ["CompFold3/CompFold_Count", "3"],
    ["CompFold3/CompFold_Type2", "49"],
    ["Adv_TimeDelay", "17"],
  ] as const) {
    assert.equal(sender.set(name, value).fault, "");
  }
  sender.resize(320, 200);
  sender.start({ kind: "composite", index: 3, seed: 2 ** 53 - 1 });
  const fragment = await packLink(sender.linkText(true, true));
  assert.match(fragment, /^[A-Za-z0-9_-]{1,600}$/);

  const visitor = await loadEngine(noPage);
  assert.deepEqual(JSON.parse(visitor.openLinkText(await unpackLink(fragment))), {
    fault: "",
    scene: { kind: "composite", index: 3 },
    seed: "9007199254740991",
    size: { width: 320, height: 200 },
  });
  assert.deepEqual(visitor.saveTemplate(), sender.saveTemplate());
  visitor.resize(320, 200);
  visitor.start({ kind: "composite", index: 3, seed: 2 ** 53 - 1 });
  assert.equal(visitor.hash(), sender.hash());
});

test("hostile fragments are refused while they are unpacked", async () => {
  const bomb = packed(new Uint8Array(longestText * 100));
  assert.ok(bomb.length < longestFragment);
  for (const [fragment, reason] of [
    ["", /not a link/],
    ["A".repeat(longestFragment + 1), /too long/],
    ["a b", /not a link/],
    ["%00", /not a link/],
    ["A", /damaged/],
    ["____", /damaged/],
    [packed(encode("[Link]\r\nSet=0\r\n")).slice(0, -4), /damaged/],
    [bomb, /too long/],
  ] as const) {
    await assert.rejects(
      unpackLink(fragment),
      (fault) => fault instanceof LinkFault && reason.test(fault.message),
      fragment.slice(0, 40),
    );
  }
});

test("a refused text changes nothing, and values beyond their range are clamped", async () => {
  const engine = await loadEngine(noPage);
  const before = engine.saveTemplate();
  for (const text of ["", "[Link]\r\nSet=7\r\n", "[Universe]\r\nUniverse_Stars=1\r\n", "\0[Link]"]) {
    assert.notEqual(faultOf(engine, text), "", text);
  }
  assert.deepEqual(engine.saveTemplate(), before);
  const hostile = "[Link]\r\nSet=0\r\n[UniFold0]\r\nStarfold_Radius=9e99\r\nStarfold_FoldStyle=-4\r\n";
  assert.equal(faultOf(engine, hostile), "");
  assert.equal(engine.get("Starfold0/Starfold_Radius"), "30000");
  assert.equal(engine.get("Starfold0/Starfold_FoldStyle"), "0");
});
