// The engine as the page sees it: a proxy of the worker.
import type { AnswerMessage, CallMessage, CallName, Calls } from "./calls";
import type { EngineClient, SettingsTable } from "./protocol";

type Result<Name extends CallName> = Awaited<ReturnType<Calls[Name]>>;

interface Asked {
  resolve(result: unknown): void;
  reject(reason: Error): void;
}

class WorkerCalls {
  onpicture: ((frame: ImageBitmap) => void) | null = null;
  onfault: (message: string) => void = () => undefined;
  private readonly worker: Worker;
  private readonly asked = new Map<number, Asked>();
  private lastId = 0;

  constructor() {
    this.worker = new Worker(new URL("./worker.js", import.meta.url), { type: "module" });
    this.worker.onmessage = (event: MessageEvent<AnswerMessage>) => this.take(event.data);
    this.worker.onerror = (event) => this.fail(event.message || "The engine could not be loaded.");
  }

  call<Name extends CallName>(
    name: Name,
    args: Parameters<Calls[Name]>,
    transfer: Transferable[] = [],
  ): Promise<Result<Name>> {
    const id = ++this.lastId;
    return new Promise<Result<Name>>((resolve, reject) => {
      this.asked.set(id, { resolve: (result) => resolve(result as Result<Name>), reject });
      this.worker.postMessage({ id, name, args } satisfies CallMessage, transfer);
    });
  }

  private take(message: AnswerMessage): void {
    if (message.kind === "fault") {
      this.fail(message.reason);
    } else if (message.kind === "picture") {
      if (this.onpicture) this.onpicture(message.frame);
      else message.frame.close();
    } else {
      const asked = this.asked.get(message.id);
      this.asked.delete(message.id);
      if (message.kind === "answer") asked?.resolve(message.result);
      else asked?.reject(new Error(message.reason));
    }
  }

  private fail(reason: string): void {
    for (const asked of this.asked.values()) asked.reject(new Error(reason));
    this.asked.clear();
    this.onfault(reason);
  }
}

/** Starts the worker. Rejects if the engine cannot be loaded. */
export async function createEngine(): Promise<EngineClient> {
  const worker = new WorkerCalls();
  const table = JSON.parse(await worker.call("table", [])) as SettingsTable;
  document.addEventListener("visibilitychange", () => {
    void worker.call("hide", [document.hidden]);
  });
  if (document.hidden) void worker.call("hide", [true]);

  return {
    table,
    attach(canvas) {
      const offscreen = canvas.transferControlToOffscreen();
      void worker.call("attach", [offscreen], [offscreen]);
    },
    start: (scene, seed) => worker.call("start", seed === undefined ? [scene] : [scene, seed]),
    resize: (width, height) => worker.call("resize", [width, height]),
    pause: (on) => void worker.call("pause", [on]),
    nextUniverse: () => void worker.call("nextUniverse", []),
    get: (name) => worker.call("get", [name]),
    set: (name, value) => worker.call("set", [name, value]),
    values: (scope) => worker.call("values", [scope]),
    factory: (scope) => worker.call("factory", [scope]),
    names: () => worker.call("names", []),
    openTemplate: (bytes) => worker.call("openTemplate", [bytes]),
    saveTemplate: () => worker.call("saveTemplate", []),
    useFactory: (set) => worker.call("useFactory", [set]),
    applyTheme: (theme) => worker.call("applyTheme", [theme]),
    applyFactoryProfile: (profile, set, from) =>
      worker.call("applyFactoryProfile", [profile, set, from]),
    link: ({ seed = false, size = false }) => worker.call("link", [seed, size]),
    openLink: (fragment) => worker.call("openLink", [fragment]),
    picture: () => worker.call("picture", []),
    watch(listener) {
      worker.onpicture = listener;
      void worker.call("watch", [listener !== null]);
    },
    hash: () => worker.call("hash", []),
    runUntil: (frame) => worker.call("runUntil", [frame]),
    stats: () => worker.call("stats", []),
    get onfault() {
      return worker.onfault;
    },
    set onfault(listener) {
      worker.onfault = listener;
    },
  };
}
