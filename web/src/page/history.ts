// What undo and redo step through.

export interface Step {
  /** What was changed, for the visitor: "Radius". */
  text: string;
  /** Steps with the same key that follow each other are one, until `seal`. */
  key?: string;
  undo: () => Promise<void>;
  redo: () => Promise<void>;
}

const kMostSteps = 200;

export class History {
  /** Called after each change of what can be undone or redone. */
  onchange: () => void = () => {};
  private done: Step[] = [];
  private undone: Step[] = [];
  private sealed = true;

  /** Adds a step that has been done. */
  add(step: Step): void {
    const last = this.done.at(-1);
    if (last && !this.sealed && step.key !== undefined && last.key === step.key) {
      last.redo = step.redo;
    } else {
      this.done.push(step);
      if (this.done.length > kMostSteps) this.done.shift();
    }
    this.sealed = false;
    this.undone = [];
    this.onchange();
  }

  /** Ends a run of steps with the same key, such as one movement of a slider. */
  seal(): void {
    this.sealed = true;
  }

  get undoText(): string | undefined {
    return this.done.at(-1)?.text;
  }
  get redoText(): string | undefined {
    return this.undone.at(-1)?.text;
  }

  async undo(): Promise<void> {
    const step = this.done.pop();
    if (!step) return;
    this.sealed = true;
    this.undone.push(step);
    await step.undo();
    this.onchange();
  }

  async redo(): Promise<void> {
    const step = this.undone.pop();
    if (!step) return;
    this.sealed = true;
    this.done.push(step);
    await step.redo();
    this.onchange();
  }
}
