// The panels: one is open at a time. Focus goes into it and back to its button.
import { byId } from "./dom";

export type PanelName = "gallery" | "settings" | "save" | "share" | "help";

export class Panels {
  private open: PanelName | undefined;
  private openers: Partial<Record<PanelName, () => void | Promise<void>>> = {};
  private focusBefore: HTMLElement | undefined;

  constructor() {
    for (const button of document.querySelectorAll(".panel .close")) {
      button.addEventListener("click", () => this.close());
    }
    document.addEventListener("keydown", (event) => {
      if (event.key !== "Escape" || !this.open) return;
      event.preventDefault();
      this.close();
    });
  }

  get isOpen(): boolean {
    return this.open !== undefined;
  }
  get current(): PanelName | undefined {
    return this.open;
  }

  /** Calls `opener` each time the panel opens, after it is visible. */
  onopen(name: PanelName, opener: () => void | Promise<void>): void {
    this.openers[name] = opener;
  }

  toggle(name: PanelName): void {
    if (this.open === name) this.close();
    else this.show(name);
  }

  show(name: PanelName): void {
    const focused = document.activeElement;
    if (!this.open && focused instanceof HTMLElement) this.focusBefore = focused;
    this.hide();
    this.open = name;
    byId(name).hidden = false;
    document.body.dataset["panel"] = name;
    byId(`bar-${name}`).setAttribute("aria-expanded", "true");
    void this.openers[name]?.();
    byId(`${name}-title`).focus({ preventScroll: true });
  }

  close(): void {
    const name = this.open;
    if (!name) return;
    this.hide();
    // Without a button that had it, the focus returns to the page, so that Space pauses.
    const before = this.focusBefore;
    before?.focus();
    // What is hidden takes no focus, and would leave it in the closed panel.
    if (document.activeElement !== before) (document.activeElement as HTMLElement | null)?.blur();
    this.focusBefore = undefined;
  }

  private hide(): void {
    if (!this.open) return;
    byId(this.open).hidden = true;
    byId(`bar-${this.open}`).setAttribute("aria-expanded", "false");
    delete document.body.dataset["panel"];
    this.open = undefined;
  }
}
