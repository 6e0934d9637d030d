// Serves a folder on this machine only: node web/serve.mjs FOLDER [PORT]
import { createReadStream } from "node:fs";
import { stat } from "node:fs/promises";
import { createServer } from "node:http";
import { extname, join, normalize } from "node:path";

const [folder, port = "8060"] = process.argv.slice(2);
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

const server = createServer(async (request, response) => {
  // Without "..", which would leave the folder.
  const path = normalize(decodeURIComponent(new URL(request.url, "http://localhost").pathname));
  const file = join(folder, path.endsWith("/") ? `${path}index.html` : path);
  try {
    if (!(await stat(file)).isFile()) throw new Error("not a file");
    const type = types[extname(file)] ?? "application/octet-stream";
    response.writeHead(200, { "content-type": type, "cache-control": "no-cache" });
    createReadStream(file).pipe(response);
  } catch {
    response.writeHead(404, { "content-type": "text/plain" }).end("There is no such file.\n");
  }
});
server.listen(Number(port), "127.0.0.1", () => {
  console.log(`http://localhost:${server.address().port}/`);
});
