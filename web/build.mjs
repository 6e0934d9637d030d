// Builds the page into a folder that any static host can serve: node build.mjs [FOLDER]
// The folder already holds engine.wasm and what gallery.sh has put into gallery/: the service worker
// is given the list of all files, so this runs last.
import { build } from "esbuild";
import { createHash } from "node:crypto";
import { copyFile, mkdir, readFile, readdir, rm } from "node:fs/promises";
import { dirname, join, relative } from "node:path";
import { fileURLToPath } from "node:url";

const here = dirname(fileURLToPath(import.meta.url));
const folder = process.argv[2] ?? join(here, "../build/web");

/** Bundles `entry` into the file `name` of the folder. */
async function bundle(entry, name, options = {}) {
  await build({
    entryPoints: [join(here, entry)],
    outfile: join(folder, name),
    bundle: true,
    minify: true,
    format: "esm",
    target: "es2022",
    legalComments: "none",
    logLevel: "warning",
    ...options,
  });
}

/** The paths of all files below the folder, sorted, with "/" between their parts. */
async function files() {
  const entries = await readdir(folder, { recursive: true, withFileTypes: true });
  return entries
    .filter((entry) => entry.isFile() && entry.name !== "stamp")
    .map((entry) => relative(folder, join(entry.parentPath, entry.name)).replaceAll("\\", "/"))
    .sort();
}

await mkdir(folder, { recursive: true });
await rm(join(folder, "offline.js"), { force: true });
await bundle("src/page/main.ts", "page.js");
await bundle("src/engine/worker.ts", "worker.js");
await bundle("style/page.css", "page.css");
await copyFile(join(here, "index.html"), join(folder, "index.html"));
await copyFile(join(here, "public/starfolds.webmanifest"), join(folder, "starfolds.webmanifest"));
await copyFile(join(here, "../packaging/starfolds.svg"), join(folder, "icon.svg"));

const all = await files();
const version = createHash("sha256");
for (const name of all) version.update(name).update(await readFile(join(folder, name)));
/** Kept by the service worker when they are first used, not before. */
const isLater = (name) => /\.(webp|sfd)$/.test(name);
await bundle("src/page/offline.ts", "offline.js", {
  format: "iife",
  define: {
    VERSION: JSON.stringify(version.digest("hex").slice(0, 16)),
    FILES: JSON.stringify(all.filter((name) => !isLater(name))),
    LATER: JSON.stringify(all.filter(isLater)),
  },
});
