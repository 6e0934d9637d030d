// The control of one setting: a label, a slider beside a number (or a list, a box, a text), and a
// button that resets the value.
import type { FieldRow } from "../engine/protocol";
import { icon, make } from "./dom";
import { kPositions, positionOf, valueAt, type Range } from "./scale";

export interface RowOptions {
  /** The full name: "Starfold7/Starfold_Radius". */
  name: string;
  field: FieldRow;
  label: string;
  /** Of numbers. */
  range: Range | undefined;
  /** Of lists; the first stands for the low end of the field's range. */
  choices: string[];
  value: string;
  /** The value that the reset button gives. */
  usual: string;
  /** The visitor has changed the value; `done` is false while a slider moves. */
  onchange: (row: SettingRow, value: string, done: boolean) => void;
}

let rows = 0;

export class SettingRow {
  readonly element: HTMLElement;
  readonly label: string;
  readonly name: string;
  private readonly id = `setting-${++rows}`;
  private readonly reset: HTMLButtonElement;
  private readonly put: (value: string) => void;
  private current: string;

  constructor(private readonly options: RowOptions) {
    this.label = options.label;
    this.name = options.name;
    this.current = options.value;
    const controls = make("div", { class: "controls" });
    this.put = this.makeControls(controls);
    this.reset = this.makeReset();
    const label = make("label", { for: this.id }, options.label);
    const kind = options.range ? "number" : options.field.kind;
    this.element = make("div", { class: `row ${kind}` }, label, controls, this.reset);
    this.element.dataset["name"] = options.name;
    this.show(options.value);
  }

  get value(): string {
    return this.current;
  }

  /** Shows a value that was set elsewhere. */
  show(value: string): void {
    this.current = value;
    this.put(value);
    this.reset.classList.toggle("useless", isSame(value, this.options.usual));
  }

  private change(value: string, done: boolean): void {
    this.current = value;
    this.reset.classList.toggle("useless", isSame(value, this.options.usual));
    this.options.onchange(this, value, done);
  }

  private makeReset(): HTMLButtonElement {
    const text = `Reset ${this.label} to ${this.textOf(this.options.usual)}`;
    const button = make(
      "button",
      { type: "button", class: "icon reset", title: text },
      icon("reset"),
    );
    button.setAttribute("aria-label", text);
    button.addEventListener("click", () => {
      this.show(this.options.usual);
      this.change(this.options.usual, true);
    });
    return button;
  }

  /** The value as the visitor reads it. */
  private textOf(value: string): string {
    if (this.options.field.kind === "flag") return value === "1" ? "on" : "off";
    const { field, choices } = this.options;
    if (field.kind === "choice") return choices[Number(value) - (field.low ?? 0)] ?? value;
    return value === "" ? "nothing" : value;
  }

  /** Adds the controls of the setting's kind. Returns what shows a value in them. */
  private makeControls(into: HTMLElement): (value: string) => void {
    const { field, range } = this.options;
    if (field.kind === "flag") return this.makeBox(into);
    if (field.kind === "choice") return this.makeList(into);
    if (range) return this.makeNumber(into, range);
    return this.makeText(into);
  }

  private makeBox(into: HTMLElement): (value: string) => void {
    const box = make("input", { type: "checkbox", id: this.id });
    box.addEventListener("change", () => this.change(box.checked ? "1" : "0", true));
    into.append(box);
    return (value) => (box.checked = value === "1");
  }

  private makeList(into: HTMLElement): (value: string) => void {
    const list = make("select", { id: this.id });
    for (const [index, text] of this.options.choices.entries()) {
      const value = String(index + (this.options.field.low ?? 0));
      list.append(make("option", { value }, text));
    }
    list.addEventListener("change", () => this.change(list.value, true));
    into.append(list);
    return (value) => (list.value = value);
  }

  private makeText(into: HTMLElement): (value: string) => void {
    const field = make("input", {
      type: "text",
      id: this.id,
      maxlength: "127",
      spellcheck: "false",
    });
    field.addEventListener("change", () => this.change(field.value, true));
    into.append(field);
    return (value) => (field.value = value);
  }

  private makeNumber(into: HTMLElement, range: Range): (value: string) => void {
    const slider = make("input", { type: "range", min: "0", max: String(kPositions), step: "1" });
    slider.setAttribute("aria-label", `${this.label}, slider`);
    const number = make("input", {
      type: "number",
      id: this.id,
      min: String(range.low),
      max: String(range.high),
      step: range.whole ? "1" : "any",
      inputmode: range.whole ? "numeric" : "decimal",
      title: `${range.low} to ${range.high}`,
    });
    const showSlider = (value: string): void => {
      slider.value = String(positionOf(Number(value), range));
      slider.setAttribute("aria-valuetext", value);
    };
    slider.addEventListener("input", () => {
      // A key moves to the next number, even where a position is less than one.
      const value = String(this.nextValue(Number(slider.value), range));
      number.value = value;
      slider.setAttribute("aria-valuetext", value);
      this.change(value, false);
    });
    slider.addEventListener("change", () => {
      showSlider(this.current);
      this.change(this.current, true);
    });
    const take = (done: boolean): void => {
      if (number.value === "" || !Number.isFinite(number.valueAsNumber)) return;
      const value = Math.min(range.high, Math.max(range.low, number.valueAsNumber));
      const text = String(range.whole ? Math.round(value) : value);
      showSlider(text);
      this.change(text, done);
    };
    // What is typed is shown at once where it is in range: "40" may be the beginning of "400".
    number.addEventListener("input", () => {
      if (number.validity.valid) take(false);
    });
    number.addEventListener("change", () => {
      take(true);
      number.value = this.current;
    });
    into.append(slider, number);
    return (value) => {
      number.value = value;
      showSlider(value);
    };
  }

  private nextValue(position: number, range: Range): number {
    const value = valueAt(position, range);
    const now = Number(this.current);
    const before = positionOf(now, range);
    if (!range.whole || value !== now || position === before) return value;
    return Math.min(range.high, Math.max(range.low, now + Math.sign(position - before)));
  }
}

function isSame(value: string, other: string): boolean {
  return value === other || (value !== "" && other !== "" && Number(value) === Number(other));
}
