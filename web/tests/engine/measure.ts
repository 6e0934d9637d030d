// What a frame costs in WebAssembly, beside the native build in the same run. Not a test; see
// docs/web.md.
import { brotliCompressSync, gzipSync } from "node:zlib";
import { readFileSync } from "node:fs";
import { EngineModule } from "../../src/engine/module";
import { loadEngine, render } from "./native";

const frames = 3000;
const size = [1920, 1080] as const;

/** Seconds of the renderer for so many frames. Its start is measured by itself. */
function native(count: number): number {
  const begin = performance.now();
  const last = ["--frames", `${count}`, "--first", `${count}`];
  render(["--size", size.join("x"), "--hash", ...last]);
  return (performance.now() - begin) / 1000;
}

async function web(): Promise<number> {
  let shown = 0;
  let time = 0;
  const engine: EngineModule = await loadEngine({
    wait: (milliseconds) => (++shown < frames ? (time += milliseconds) : "wait"),
    present: () => undefined,
  });
  engine.resize(...size);
  const begin = performance.now();
  engine.start({ kind: "universe", index: 0, seed: 1 });
  return (performance.now() - begin) / 1000;
}

const wasm = readFileSync("build/web/engine.wasm");
console.log(`engine.wasm ${wasm.length} bytes, gzip ${gzipSync(wasm, { level: 9 }).length}, ` +
  `brotli ${brotliCompressSync(wasm).length}`);
// The lowest of several rounds: other programs only add to the time of one.
const lowest = { start: Infinity, native: Infinity, web: Infinity };
for (let round = 0; round < 9; ++round) {
  lowest.start = Math.min(lowest.start, native(1));
  lowest.native = Math.min(lowest.native, native(frames));
  lowest.web = Math.min(lowest.web, await web());
}
const [nativeCost, webCost] = [lowest.native - lowest.start, lowest.web].map(
  (seconds) => (seconds / frames) * 1000,
) as [number, number];
console.log(
  `ms a frame: native ${nativeCost.toFixed(3)}, WebAssembly ${webCost.toFixed(3)}, ` +
    `ratio ${(webCost / nativeCost).toFixed(2)}`,
);
