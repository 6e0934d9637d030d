// The worker: one engine, its run, and the canvas that shows it.
import type { AnswerMessage, CallMessage, Calls } from "./calls";
import { FrameClock } from "./frame_clock";
import { LinkFault, packLink, unpackLink } from "./link";
import { EngineModule } from "./module";
import type { FrameHash, LinkContents, Scene, Scope } from "./protocol";
import { Screen } from "./screen";

/** The largest side of a surface, and the most pixels (256 MB with the canvas). */
const longestSide = 16384;
const mostPixels = 1 << 25;
/** A run without waiting lets messages in after so many milliseconds. */
const longestTurn = 50;
/** Frames over which the time of a frame is averaged. */
const averaged = 60;

function randomSeed(): number {
  return crypto.getRandomValues(new Uint32Array(1))[0]!;
}

/** "Starfold7" of "profile:7". */
function recordOf(scope: Scope): string {
  if (scope === "universe") return "";
  if (scope === "advanced") return "Advanced";
  const [kind, index] = scope.split(":");
  return (kind === "profile" ? "Starfold" : "CompFold") + index;
}

class EngineWorker implements Calls {
  private readonly engine: EngineModule;
  private readonly clock = new FrameClock((time) => this.goOn(time));
  private screen: Screen | null = null;
  private width = 1;
  private height = 1;
  private scene: Scene = { kind: "universe" };
  private seed = randomSeed();
  private begun = false;
  private restarts = false;
  private paused = false;
  private hidden = false;
  private watched = false;
  /** The frame until which the run does not wait, and who asked for it. */
  private target = 0;
  private reached: (() => void)[] = [];
  private turnEnds = 0;
  private waits = 0;
  private frames = 0;
  private mean = 0;

  static async create(): Promise<EngineWorker> {
    const url = new URL("./engine.wasm", import.meta.url);
    const response = await fetch(url);
    if (!response.ok) throw new Error(`The engine could not be loaded (${response.status}).`);
    const compiled = await WebAssembly.compile(await response.arrayBuffer());
    const self: { worker?: EngineWorker } = {};
    const engine = await EngineModule.load(compiled, {
      wait: (milliseconds) => self.worker!.wait(milliseconds),
      present: (words, isWhole) => self.worker!.screen?.take(words, isWhole),
    });
    self.worker = new EngineWorker(engine);
    return self.worker;
  }

  private constructor(engine: EngineModule) {
    this.engine = engine;
  }

  // --- The run ---

  private get isCatchingUp(): boolean {
    return this.engine.frames < this.target;
  }

  /** The engine has shown a frame. */
  private wait(milliseconds: number): number | "wait" {
    ++this.frames;
    if (this.isCatchingUp && performance.now() < this.turnEnds) return this.clock.skip(milliseconds);
    this.waits = milliseconds;
    return "wait";
  }

  /** Lets the engine run until it waits, and shows what it has drawn. */
  private turn(advance: () => void): void {
    const begin = performance.now();
    const before = this.frames;
    this.turnEnds = begin + longestTurn;
    advance();
    this.screen?.show();
    const shown = Math.max(this.frames - before, 1);
    const taken = (performance.now() - begin) / shown;
    this.mean = this.mean === 0 ? taken : this.mean + (taken - this.mean) / averaged;
    if (this.watched && this.screen) void this.sendPicture(this.screen);
    if (!this.isCatchingUp) this.endCatchingUp();
    this.schedule();
  }

  private goOn(time: number): void {
    guarded(() => {
      if (this.restarts) this.begin();
      else this.turn(() => this.engine.resume(time));
    });
  }

  private begin(): void {
    this.restarts = false;
    this.begun = true;
    const index = this.scene.kind === "universe" ? 0 : this.scene.index;
    this.turn(() => this.engine.start({ kind: this.scene.kind, index, seed: this.seed }));
  }

  private schedule(): void {
    this.clock.cancel();
    if (!this.begun) return;
    if (this.isCatchingUp) {
      setTimeout(() => this.catchUp());
    } else if (!this.paused && !this.hidden) {
      this.clock.schedule(this.waits);
    }
  }

  private catchUp(): void {
    if (this.isCatchingUp) this.goOn(this.clock.skip(this.waits));
  }

  private endCatchingUp(): void {
    this.target = 0;
    for (const answer of this.reached.splice(0)) answer();
  }

  /** The run begins anew with its next frame. */
  private restart(): void {
    this.restarts = this.begun;
  }

  private async sendPicture(screen: Screen): Promise<void> {
    const frame = await screen.bitmap();
    post({ kind: "picture", frame }, [frame]);
  }

  // --- Calls ---

  table(): string {
    return this.engine.table();
  }

  attach(canvas: OffscreenCanvas): void {
    this.screen = new Screen(canvas);
    this.screen.resize(this.width, this.height);
    this.restart();
  }

  start(scene: Scene, seed?: number): void {
    this.scene = scene;
    this.seed = seed ?? randomSeed();
    this.target = 0;
    this.endCatchingUp();
    this.begin();
  }

  resize(cssWidth: number, cssHeight: number): void {
    const side = (length: number) => Math.min(Math.max(Math.round(length) || 1, 1), longestSide);
    const width = side(cssWidth);
    const height = Math.min(side(cssHeight), Math.floor(mostPixels / width));
    if (width === this.width && height === this.height) return;
    this.width = width;
    this.height = height;
    this.engine.resize(this.width, this.height);
    this.screen?.resize(this.width, this.height);
    if (this.begun) this.begin();
  }

  pause(on: boolean): void {
    this.paused = on;
    this.schedule();
  }

  hide(on: boolean): void {
    this.hidden = on;
    this.schedule();
  }

  nextUniverse(): void {
    if (this.begun) this.start(this.scene);
  }

  get(name: string): string {
    return this.engine.get(name);
  }

  set(name: string, value: string): string {
    const { fault, restart } = this.engine.set(name, value);
    if (restart) this.restart();
    return fault;
  }

  values(scope: Scope): Record<string, string> {
    return this.engine.values(recordOf(scope), false);
  }

  factory(scope: Scope): Record<string, string> {
    return this.engine.values(recordOf(scope), true);
  }

  names(): { profiles: string[]; composites: string[] } {
    const names = (count: number, record: string, key: string) =>
      Array.from({ length: count }, (_, i) => this.engine.get(`${record}${i}/${key}`));
    return {
      profiles: names(50, "Starfold", "_UniFoldName"),
      composites: names(16, "CompFold", "_CompFoldName"),
    };
  }

  openTemplate(bytes: Uint8Array): string {
    const fault = this.engine.openTemplate(bytes);
    if (fault === "") this.restart();
    return fault;
  }

  saveTemplate(): Uint8Array {
    return this.engine.saveTemplate();
  }

  useFactory(set: number): void {
    this.engine.useFactory(set);
    this.restart();
  }

  applyTheme(theme: number): void {
    this.engine.applyTheme(theme);
    this.restart();
  }

  applyFactoryProfile(profile: number, set: number, from: number): void {
    this.engine.applyFactoryProfile(profile, set, from);
    this.restart();
  }

  link(withSeed: boolean, withSize: boolean): Promise<string> {
    return packLink(this.engine.linkText(withSeed, withSize));
  }

  async openLink(fragment: string): Promise<LinkContents> {
    try {
      const json = this.engine.openLinkText(await unpackLink(fragment));
      const contents = JSON.parse(json) as LinkContents & { seed?: string | number };
      if (contents.fault === "") this.restart();
      return contents.seed === undefined ? contents : { ...contents, seed: Number(contents.seed) };
    } catch (fault) {
      if (!(fault instanceof LinkFault)) throw fault;
      return { fault: fault.message, scene: { kind: "universe" } };
    }
  }

  picture(): Promise<Blob> {
    if (!this.screen) return Promise.reject(new Error("There is no picture yet."));
    return this.screen.picture();
  }

  watch(on: boolean): void {
    this.watched = on;
  }

  hash(): FrameHash {
    return { frame: this.engine.frames, hash: this.engine.hash() };
  }

  async runUntil(frame: number): Promise<FrameHash> {
    this.paused = true;
    if (this.begun && (this.restarts || this.engine.frames < frame)) {
      await new Promise<void>((resolve) => {
        this.reached.push(resolve);
        this.target = Math.max(frame, 1);
        this.goOn(this.clock.skip(this.waits));
      });
    }
    this.schedule();
    return this.hash();
  }

  stats(): { frames: number; msPerFrame: number } {
    return { frames: this.frames, msPerFrame: this.mean };
  }
}

function post(message: AnswerMessage, transfer: Transferable[] = []): void {
  (postMessage as (message: AnswerMessage, transfer: Transferable[]) => void)(message, transfer);
}

function reasonOf(fault: unknown): string {
  return fault instanceof Error ? fault.message : String(fault);
}

/** An error in a run has ended the engine. */
function guarded(run: () => void): void {
  try {
    run();
  } catch (fault) {
    post({ kind: "fault", reason: reasonOf(fault) });
  }
}

const created = EngineWorker.create();

async function answer({ id, name, args }: CallMessage): Promise<void> {
  try {
    const worker = await created;
    const call = worker[name].bind(worker) as (...values: unknown[]) => unknown;
    const result = await call(...args);
    post({ kind: "answer", id, result }, result instanceof Uint8Array ? [result.buffer] : []);
  } catch (fault) {
    post({ kind: "refused", id, reason: reasonOf(fault) });
  }
}

addEventListener("message", (event: MessageEvent<CallMessage>) => void answer(event.data));
