// Serves a folder on this machine only: node web/serve.mjs FOLDER [PORT]
import { readFile } from "node:fs/promises";
import { createServer } from "node:http";
import { extname, join, normalize } from "node:path";
import { fileURLToPath } from "node:url";

const types = {
  ".css": "text/css",
  ".html": "text/html",
  ".js": "text/javascript",
  ".json": "application/json",
  ".svg": "image/svg+xml",
  ".wasm": "application/wasm",
  ".webmanifest": "application/manifest+json",
  ".webp": "image/webp",
};

/**
 * A server of the folder below a path, "/" or one that ends with a slash; `onRequest` is told the name
 * of each file that is asked for.
 */
export function folderServer(folder, below = "/", onRequest = () => {}) {
  return createServer(async (request, response) => {
    try {
      // Without "..", which would leave the folder.
      const path = normalize(decodeURIComponent(new URL(request.url, "http://localhost").pathname));
      if (!path.startsWith(below)) throw new Error("not below the path");
      const rest = path.slice(below.length);
      const name = rest === "" || rest.endsWith("/") ? `${rest}index.html` : rest;
      onRequest(name);
      const contents = await readFile(join(folder, name));
      const type = types[extname(name)] ?? "application/octet-stream";
      response.writeHead(200, { "content-type": type, "cache-control": "no-cache" }).end(contents);
    } catch {
      response.writeHead(404, { "content-type": "text/plain" }).end("There is no such file.\n");
    }
  });
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
  const [folder, port = "8060"] = process.argv.slice(2);
  const server = folderServer(folder);
  server.listen(Number(port), "127.0.0.1", () => {
    console.log(`http://localhost:${server.address().port}/`);
  });
}
