// The engine's WebAssembly module: loading it, texts in and out, and the stack that is stored away
// while a run waits.

/** Functions of engine.cpp. */
interface Exports {
  memory: WebAssembly.Memory;
  _initialize(): void;
  malloc(size: number): number;
  input(size: number): number;
  output(): number;
  outputSize(): number;
  table(): void;
  get(): void;
  set(nameSize: number): number;
  values(): void;
  factoryValues(): void;
  openTemplate(): void;
  saveTemplate(): void;
  useFactory(set: number): void;
  applyTheme(theme: number): void;
  applyFactoryProfile(profile: number, set: number, from: number): void;
  linkText(withSeed: number, withSize: number): void;
  openLinkText(): void;
  resize(width: number, height: number): void;
  run(kind: number, body: number, seedHigh: number, seedLow: number): void;
  stop(): void;
  frames(): number;
  hash(): void;
  asyncify_start_unwind(data: number): void;
  asyncify_stop_unwind(): void;
  asyncify_start_rewind(data: number): void;
  asyncify_stop_rewind(): void;
}

/** What the engine asks of its page. */
export interface Page {
  /**
   * The engine's time when a run may go on, which is asked for after each frame: after
   * `milliseconds`, or with 0 at the screen's next refresh. "wait": the run returns, and goes on
   * when `resume` is called.
   */
  wait(milliseconds: number): number | "wait";
  /**
   * A frame: pairs of place (row in the high 16 bits, column in the low ones) and colour
   * (0xBBGGRR), or all pixels by rows. Valid during the call.
   */
  present(words: Uint32Array, isWhole: boolean): void;
}

/** The arguments of `run`. */
export interface Run {
  kind: "universe" | "profile" | "composite";
  index: number;
  seed: number;
}

/** The stack of a waiting run takes some hundred bytes. */
const stackSize = 16384;

const kinds = ["universe", "profile", "composite"];

export class EngineModule {
  private readonly calls: Exports;
  /** The head of the stored stack: two pointers, its place and its end. */
  private readonly stack: number;
  private state: "idle" | "running" | "unwinding" | "waiting" | "rewinding" = "idle";
  private time = 0;
  private run: Run | undefined;

  static async load(module: WebAssembly.Module, page: Page): Promise<EngineModule> {
    const self: { engine?: EngineModule } = {};
    const imports = {
      page: {
        wait: (milliseconds: number) => self.engine!.wait(milliseconds, page),
        present: (words: number, count: number, isWhole: number) => {
          const length = isWhole === 0 ? 2 * count : count;
          page.present(new Uint32Array(self.engine!.calls.memory.buffer, words, length), isWhole !== 0);
        },
      },
      env: { emscripten_notify_memory_growth: () => undefined },
      wasi_snapshot_preview1: {
        proc_exit: (code: number) => {
          throw new Error(`The engine ended with code ${code}.`);
        },
      },
    };
    const instance = await WebAssembly.instantiate(module, imports);
    self.engine = new EngineModule(instance.exports as unknown as Exports);
    return self.engine;
  }

  private constructor(calls: Exports) {
    this.calls = calls;
    calls._initialize();
    this.stack = calls.malloc(8 + stackSize);
  }

  private wait(milliseconds: number, page: Page): number {
    if (this.state === "rewinding") {
      this.calls.asyncify_stop_rewind();
      this.state = "running";
      return this.time;
    }
    const answer = page.wait(milliseconds);
    if (answer !== "wait") return answer;
    new Uint32Array(this.calls.memory.buffer, this.stack, 2).set([
      this.stack + 8,
      this.stack + 8 + stackSize,
    ]);
    this.calls.asyncify_start_unwind(this.stack);
    this.state = "unwinding";
    return 0;
  }

  private enter(run: Run): void {
    const high = Math.floor(run.seed / 2 ** 32);
    this.calls.run(kinds.indexOf(run.kind), run.index, high, run.seed >>> 0);
    if ((this.state as string) === "unwinding") {
      this.calls.asyncify_stop_unwind();
      this.state = "waiting";
    } else {
      this.state = "idle";
    }
  }

  get isWaiting(): boolean {
    return this.state === "waiting";
  }

  /** Ends the run that waits, and begins another one. Returns when that waits. */
  start(run: Run): void {
    this.stop();
    this.run = run;
    this.state = "running";
    this.enter(run);
  }

  /** Continues the run that waits; `time` in milliseconds, a 32-bit whole number. */
  resume(time: number): void {
    if (this.state !== "waiting" || !this.run) return;
    this.time = time | 0;
    this.calls.asyncify_start_rewind(this.stack);
    this.state = "rewinding";
    this.enter(this.run);
  }

  /** Ends the run that waits. */
  stop(): void {
    if (this.state !== "waiting") return;
    this.calls.stop();
    this.resume(this.time);
  }

  /** Frames that the run has shown. */
  get frames(): number {
    return this.calls.frames();
  }

  resize(width: number, height: number): void {
    this.stop();
    this.calls.resize(width, height);
  }

  private write(bytes: Uint8Array): void {
    const place = this.calls.input(bytes.length);
    new Uint8Array(this.calls.memory.buffer, place, bytes.length).set(bytes);
  }

  private writeText(text: string): number {
    const bytes = new TextEncoder().encode(text);
    this.write(bytes);
    return bytes.length;
  }

  private answer(): Uint8Array<ArrayBuffer> {
    const { memory } = this.calls;
    return new Uint8Array(memory.buffer, this.calls.output(), this.calls.outputSize()).slice();
  }

  private answerText(): string {
    return new TextDecoder().decode(this.answer());
  }

  table(): string {
    this.calls.table();
    return this.answerText();
  }

  get(name: string): string {
    this.writeText(name);
    this.calls.get();
    return this.answerText();
  }

  /** Whether the change is seen only after the run has begun anew. */
  set(name: string, value: string): { fault: string; restart: boolean } {
    const nameSize = new TextEncoder().encode(name).length;
    this.writeText(name + value);
    const restart = this.calls.set(nameSize) !== 0;
    return { fault: this.answerText(), restart };
  }

  /** Of the settings, or of those of factory set 4.x. */
  values(record: string, ofFactory: boolean): Record<string, string> {
    this.writeText(record);
    if (ofFactory) this.calls.factoryValues();
    else this.calls.values();
    return JSON.parse(this.answerText()) as Record<string, string>;
  }

  openTemplate(bytes: Uint8Array): string {
    this.write(bytes);
    this.calls.openTemplate();
    return this.answerText();
  }

  saveTemplate(): Uint8Array {
    this.calls.saveTemplate();
    return this.answer();
  }

  useFactory(set: number): void {
    this.calls.useFactory(set);
  }

  applyTheme(theme: number): void {
    this.calls.applyTheme(theme);
  }

  applyFactoryProfile(profile: number, set: number, from: number): void {
    this.calls.applyFactoryProfile(profile, set, from);
  }

  linkText(withSeed: boolean, withSize: boolean): Uint8Array<ArrayBuffer> {
    this.calls.linkText(Number(withSeed), Number(withSize));
    return this.answer();
  }

  openLinkText(text: Uint8Array): string {
    this.write(text);
    this.calls.openLinkText();
    return this.answerText();
  }

  hash(): string {
    this.calls.hash();
    return this.answerText();
  }
}
