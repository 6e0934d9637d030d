// The panel that saves pictures, clips and templates, and opens templates.
import type { App } from "./app";
import { canRecord, record } from "./clip";
import { byId } from "./dom";
import { download, timedName } from "./files";
import { tell, tellFailure } from "./message";
import type { Panels } from "./panels";

const kTemplateType = "application/x-starfolds-template";
/** Templates have about 100 KB. The engine refuses what is none, but a film would be read first. */
const kLargestTemplate = 4_000_000;

export class SavePanel {
  private recording: AbortController | undefined;

  constructor(
    private readonly app: App,
    private readonly panels: Panels,
  ) {
    const file = byId<HTMLInputElement>("template-file");
    byId("save-picture").addEventListener("click", () => void this.savePicture());
    byId("save-template").addEventListener("click", () => void this.saveTemplate());
    byId("open-template").addEventListener("click", () => file.click());
    file.addEventListener("change", () => {
      if (file.files?.[0]) void this.openTemplate(file.files[0]);
      file.value = ""; // the same file can be chosen again
    });
    byId("clip-record").addEventListener("click", () => this.toggleRecording());
    byId("clip-cancel").addEventListener("click", () => this.recording?.abort("cancel"));
    byId<HTMLButtonElement>("clip-record").disabled = !canRecord();
    this.wireDrop();
  }

  private async savePicture(): Promise<void> {
    try {
      download(await this.app.engine.picture(), timedName(".png"), "image/png");
    } catch (reason) {
      tellFailure("The picture was not saved", reason);
    }
  }

  // --- Templates ---

  private async saveTemplate(): Promise<void> {
    try {
      download(await this.app.engine.saveTemplate(), timedName(".sfd"), kTemplateType);
    } catch (reason) {
      tellFailure("The template was not saved", reason);
    }
  }

  private async openTemplate(file: File): Promise<void> {
    if (file.size > kLargestTemplate) {
      tell(`${file.name} is too large for a template.`);
      return;
    }
    try {
      const bytes = new Uint8Array(await file.arrayBuffer());
      if (await this.app.openTemplate(bytes, file.name)) this.panels.close();
    } catch (reason) {
      tellFailure(`${file.name} was not opened`, reason);
    }
  }

  private wireDrop(): void {
    const target = byId("drop");
    const hasFiles = (event: DragEvent): boolean =>
      event.dataTransfer?.types.includes("Files") ?? false;
    document.addEventListener("dragover", (event) => {
      if (!hasFiles(event)) return;
      event.preventDefault();
      target.hidden = false;
    });
    document.addEventListener("dragleave", (event) => {
      if (event.relatedTarget === null) target.hidden = true;
    });
    document.addEventListener("drop", (event) => {
      target.hidden = true;
      if (!hasFiles(event)) return;
      event.preventDefault();
      const file = event.dataTransfer?.files[0];
      if (file) void this.openTemplate(file);
    });
  }

  // --- Clips ---

  private toggleRecording(): void {
    if (this.recording) this.recording.abort("stop");
    else void this.record();
  }

  private async record(): Promise<void> {
    const seconds = Number(byId<HTMLSelectElement>("clip-length").value);
    const recording = new AbortController();
    this.recording = recording;
    this.showProgress(0, seconds);
    const wasPaused = this.app.paused;
    if (wasPaused) this.app.pause(false);
    try {
      const show = (done: number): void => this.showProgress(done, seconds);
      const clip = await record(this.app.engine, seconds, show, recording.signal);
      if (clip) download(clip.file, timedName(clip.ending), clip.file.type);
      if (clip) tell("The clip is saved.");
    } catch (reason) {
      tellFailure("The clip was not recorded", reason);
    } finally {
      this.recording = undefined;
      if (wasPaused) this.app.pause(true);
      byId("clip-progress").hidden = true;
      byId("clip-record").textContent = "Record a clip";
      document.body.classList.remove("recording");
    }
  }

  private showProgress(done: number, seconds: number): void {
    document.body.classList.add("recording");
    byId("clip-progress").hidden = false;
    byId("clip-record").textContent = "Stop and save";
    byId<HTMLProgressElement>("clip-bar").value = done / seconds;
    byId("clip-time").textContent = `${Math.floor(done)} of ${seconds} s`;
  }
}
