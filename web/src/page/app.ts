// What the page shows and whose settings these are. All parts of the page act through this.
import type { EngineClient, LinkContents, Scene } from "../engine/protocol";
import { debounced } from "./dom";
import { History } from "./history";
import { tell, tellFailure } from "./message";
import { remember, remembered } from "./preferences";

/** The frame after which a body makes a good picture. */
const kStillOfBody = 240;
/** More frames than this are not run through at once: it would take too long. */
const kLongestStill = 2000;

type Listener = () => void;

export class App {
  readonly history = new History();
  scene: Scene = { kind: "universe" };
  paused: boolean;
  /** A link's surface, which the window then scales. */
  private size: { width: number; height: number } | undefined;
  /** The settings of the visitor while the gallery shows something else. */
  private kept: { settings: Uint8Array; scene: Scene } | undefined;
  private listeners: Listener[] = [];
  private last: Promise<unknown> = Promise.resolve();

  constructor(
    readonly engine: EngineClient,
    readonly sky: HTMLCanvasElement,
  ) {
    this.paused = matchMedia("(prefers-reduced-motion: reduce)").matches;
  }

  /** Calls `listener` after each change of scene, pause or settings as a whole. */
  onchange(listener: Listener): void {
    this.listeners.push(listener);
  }
  private changed(): void {
    for (const listener of this.listeners) listener();
  }

  /**
   * Runs `task` after the tasks before it: what takes several calls of the engine is not mixed with
   * what a second click asks for. A task must not wait for another one.
   */
  private inTurn<T>(task: () => Promise<T>): Promise<T> {
    const turn = this.last.then(task, task);
    this.last = turn.catch(() => undefined);
    return turn;
  }

  // --- The run ---

  /** The first scene: of the address, of the last visit, or a universe of the factory settings. */
  async begin(): Promise<void> {
    const fragment = location.hash.slice(1);
    await this.fit();
    // The visitor's own settings come first, so that undo leads from a link's back to them.
    const mine = remembered("mine");
    if (mine !== null && (await this.engine.openLink(mine)).fault !== "") remember("mine", null);
    if (fragment !== "" && (await this.openLink(fragment))) return;
    await this.show({ kind: "universe" });
  }

  /** Begins a run of the scene, in the size of the window. */
  show(scene: Scene, seed?: number): Promise<void> {
    return this.inTurn(() => this.showNow(scene, seed));
  }
  private async showNow(scene: Scene, seed?: number, isHurried = false): Promise<void> {
    if (this.size) {
      this.size = undefined;
      await this.fit();
    }
    await this.run(scene, seed, isHurried);
  }

  private async run(scene: Scene, seed?: number, isHurried = false): Promise<void> {
    this.scene = scene;
    await this.engine.start(scene, seed);
    await this.settle(isHurried);
    this.changed();
  }

  /**
   * Takes a run that begins anew to a frame with something to see, if it is paused or in a hurry; to
   * `frame`, if that is given.
   */
  private async settle(isHurried = false, frame?: number): Promise<void> {
    if (this.paused || isHurried) {
      await this.engine.runUntil(Math.min(frame ?? (await this.stillFrame()), kLongestStill));
    }
    this.engine.pause(this.paused);
  }

  /** When a universe's camera has arrived at the first starfold, or a body looks as it does. */
  private async stillFrame(): Promise<number> {
    if (this.scene.kind !== "universe") return kStillOfBody;
    const names = ["Universe_ESteps", "Universe_GSteps", "Universe_GPCtrl"];
    const values = await Promise.all(names.map((name) => this.engine.get(name)));
    const [blast, steps, points] = values.map(Number) as [number, number, number];
    return blast + steps * points;
  }

  pause(on: boolean): void {
    this.paused = on;
    this.engine.pause(on);
    this.changed();
  }

  /** The next universe; from a body of the visitor's own, their universe. */
  next(): Promise<void> {
    return this.inTurn(async () => {
      if (this.scene.kind !== "universe" && !this.visiting) {
        return this.showNow({ kind: "universe" });
      }
      if (this.size) return this.showNow(this.scene);
      this.engine.nextUniverse();
      await this.settle();
    });
  }

  /** Gives the surface the size of the window, or scales the surface of a link to it. */
  private async fit(): Promise<void> {
    const width = Math.max(1, innerWidth);
    const height = Math.max(1, innerHeight);
    const surface = this.size ?? { width, height };
    const scale = Math.min(width / surface.width, height / surface.height);
    this.sky.style.width = `${surface.width * scale}px`;
    this.sky.style.height = `${surface.height * scale}px`;
    // Less than one pixel for a star: pixels that are left out would be stars that vanish.
    this.sky.classList.toggle("shrunk", scale * devicePixelRatio < 1);
    await this.engine.resize(surface.width, surface.height);
  }

  /** The window has changed its size. */
  resized(): Promise<void> {
    return this.inTurn(async () => {
      await this.fit();
      if (!this.size) await this.settle();
    });
  }

  // --- Settings ---

  /** Sets one setting of the visitor. Returns the engine's message, "" if there is none. */
  set(name: string, value: string): Promise<string> {
    return this.inTurn(async () => {
      const frame = this.paused ? (await this.engine.hash()).frame : 0;
      const fault = await this.engine.set(name, value);
      if (this.paused) await this.settle(false, Math.max(1, frame));
      this.touched();
      return fault;
    });
  }

  /** The settings are the visitor's own from now on: kept, and no longer those of the address. */
  touched(): void {
    if (location.hash !== "") history.replaceState(null, "", location.pathname + location.search);
    this.keep();
  }
  private readonly keep = debounced(200, () => {
    if (this.kept) return;
    this.engine.link({}).then(
      (fragment) => remember("mine", fragment),
      () => remember("mine", null), // too long for a link: kept for this visit only
    );
  });

  /**
   * Changes the settings as a whole, with a step to undo it, and shows `scene`. `change` returns ""
   * or why it changed nothing; so does this.
   */
  replace(text: string, change: () => Promise<string>, scene: Scene): Promise<string> {
    return this.inTurn(() => this.replaceNow(text, change, scene));
  }
  private async replaceNow(
    text: string,
    change: () => Promise<string>,
    scene: Scene,
  ): Promise<string> {
    const before = await this.engine.saveTemplate();
    const beforeScene = this.scene;
    const fault = await change();
    if (fault !== "") return fault;
    await this.addStep(text, before, beforeScene, scene);
    this.touched();
    await this.showNow(scene);
    return "";
  }

  /** A step from settings and scene before to the present settings and `scene`. */
  private async addStep(
    text: string,
    before: Uint8Array,
    beforeScene: Scene,
    scene: Scene,
  ): Promise<void> {
    const after = await this.engine.saveTemplate();
    const go = (settings: Uint8Array, to: Scene): Promise<void> =>
      this.inTurn(async () => {
        await this.engine.openTemplate(settings);
        this.touched();
        await this.showNow(to);
      });
    this.history.seal();
    this.history.add({ text, undo: () => go(before, beforeScene), redo: () => go(after, scene) });
  }

  /** Opens a template as the visitor's settings; false, with a message, if it is refused. */
  openTemplate(bytes: Uint8Array, name: string): Promise<boolean> {
    return this.inTurn(async () => {
      await this.leaveNow(false);
      const open = (): Promise<string> => this.engine.openTemplate(bytes);
      const fault = await this.replaceNow(`opening ${name}`, open, { kind: "universe" });
      tell(fault === "" ? `This is ${name}.` : `${name}: ${fault}`);
      return fault === "";
    });
  }

  /** Shows what a link says; false, with a message, if it is refused. */
  openLink(fragment: string): Promise<boolean> {
    return this.inTurn(() => this.openLinkNow(fragment));
  }
  private async openLinkNow(fragment: string): Promise<boolean> {
    await this.leaveNow(false);
    const before = await this.engine.saveTemplate();
    const beforeScene = this.scene;
    let contents: LinkContents;
    try {
      contents = await this.engine.openLink(fragment);
    } catch (reason) {
      tellFailure("This link cannot be opened", reason);
      return false;
    }
    if (contents.fault !== "") {
      tell(`This link cannot be opened: ${contents.fault}`);
      return false;
    }
    await this.addStep("opening a link", before, beforeScene, contents.scene);
    this.size = contents.size;
    await this.fit();
    await this.run(contents.scene, contents.seed);
    return true;
  }

  // --- The gallery's visits ---

  get visiting(): boolean {
    return this.kept !== undefined;
  }

  /**
   * Shows other settings for a while, of a universe from its first starfold on: what the gallery's
   * picture promises. `prepare` sets them, given the visitor's own.
   */
  visit(prepare: (mine: Uint8Array) => Promise<void>, scene: Scene): Promise<void> {
    return this.inTurn(async () => {
      this.kept ??= { settings: await this.engine.saveTemplate(), scene: this.scene };
      await prepare(this.kept.settings);
      await this.showNow(scene, undefined, scene.kind === "universe");
    });
  }

  /** The visitor's own settings again; shown too, if `show`. */
  leaveVisit(show: boolean): Promise<void> {
    return this.inTurn(() => this.leaveNow(show));
  }
  private async leaveNow(show: boolean): Promise<void> {
    const kept = this.kept;
    if (!kept) return;
    await this.engine.openTemplate(kept.settings);
    this.kept = undefined;
    this.changed();
    if (show) await this.showNow(kept.scene);
  }

  /** What is visited becomes a part of the visitor's settings, or all of them. */
  keepVisit(
    text: string,
    merge: (mine: Uint8Array, visited: Uint8Array) => Uint8Array,
    scene: Scene,
  ): Promise<void> {
    return this.inTurn(async () => {
      const kept = this.kept;
      if (!kept) return;
      const merged = merge(kept.settings, await this.engine.saveTemplate());
      await this.leaveNow(false);
      this.scene = kept.scene;
      const fault = await this.replaceNow(text, () => this.engine.openTemplate(merged), scene);
      if (fault !== "") tell(fault);
    });
  }
}
