// A clip of the sky, recorded by the browser.
import type { EngineClient } from "../engine/protocol";

const kTypes = [
  "video/webm;codecs=vp9",
  "video/webm;codecs=vp8",
  "video/mp4;codecs=avc1.640028",
  "video/webm",
  "video/mp4",
];
/** Single pixels of full colour are the worst case of every video format. */
const kBitsPerSecond = 12_000_000;

/** The first type that this browser records; undefined if it records none. */
function recordedType(): string | undefined {
  if (typeof MediaRecorder === "undefined") return undefined;
  return kTypes.find((type) => MediaRecorder.isTypeSupported(type));
}

export function canRecord(): boolean {
  return recordedType() !== undefined && "captureStream" in HTMLCanvasElement.prototype;
}

export interface Clip {
  file: Blob;
  /** ".webm" or ".mp4" */
  ending: string;
}

/**
 * Records what the engine shows for so many seconds; time in which the page is in the background
 * does not count. `progress` is called with the seconds recorded so far. Ends early, with what there
 * is, when `signal` is aborted with the reason "stop", and with undefined for any other reason.
 */
export async function record(
  engine: EngineClient,
  seconds: number,
  progress: (seconds: number) => void,
  signal: AbortSignal,
): Promise<Clip | undefined> {
  const type = recordedType();
  if (!type) throw new Error("this browser cannot record video");
  const frames = new FrameStream(engine);
  try {
    const size = await frames.first(signal);
    if (!size) return undefined;
    const stream = frames.canvas.captureStream(60);
    const recorder = new MediaRecorder(stream, {
      mimeType: type,
      videoBitsPerSecond: kBitsPerSecond,
    });
    const file = await collect(recorder, type, seconds, progress, signal);
    for (const track of stream.getTracks()) track.stop();
    return file && { file, ending: type.startsWith("video/mp4") ? ".mp4" : ".webm" };
  } finally {
    frames.end();
  }
}

/** A canvas on the page that shows what the engine shows: only such can be recorded everywhere. */
class FrameStream {
  readonly canvas = document.createElement("canvas");
  private readonly context = this.canvas.getContext("2d", { alpha: false })!;
  private onfirst: (() => void) | undefined;

  constructor(private readonly engine: EngineClient) {
    engine.watch((frame) => this.show(frame));
  }

  private show(frame: ImageBitmap): void {
    if (this.onfirst) {
      // Even sides, as some encoders want them; of the size that the recording began with.
      this.canvas.width = Math.max(2, frame.width & ~1);
      this.canvas.height = Math.max(2, frame.height & ~1);
      this.onfirst();
      this.onfirst = undefined;
    }
    this.context.drawImage(frame, 0, 0);
    frame.close();
  }

  /** True when the first frame is there; false if aborted before. */
  first(signal: AbortSignal): Promise<boolean> {
    return new Promise((resolve) => {
      this.onfirst = () => resolve(true);
      signal.addEventListener("abort", () => resolve(false), { once: true });
    });
  }

  end(): void {
    this.engine.watch(null);
  }
}

function collect(
  recorder: MediaRecorder,
  type: string,
  seconds: number,
  progress: (seconds: number) => void,
  signal: AbortSignal,
): Promise<Blob | undefined> {
  return new Promise((resolve, reject) => {
    const parts: Blob[] = [];
    let recorded = 0;
    let last = performance.now();
    const timer = setInterval(() => {
      const now = performance.now();
      if (!document.hidden) recorded += (now - last) / 1000;
      last = now;
      progress(Math.min(recorded, seconds));
      if (recorded >= seconds) stop();
    }, 100);
    const follow = (): void => {
      last = performance.now();
      if (recorder.state === "inactive") return;
      if (document.hidden) recorder.pause();
      else recorder.resume();
    };
    const stop = (): void => {
      clearInterval(timer);
      document.removeEventListener("visibilitychange", follow);
      if (recorder.state !== "inactive") recorder.stop();
    };
    document.addEventListener("visibilitychange", follow);
    signal.addEventListener("abort", stop, { once: true });
    recorder.addEventListener("dataavailable", (event) => parts.push(event.data));
    recorder.addEventListener("error", () => {
      stop();
      reject(new Error("the browser stopped the recording"));
    });
    recorder.addEventListener("stop", () => {
      const isWanted = !signal.aborted || signal.reason === "stop";
      resolve(isWanted ? new Blob(parts, { type: type.split(";")[0]! }) : undefined);
    });
    recorder.start(1000);
  });
}
