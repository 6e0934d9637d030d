// The gallery: a picture of every body, theme and template; a click shows it live.
import type { Scene } from "../engine/protocol";
import type { App } from "./app";
import { byId, debounced, make } from "./dom";
import { tell, tellFailure } from "./message";
import type { Panels } from "./panels";
import { withRecords } from "./template_text";

type Show =
  | { kind: "profile"; set: number; index: number }
  | { kind: "composite"; set: number; index: number; members: number[] }
  | { kind: "theme"; index: number }
  | { kind: "template"; file: string };

/** As gallery.mjs writes it. */
interface Entry {
  name: string;
  /** Of profiles: the style, whose name stands before the line. */
  style?: number;
  line: string;
  picture: string;
  show: Show;
}
interface Group {
  name: string;
  items: Entry[];
}

const kFolder = "gallery/";

export class Gallery {
  private groups: Group[] = [];
  private tiles: { entry: Entry; tile: HTMLElement; words: string[] }[] = [];
  private shown: Entry | undefined;

  constructor(
    private readonly app: App,
    private readonly panels: Panels,
  ) {
    panels.onopen("gallery", () => this.open());
    byId("gallery-search").addEventListener(
      "input",
      debounced(100, () => this.search()),
    );
    byId("visit-keep").addEventListener("click", () => {
      void this.keep().then(() => panels.show("settings"));
    });
    byId("visit-leave").addEventListener("click", () => this.back());
    byId("visit-before").addEventListener("click", () => void this.step(-1));
    byId("visit-after").addEventListener("click", () => void this.step(1));
    document.addEventListener("keydown", (event) => this.key(event));
    app.onchange(() => this.showStrip());
  }

  private async open(): Promise<void> {
    if (this.groups.length > 0) return;
    try {
      const response = await fetch(`${kFolder}index.json`);
      if (!response.ok) throw new Error(`the server answered ${response.status}`);
      this.groups = ((await response.json()) as { groups: Group[] }).groups;
      this.build();
    } catch (reason) {
      tellFailure("The gallery cannot be shown", reason);
    }
  }

  private build(): void {
    const items = byId("gallery-items");
    items.replaceChildren();
    byId("gallery-groups").replaceChildren();
    for (const [number, group] of this.groups.entries()) {
      const id = `group-${number}`;
      const list = make("ul");
      for (const entry of group.items) list.append(this.tile(entry));
      items.append(
        make("section", { "aria-labelledby": id }, make("h3", { id }, group.name), list),
      );
      const link = make("button", { type: "button" }, group.name);
      link.addEventListener("click", () => byId(id).scrollIntoView({ block: "start" }));
      byId("gallery-groups").append(link);
    }
    this.search();
  }

  private lineOf(entry: Entry): string {
    if (entry.style === undefined) return entry.line;
    const style = (this.app.engine.table.styles[entry.style] ?? "").replace(/\s+/g, " ");
    return entry.line === "" ? style : `${style}; ${entry.line}`;
  }

  private tile(entry: Entry): HTMLElement {
    const line = this.lineOf(entry);
    const picture = make("img", {
      src: kFolder + entry.picture,
      alt: "",
      width: "384",
      height: "216",
      loading: "lazy",
      decoding: "async",
    });
    const button = make(
      "button",
      { type: "button", class: "tile" },
      picture,
      make("strong", {}, entry.name),
      make("span", {}, line),
    );
    button.addEventListener("click", () => void this.visit(entry));
    const tile = make("li", {}, button);
    this.tiles.push({ entry, tile, words: wordsOf(`${entry.name} ${line}`) });
    return tile;
  }

  /** Leaves only the tiles that have all words of the search, or words that begin so. */
  private search(): void {
    const wanted = wordsOf(byId<HTMLInputElement>("gallery-search").value);
    let found = 0;
    for (const { tile, words } of this.tiles) {
      tile.hidden = !wanted.every((begin) => words.some((word) => word.startsWith(begin)));
      if (!tile.hidden) ++found;
    }
    for (const section of byId("gallery-items").children) {
      (section as HTMLElement).hidden = !section.querySelector("li:not([hidden])");
    }
    byId("gallery-items").classList.toggle("nothing", found === 0);
    byId("gallery-count").textContent = `${found} of ${this.tiles.length}`;
  }

  // --- What is visited ---

  private async visit(entry: Entry): Promise<void> {
    this.panels.close();
    this.shown = entry;
    try {
      await this.app.visit((mine) => this.prepare(entry.show, mine), sceneOf(entry.show));
    } catch (reason) {
      tellFailure(`"${entry.name}" cannot be shown`, reason);
      await this.app.leaveVisit(true);
      return;
    }
    byId("visit-keep").focus({ preventScroll: true });
  }

  private async prepare(show: Show, mine: Uint8Array): Promise<void> {
    const { engine } = this.app;
    switch (show.kind) {
      case "profile":
      case "composite":
        return engine.useFactory(show.set);
      case "theme":
        await engine.openTemplate(mine);
        return engine.applyTheme(show.index);
      case "template": {
        const response = await fetch(kFolder + show.file);
        if (!response.ok) throw new Error(`the server answered ${response.status}`);
        const fault = await engine.openTemplate(new Uint8Array(await response.arrayBuffer()));
        if (fault !== "") throw new Error(fault);
        return;
      }
    }
  }

  private showStrip(): void {
    const strip = byId("visit");
    const entry = this.app.visiting ? this.shown : undefined;
    strip.hidden = entry === undefined;
    document.body.classList.toggle("visiting", entry !== undefined);
    if (!entry) return;
    byId("visit-name").textContent = entry.name;
    byId("visit-line").textContent = this.lineOf(entry);
  }

  /** The next or previous one of those that the search has left. */
  private async step(by: 1 | -1): Promise<void> {
    const found = this.tiles.filter(({ tile }) => !tile.hidden).map(({ entry }) => entry);
    const at = found.findIndex((entry) => entry === this.shown);
    const next = found.at((at + by + found.length) % found.length);
    if (next) await this.visit(next);
  }

  private back(): void {
    void this.app.leaveVisit(true);
    this.panels.show("gallery");
  }

  private key(event: KeyboardEvent): void {
    if (!this.app.visiting || this.panels.isOpen || event.defaultPrevented) return;
    if (event.key === "ArrowLeft") void this.step(-1);
    else if (event.key === "ArrowRight") void this.step(1);
    else if (event.key === "Escape") this.back();
    else return;
    event.preventDefault();
  }

  /** Makes what is visited a part of the visitor's settings, or all of them. */
  async keep(): Promise<void> {
    const entry = this.shown;
    if (!entry) return;
    const records = recordsOf(entry.show);
    const merge = (mine: Uint8Array, visited: Uint8Array): Uint8Array =>
      records ? withRecords(mine, visited, records) : visited;
    await this.app.keepVisit(`making "${entry.name}" yours`, merge, sceneOf(entry.show));
    tell(records ? `${entry.name} is one of your bodies now.` : `${entry.name} is yours now.`);
  }
}

function sceneOf(show: Show): Scene {
  if (show.kind === "profile" || show.kind === "composite") {
    return { kind: show.kind, index: show.index };
  }
  return { kind: "universe" };
}

/** The records of a template that hold a body; undefined for whole universes. */
function recordsOf(show: Show): string[] | undefined {
  if (show.kind === "profile") return [`UniFold${show.index}`];
  if (show.kind !== "composite") return undefined;
  return [`CompFold${show.index}`, ...show.members.map((member) => `UniFold${member}`)];
}

function wordsOf(text: string): string[] {
  return text.toLowerCase().match(/[\p{L}\p{N}.]+/gu) ?? [];
}
