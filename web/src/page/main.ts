// Starts the page.
import { createEngine } from "../engine/client";
import type { EngineClient } from "../engine/protocol";
import { App } from "./app";
import { Bar } from "./bar";
import { byId, debounced, make } from "./dom";
import { Gallery } from "./gallery";
import { tellFailure } from "./message";
import { Panels } from "./panels";
import { remember, remembered } from "./preferences";
import { SavePanel } from "./save";
import { SettingsPanel } from "./settings";
import { SharePanel } from "./share";

/** Says in the middle of the page why there are no stars. */
function block(text: string): void {
  const reload = make("button", { type: "button" }, "Load the page again");
  reload.addEventListener("click", () => location.reload());
  document.body.append(
    make("div", { class: "blocked", role: "alert" }, make("p", {}, text), reload),
  );
}

function missing(): string | undefined {
  if (typeof WebAssembly === "undefined") return "WebAssembly";
  if (!("transferControlToOffscreen" in HTMLCanvasElement.prototype)) return "OffscreenCanvas";
  if (typeof DecompressionStream === "undefined") return "DecompressionStream";
  return undefined;
}

function buildPage(engine: EngineClient): App {
  const app = new App(engine, byId<HTMLCanvasElement>("sky"));
  const panels = new Panels();
  const settings = new SettingsPanel(app, panels);
  const gallery = new Gallery(app, panels);
  // What is changed in the settings is the visitor's own, so a visit ends with its body kept.
  panels.onopen("settings", async () => {
    if (app.visiting) await gallery.keep();
    await settings.open();
  });
  new SavePanel(app, panels);
  new SharePanel(app, panels);
  new Bar(app, panels);

  const keys = byId<HTMLInputElement>("single-keys");
  keys.checked = remembered("single-keys") !== "off";
  keys.addEventListener("change", () => remember("single-keys", keys.checked ? null : "off"));
  addEventListener(
    "resize",
    debounced(150, () => void app.resized()),
  );
  addEventListener("hashchange", () => {
    if (location.hash.length > 1) void app.openLink(location.hash.slice(1));
  });
  return app;
}

async function start(): Promise<void> {
  const lacking = missing();
  if (lacking) return block(`This browser is too old for Starfolds: it has no ${lacking}.`);
  try {
    const engine = await createEngine();
    engine.onfault = (message) => block(`The engine has stopped: ${message}`);
    const app = buildPage(engine);
    engine.attach(app.sky);
    await app.begin();
    Object.assign(globalThis, { starfolds: app }); // for the browser's console, and for tests
    document.body.classList.add("ready");
  } catch (reason) {
    const text = reason instanceof Error ? reason.message : String(reason);
    return block(`The engine does not start: ${text}`);
  }
  await keepOffline();
}

/** Milliseconds of watching before the gallery is loaded for times without a network. */
const kRestBeforeGallery = 5000;

/** Whether the visitor has asked the browser for little traffic. */
function savesData(): boolean {
  const { connection } = navigator as { connection?: { saveData?: boolean } };
  return connection?.saveData === true;
}

/** After the first stars, so that the files of the first visit are loaded once. */
async function keepOffline(): Promise<void> {
  if (!("serviceWorker" in navigator)) return;
  try {
    await navigator.serviceWorker.register("offline.js");
    const { active } = await navigator.serviceWorker.ready;
    if (!savesData()) setTimeout(() => active?.postMessage("keep all"), kRestBeforeGallery);
  } catch (reason) {
    // Without it (private windows, a page that is not secure) everything but this works.
    if (location.protocol === "https:") tellFailure("The page does not work offline", reason);
  }
}

void start();
