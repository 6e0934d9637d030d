// What the tests share: the built engine, and the program of the native build to compare it with.
import { execFileSync } from "node:child_process";
import { readFileSync } from "node:fs";
import { Duplex } from "node:stream";
import { createDeflateRaw, createInflateRaw } from "node:zlib";
import { EngineModule, type Page } from "../../src/engine/module";

/** The folder of the repository. The tests are started there. */
const renderer = process.env["STARFOLDS_RENDER"] ?? "build/release/src/render/starfolds-render";
const wasm = process.env["STARFOLDS_ENGINE"] ?? "build/web/engine.wasm";

export function render(args: readonly string[]): string {
  return execFileSync(renderer, args, { encoding: "utf8", maxBuffer: 2 ** 24 });
}

export async function loadEngine(page: Page): Promise<EngineModule> {
  return EngineModule.load(await WebAssembly.compile(readFileSync(wasm)), page);
}

/** A page that shows nothing and never begins a run. */
export const noPage: Page = { wait: () => "wait", present: () => undefined };

/** The streams of Node 18 lack "deflate-raw", which all browsers have. */
export function provideRawDeflate(): void {
  const streams = globalThis as unknown as Record<string, unknown>;
  try {
    new CompressionStream("deflate-raw");
  } catch {
    // A constructor may return another object.
    streams["CompressionStream"] = function () {
      return Duplex.toWeb(createDeflateRaw());
    };
    streams["DecompressionStream"] = function () {
      return Duplex.toWeb(createInflateRaw());
    };
  }
}
