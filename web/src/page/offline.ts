// The service worker: keeps all files of one version of the page, so that it opens without a
// network. The pictures and templates of the gallery are kept when they are used, or when the page
// says that there is time for all of them.
export {};

declare const VERSION: string;
declare const FILES: readonly string[];
declare const LATER: readonly string[];

interface WaitingEvent extends Event {
  waitUntil(promise: Promise<unknown>): void;
}
interface RequestEvent extends WaitingEvent {
  readonly request: Request;
  respondWith(response: Promise<Response>): void;
}
interface WorkerScope {
  readonly clients: { claim(): Promise<void> };
  readonly registration: { readonly scope: string };
  addEventListener(
    type: "install" | "activate" | "message",
    listener: (event: WaitingEvent) => void,
  ): void;
  addEventListener(type: "fetch", listener: (event: RequestEvent) => void): void;
}
const scope = self as unknown as WorkerScope;

// The scope is part of the name: pages below several paths of one host share their caches.
const prefix = `starfolds ${scope.registration.scope} `;
const files = `${prefix}${VERSION}`;
const later = `${prefix}later`;
const laterFiles = new Set(LATER.map((name) => new URL(name, scope.registration.scope).href));
const isLater = (request: Request): boolean => laterFiles.has(request.url);

async function install(): Promise<void> {
  const cache = await caches.open(files);
  // The browser's own cache may hold files of another version: "no-cache" asks the host about them,
  // and loads only those that differ.
  await cache.addAll(FILES.map((name) => new Request(name, { cache: "no-cache" })));
}

async function activate(): Promise<void> {
  for (const name of await caches.keys()) {
    if (name.startsWith(prefix) && name !== files && name !== later) await caches.delete(name);
  }
  const cache = await caches.open(later);
  for (const request of await cache.keys()) {
    if (!isLater(request)) await cache.delete(request);
  }
  await scope.clients.claim();
}

async function answer(request: Request): Promise<Response> {
  const cache = await caches.open(files);
  // The page itself is a folder's address to the browser.
  const isPage = request.url.split(/[?#]/)[0] === scope.registration.scope;
  const wanted = isPage ? "index.html" : request;
  const kept = await cache.match(wanted, { ignoreSearch: true });
  if (kept) return kept;
  return isLater(request) ? answerLater(request) : fetch(request);
}

/** One after the other, so that they do not slow down what the page itself loads. */
async function keepAll(): Promise<void> {
  const cache = await caches.open(later);
  const kept = new Set((await cache.keys()).map(({ url }) => url));
  for (const url of laterFiles) {
    if (!kept.has(url)) await cache.add(url);
  }
}

async function answerLater(request: Request): Promise<Response> {
  const cache = await caches.open(later);
  const kept = await cache.match(request);
  if (kept) return kept;
  const response = await fetch(request);
  if (response.ok) await cache.put(request, response.clone());
  return response;
}

scope.addEventListener("install", (event) => event.waitUntil(install()));
scope.addEventListener("activate", (event) => event.waitUntil(activate()));
scope.addEventListener("message", (event) => event.waitUntil(keepAll()));
scope.addEventListener("fetch", (event) => {
  const url = new URL(event.request.url);
  if (event.request.method !== "GET" || !url.href.startsWith(scope.registration.scope)) return;
  event.respondWith(answer(event.request));
});
