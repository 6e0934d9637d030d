// The engine in WebAssembly plots the pixels of the native build, which runs beside it.
import assert from "node:assert/strict";
import { test } from "node:test";
import { EngineModule, type Run } from "../../src/engine/module";
import { loadEngine, render } from "./native";

const width = 480;
const height = 300;
const frames = 2000;
const every = 200;

interface Scene {
  name: string;
  set?: 0 | 1;
  body?: ["profile" | "composite", number];
  settings?: Record<string, string>;
}

/** Together: all styles, trails, gravity, randomised properties, both sets. */
const scenes: Scene[] = [
  { name: "universes of set 4.x" },
  { name: "universes of set 2.0", set: 1 },
  {
    name: "short visits to bodies of every style",
    settings: {
      Universe_GVisit: "1",
      Universe_GSteps: "8",
      Universe_ESteps: "60",
      Universe_Profile: "50",
      _UniFoldPct: "1",
    },
  },
  {
    name: "trails",
    settings: { Universe_STrail: "6", Universe_ESteps: "120", Universe_GSteps: "40" },
  },
  {
    name: "gravity and randomised properties",
    settings: {
      Universe_GravForce: "90000",
      Universe_GravFrame: "3",
      Adv_Randomize: "1",
      Universe_ESteps: "100",
    },
  },
  { name: "wireframe", body: ["profile", 20] },
  { name: "nebula with trails", body: ["profile", 22], settings: { Universe_STrail: "4" } },
  { name: "starwave with pulsars", body: ["profile", 34], settings: { Starfold_PulsarFreq: "2000" } },
  { name: "molecule", body: ["profile", 43] },
  { name: "composite", body: ["composite", 0], settings: { FocalLength: "1.7" } },
];

const seed = (scene: Scene) => scenes.indexOf(scene) + 1;

function nativeHashes(scene: Scene): string[] {
  const args = ["--size", `${width}x${height}`, "--seed", `${seed(scene)}`, "--factory"];
  args.push(`${scene.set ?? 0}`, "--hash", "--frames", `${frames}`);
  args.push("--first", `${every}`, "--every", `${every}`);
  if (scene.body) args.push(`--${scene.body[0]}`, `${scene.body[1]}`);
  for (const [name, value] of Object.entries(scene.settings ?? {})) {
    args.push("--set", `${name}=${value}`);
  }
  return [...render(args).matchAll(/^frame \d+ ([0-9a-f]{16})$/gm)].map((line) => line[1]!);
}

function prepare(engine: EngineModule, scene: Scene): Run {
  engine.useFactory(scene.set ?? 0);
  for (const [name, value] of Object.entries(scene.settings ?? {})) {
    for (const each of namesOf(name)) assert.equal(engine.set(each, value).fault, "");
  }
  engine.resize(width, height);
  const [kind, index] = scene.body ?? ["universe" as const, 0];
  return { kind, index, seed: seed(scene) };
}

/** A setting of a profile without a record is meant for all profiles. */
function namesOf(name: string): string[] {
  if (!/^(Starfold_|_UniFold)/.test(name)) return [name];
  return Array.from({ length: 50 }, (_, i) => `Starfold${i}/${name}`);
}

/** Runs to the last frame. The stack is stored away after each frame if `unwinds`. */
async function webHashes(scene: Scene, unwinds: boolean): Promise<string[]> {
  const hashes: string[] = [];
  let shown = 0;
  let time = 0;
  const engine: EngineModule = await loadEngine({
    wait: (milliseconds) => (unwinds || shown >= frames ? "wait" : (time += milliseconds)),
    present: () => {
      if (++shown % every === 0) hashes.push(engine.hash());
    },
  });
  engine.start(prepare(engine, scene));
  while (shown < frames) engine.resume((time += 50));
  engine.stop();
  assert.equal(shown, frames);
  return hashes;
}

for (const scene of scenes) {
  test(`pixels: ${scene.name}`, async () => {
    const native = nativeHashes(scene);
    assert.equal(new Set(native).size, frames / every, "the scene moves");
    assert.deepEqual(await webHashes(scene, scene.set === 1 || scene.body?.[1] === 22), native);
  });
}
