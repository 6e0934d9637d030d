// The bar of controls: shown by a moved pointer, a touch or a key, and gone after some seconds.
import type { App } from "./app";
import { byId, setIcon, takesKeys } from "./dom";
import { tell } from "./message";
import type { Panels } from "./panels";
import { remember, remembered } from "./preferences";

const kShownFor = 3500;
/** Pixels that a pointer moves by itself, on a desk that shakes. */
const kSmallMove = 3;

export class Bar {
  private timer: ReturnType<typeof setTimeout> | undefined;
  private readonly bar = byId("bar");

  constructor(
    private readonly app: App,
    private readonly panels: Panels,
  ) {
    this.wireButtons();
    this.wirePointer();
    document.addEventListener("keydown", (event) => this.key(event));
    this.bar.addEventListener("focusin", () => this.wake());
    app.onchange(() => this.update());
    document.addEventListener("fullscreenchange", () => this.update());
    this.greet();
    this.update();
  }

  /** Shows the bar, until some seconds have passed without a reason to show it. */
  wake(): void {
    document.body.classList.add("awake");
    clearTimeout(this.timer);
    this.timer = setTimeout(() => this.rest(), kShownFor);
  }

  private rest(): void {
    const isUsed = this.bar.matches(":hover, :has(:focus-visible)") || this.panels.isOpen;
    if (isUsed) this.wake();
    else document.body.classList.remove("awake");
  }

  private wireButtons(): void {
    const on = (id: string, action: () => void): void =>
      byId(id).addEventListener("click", () => action());
    on("bar-pause", () => this.togglePause());
    on("bar-next", () => void this.app.next());
    on("bar-full", () => void this.toggleFullScreen());
    for (const name of ["gallery", "settings", "save", "share", "help"] as const) {
      on(`bar-${name}`, () => this.panels.toggle(name));
    }
    if (!document.fullscreenEnabled) byId("bar-full").hidden = true;
  }

  private wirePointer(): void {
    let last: { x: number; y: number } | undefined;
    document.addEventListener("pointermove", (event) => {
      const moved = last ? Math.hypot(event.screenX - last.x, event.screenY - last.y) : 0;
      if (last && moved < kSmallMove) return;
      last = { x: event.screenX, y: event.screenY };
      if (event.pointerType !== "touch") this.wake();
    });
    // A touch of the sky shows the bar, another one hides it.
    byId("stage").addEventListener("click", (event) => {
      if (this.panels.isOpen) this.panels.close();
      else if (isTouch(event) && document.body.classList.contains("awake") && this.canHide()) {
        document.body.classList.remove("awake");
      } else this.wake();
    });
    byId("stage").addEventListener("dblclick", () => void this.toggleFullScreen());
  }

  private canHide(): boolean {
    return !this.bar.matches(":has(:focus-visible)");
  }

  private key(event: KeyboardEvent): void {
    if (event.key === "Escape" && !event.defaultPrevented && !this.panels.isOpen) {
      if (document.activeElement instanceof HTMLElement) document.activeElement.blur();
      document.body.classList.remove("awake");
      return;
    }
    this.wake();
    if (event.ctrlKey || event.altKey || event.metaKey || takesKeys(event.target)) return;
    if (remembered("single-keys") === "off") return;
    const action = this.actionOf(event);
    if (!action) return;
    event.preventDefault();
    action();
  }

  private actionOf(event: KeyboardEvent): (() => void) | undefined {
    const isOnButton =
      event.target instanceof Element && event.target.closest("button, [tabindex]");
    switch (event.key.toLowerCase()) {
      case " ":
        return isOnButton ? undefined : () => this.togglePause();
      case "n":
        return () => void this.app.next();
      case "f":
        return () => void this.toggleFullScreen();
      case "g":
        return () => this.panels.toggle("gallery");
      case "s":
        return () => this.panels.toggle("settings");
      case "d":
        return () => this.panels.toggle("save");
      case "l":
        return () => this.panels.toggle("share");
      case "h":
      case "?":
        return () => this.panels.toggle("help");
      default:
        return undefined;
    }
  }

  private togglePause(): void {
    this.app.pause(!this.app.paused);
    tell(this.app.paused ? "Paused" : "");
  }

  private async toggleFullScreen(): Promise<void> {
    try {
      if (document.fullscreenElement) await document.exitFullscreen();
      else await document.documentElement.requestFullscreen({ navigationUI: "hide" });
    } catch {
      tell("This browser does not allow full screen here.");
    }
  }

  private update(): void {
    const pause = byId("bar-pause");
    const text = this.app.paused ? "Play" : "Pause";
    setIcon(pause, this.app.paused ? "play" : "pause");
    pause.querySelector("span")!.textContent = text;
    pause.title = `${text} (Space)`;
    const isUniverse = this.app.scene.kind === "universe";
    const next = isUniverse ? "Next universe" : this.app.visiting ? "Again" : "My universe";
    byId("bar-next").querySelector("span")!.textContent = next;
    byId("bar-next").title = `${next} (N)`;
    const full = byId("bar-full");
    const isFull = document.fullscreenElement !== null;
    setIcon(full, isFull ? "window" : "full");
    full.querySelector("span")!.textContent = isFull ? "Leave full screen" : "Full screen";
    full.title = isFull ? "Leave full screen (F)" : "Full screen (F)";
  }

  /** Tells a new visitor how to reach the bar. */
  private greet(): void {
    const greeting = byId("greeting");
    const touch = matchMedia("(pointer: coarse)").matches;
    if (this.app.paused) {
      greeting.textContent = "A still, as your system asks for less motion. Play starts it.";
      this.wake();
    } else if (remembered("greeted") === null) {
      greeting.textContent = touch ? "Touch the sky" : "Move the pointer or press a key";
    }
    remember("greeted", "yes");
    const end = (): void => greeting.classList.add("gone");
    setTimeout(end, 9000);
    for (const type of ["pointerdown", "pointermove", "keydown"]) {
      document.addEventListener(type, end, { once: true });
    }
  }
}

function isTouch(event: MouseEvent): boolean {
  return event instanceof PointerEvent && event.pointerType === "touch";
}
