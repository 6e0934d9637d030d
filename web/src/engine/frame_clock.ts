// When the next frame is due: the screen's refresh sets the pace, and the frame delay of the
// settings holds on average.

/** A refresh this many milliseconds before a frame is due shows it, rather than the next refresh. */
const early = 4;
/** Timers are late by some milliseconds; a refresh this long after one is waited for. */
const timerMargin = 12;
/** A frame that is later than this does not hurry the following ones. */
const latest = 100;

export class FrameClock {
  private readonly go: (time: number) => void;
  private timer = 0;
  private refresh = 0;
  /** When the last frame was due, as `performance.now()`. */
  private last = 0;
  /** The engine's time, in milliseconds. */
  private time = 0;

  /** `go` is called with the engine's time when a frame is due. */
  constructor(go: (time: number) => void) {
    this.go = go;
  }

  /** Lets the engine's time pass without waiting. */
  skip(milliseconds: number): number {
    this.time += milliseconds;
    return this.time;
  }

  /** Calls `go` after so many milliseconds since the last frame was due; 0: at the next refresh. */
  schedule(milliseconds: number): void {
    this.cancel();
    const now = performance.now();
    let due = milliseconds === 0 ? now : this.last + milliseconds;
    if (due < now - latest) due = now;
    const fire = (shown: number) => {
      if (shown < due - early) {
        this.refresh = requestAnimationFrame(fire);
        return;
      }
      this.last = shown > due + latest ? shown : due;
      this.go(this.skip(milliseconds));
    };
    const askForRefresh = () => {
      this.refresh = requestAnimationFrame(fire);
    };
    const wait = due - now - timerMargin;
    if (wait > early) this.timer = setTimeout(askForRefresh, wait) as unknown as number;
    else askForRefresh();
  }

  cancel(): void {
    clearTimeout(this.timer);
    cancelAnimationFrame(this.refresh);
  }
}
