// Bundles the programs of this folder: node web/tests/engine/build.mjs FOLDER
import { build } from "esbuild";
import { readdir } from "node:fs/promises";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";

const here = dirname(fileURLToPath(import.meta.url));
const programs = (await readdir(here)).filter((name) => name.endsWith(".test.ts") || name === "measure.ts");
await build({
  entryPoints: programs.map((name) => join(here, name)),
  outdir: process.argv[2],
  outExtension: { ".js": ".mjs" },
  bundle: true,
  platform: "node",
  format: "esm",
  target: "node18",
  logLevel: "warning",
});
