// The panel that makes a link of the universe.
import type { App } from "./app";
import { byId } from "./dom";
import { tell, tellFailure } from "./message";
import type { Panels } from "./panels";

/** Links longer than this are cut by some programs that people send them with. */
const kLongForMail = 2000;

export class SharePanel {
  private readonly field = byId<HTMLTextAreaElement>("share-link");

  constructor(
    private readonly app: App,
    panels: Panels,
  ) {
    panels.onopen("share", () => this.update());
    for (const id of ["share-seed", "share-size"]) {
      byId(id).addEventListener("change", () => void this.update());
    }
    byId("share-copy").addEventListener("click", () => void this.copy());
    this.field.addEventListener("focus", () => this.field.select());
    const send = byId("share-send");
    send.hidden = typeof navigator.share !== "function";
    send.addEventListener("click", () => void this.send());
  }

  private async update(): Promise<void> {
    const checked = (id: string): boolean => byId<HTMLInputElement>(id).checked;
    byId("share-hint").hidden = !checked("share-seed") || checked("share-size");
    try {
      const options = { seed: checked("share-seed"), size: checked("share-size") };
      const fragment = await this.app.engine.link(options);
      this.field.value = `${location.origin}${location.pathname}#${fragment}`;
    } catch (reason) {
      this.field.value = "";
      tellFailure("There is no link for these settings", reason);
    }
    const length = this.field.value.length;
    byId("share-length").textContent =
      length > kLongForMail ? `${length} characters: too long for some programs` : "";
    for (const id of ["share-copy", "share-send"]) {
      byId<HTMLButtonElement>(id).disabled = length === 0;
    }
  }

  private async copy(): Promise<void> {
    try {
      await navigator.clipboard.writeText(this.field.value);
    } catch {
      // Without permission, or on a page that is not secure, the visitor copies what is selected.
      this.field.select();
      tell("The link is selected: copy it with Ctrl+C.");
      return;
    }
    tell("The link is copied.");
  }

  private async send(): Promise<void> {
    try {
      await navigator.share({ title: "Starfolds", url: this.field.value });
    } catch (reason) {
      if (reason instanceof DOMException && reason.name === "AbortError") return;
      tellFailure("The link was not sent", reason);
    }
  }
}
