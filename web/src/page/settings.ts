// The settings panel. Its rows are made from the engine's table; a change shows at once.
import type { FieldRow, Scene, Scope } from "../engine/protocol";
import type { App } from "./app";
import { byId, make, takesKeys } from "./dom";
import { tell } from "./message";
import type { Panels } from "./panels";
import { SettingRow } from "./setting_row";
import { surprise } from "./surprise";
import { withValues } from "./template_text";

type Tab = "universe" | "profile" | "composite" | "advanced";
const kTabs: readonly Tab[] = ["universe", "profile", "composite", "advanced"];

/** The styles whose bodies are points that the visitor sets. */
const kUserIfs = 8;
const kMolecule = 9;
/** The colour rule of bodies whose stars are not plotted. */
const kInvisible = "4";
/** Settings of the table that have controls of their own, or none. */
const kOwnControls = new Set([
  "Starfold_IFS_Points",
  "Starfold_Atoms",
  "CompFold_Count",
  "Starfold_FoldStyle",
]);
/** What concerns the windows of the desktop program, and its message on the screen. */
const kDesktopOnly = new Set([
  "LockMessage",
  "Adv_FontName",
  "Adv_FontSize",
  "Adv_FontHueV",
  "Adv_FontDrift",
  "Adv_WinResize",
  "Adv_MouseMove",
  "Adv_DispBackG",
]);
/** The weight that a body gets where it would have none. */
const kUsualWeight = "10";

type Values = Record<string, string>;

export class SettingsPanel {
  private tab: Tab = "universe";
  private index = { profile: 0, composite: 0 };
  private names: { profiles: string[]; composites: string[] } = { profiles: [], composites: [] };
  private values: Values = {};
  private usual: Values = {};
  private rows = new Map<string, SettingRow>();
  /** The parts of the page that the visitor has closed. */
  private closed = new Set<string>();
  /** Values on their way to the engine; only the last one of each setting counts. */
  private waiting = new Map<string, string>();
  private isSending = false;

  constructor(
    private readonly app: App,
    private readonly panels: Panels,
  ) {
    for (const tab of kTabs)
      byId(`tab-${tab}`).addEventListener("click", () => void this.choose(tab));
    byId("settings")
      .querySelector('[role="tablist"]')!
      .addEventListener("keydown", (event) => {
        this.tabKey(event as KeyboardEvent);
      });
    byId("undo").addEventListener("click", () => void this.step("undo"));
    byId("redo").addEventListener("click", () => void this.step("redo"));
    byId("surprise").addEventListener("click", () => void this.surprise());
    byId("start-over").addEventListener("click", () => void this.startOver());
    byId("settings").addEventListener("keydown", (event) => this.key(event));
    app.history.onchange = () => this.showHistory();
    this.showHistory();
  }

  /** Shows the settings of what is on the surface. */
  async open(): Promise<void> {
    const { scene } = this.app;
    if (scene.kind === "universe") {
      if (this.tab !== "advanced") this.tab = "universe";
    } else {
      this.tab = scene.kind;
      this.index[scene.kind] = scene.index;
    }
    await this.build();
  }

  // --- Tabs and bodies ---

  private async choose(tab: Tab): Promise<void> {
    this.tab = tab;
    await this.reveal();
    await this.build();
  }

  private async chooseBody(index: number): Promise<void> {
    if (this.tab === "profile" || this.tab === "composite") this.index[this.tab] = index;
    await this.reveal();
    await this.build();
  }

  /** Shows what the tab's settings belong to; the display's belong to everything. */
  private async reveal(): Promise<void> {
    if (this.tab === "advanced") return;
    const wanted = this.scene();
    const { scene } = this.app;
    const isShown =
      wanted.kind === scene.kind &&
      (wanted.kind === "universe" || (scene.kind !== "universe" && wanted.index === scene.index));
    if (!isShown) await this.app.show(wanted);
  }

  private scene(): Scene {
    if (this.tab === "profile" || this.tab === "composite") {
      return { kind: this.tab, index: this.index[this.tab] };
    }
    return { kind: "universe" };
  }

  private scope(): Scope {
    switch (this.tab) {
      case "profile":
        return `profile:${this.index.profile}`;
      case "composite":
        return `composite:${this.index.composite}`;
      case "universe":
      case "advanced":
        return this.tab;
    }
  }

  /** What stands before a setting's name in its full name. */
  private prefix(): string {
    switch (this.tab) {
      case "profile":
        return `Starfold${this.index.profile}/`;
      case "composite":
        return `CompFold${this.index.composite}/`;
      case "universe":
      case "advanced":
        return "";
    }
  }

  private tabKey(event: KeyboardEvent): void {
    const by = event.key === "ArrowRight" ? 1 : event.key === "ArrowLeft" ? -1 : 0;
    if (by === 0) return;
    const next = kTabs[(kTabs.indexOf(this.tab) + by + kTabs.length) % kTabs.length]!;
    event.preventDefault();
    void this.choose(next).then(() => byId(`tab-${next}`).focus());
  }

  // --- The page ---

  private async build(): Promise<void> {
    const { engine } = this.app;
    const scope = this.scope();
    this.names = await engine.names();
    this.values = await engine.values(scope);
    this.usual = await engine.factory(scope);
    if (scope !== this.scope()) return; // another tab was chosen meanwhile
    for (const tab of kTabs) {
      const button = byId(`tab-${tab}`);
      button.setAttribute("aria-selected", String(tab === this.tab));
      button.tabIndex = tab === this.tab ? 0 : -1;
    }
    this.rows.clear();
    const page = byId("settings-page");
    page.setAttribute("aria-labelledby", `tab-${this.tab}`);
    const scrolled = page.dataset["scope"] === scope ? page.scrollTop : 0;
    page.dataset["scope"] = scope;
    const refocus = focusIn(page);
    page.replaceChildren(...this.content());
    page.scrollTop = scrolled;
    refocus();
    byId("surprise").hidden = this.tab === "advanced";
  }

  private content(): HTMLElement[] {
    const { table } = this.app.engine;
    switch (this.tab) {
      case "universe":
        return [this.themes(), ...this.groups(table.universe)];
      case "profile":
        return [
          this.bodies(this.names.profiles, "Body", this.index.profile),
          this.factoryBodies(),
          this.styles(),
          this.only(),
          ...this.groups(table.profile),
          ...this.points(),
        ];
      case "composite":
        return [
          this.bodies(this.names.composites, "Composite", this.index.composite),
          this.only(),
          ...this.groups(table.composite),
          ...this.members(),
        ];
      case "advanced":
        return this.display(table.advanced);
    }
  }

  private display(fields: readonly FieldRow[]): HTMLElement[] {
    const desktop = fields.filter(({ name }) => kDesktopOnly.has(name));
    const note = make(
      "p",
      { class: "hint" },
      "Kept in templates, not in links; without effect here.",
    );
    return [
      ...this.groups(fields.filter((field) => !desktop.includes(field))),
      this.fold("Only in the desktop program", [note, ...this.makeRows(desktop, "")], false),
    ];
  }

  private style(): number {
    return this.tab === "profile" ? Number(this.values["Starfold_FoldStyle"]) : -1;
  }

  /** The rows of a table that the style shows, by their pages. */
  private groups(fields: readonly FieldRow[]): HTMLElement[] {
    const style = this.style();
    // In the order of the table, whichever rows the style shows.
    const pages = new Map(fields.map(({ page }): [string, FieldRow[]] => [page, []]));
    for (const field of fields) {
      const isShown = !field.styles || field.styles.includes(style);
      if (isShown && !kOwnControls.has(field.name)) pages.get(field.page)?.push(field);
    }
    return [...pages].map(([page, rows]) => {
      const elements = this.makeRows(rows, "");
      if (page === "") return make("div", { class: "group" }, ...elements);
      return this.fold(page, elements);
    });
  }

  /** A part of the page that opens and closes, and stays so when the page is built anew. */
  private fold(title: string, content: HTMLElement[], isOpen = true): HTMLElement {
    const part = make("details", { class: "group" }, make("summary", {}, title), ...content);
    part.open = this.closed.has(title) !== isOpen;
    part.addEventListener("toggle", () => {
      if (part.open === isOpen) this.closed.delete(title);
      else this.closed.add(title);
    });
    return part;
  }

  /** `inner` is the part of the names between record and setting, such as "IFS0/". */
  private makeRows(fields: readonly FieldRow[], inner: string): HTMLElement[] {
    const { captions } = this.app.engine.table;
    const style = this.style();
    return fields.map((field) => {
      const label = tidy(captions[style]?.[field.name] ?? field.label);
      return this.makeRow(field, inner, label.replace(/^Starfold /, "")).element;
    });
  }

  private makeRow(field: FieldRow, inner: string, label: string): SettingRow {
    const key = inner + field.name;
    const usual = this.usual[key] ?? field.default;
    const ends = field.ranges?.[this.style()] ?? [field.low, field.high];
    const isNumber = ["integer", "long", "single"].includes(field.kind);
    const [low, high] = ends;
    const row = new SettingRow({
      name: this.prefix() + key,
      field,
      label,
      range:
        isNumber && low !== undefined && high !== undefined
          ? { low, high, whole: field.kind !== "single", usual: Number(usual) }
          : undefined,
      choices: [...(field.profileChoices ? this.names.profiles : []), ...(field.choices ?? [])],
      value: this.values[key] ?? field.default,
      usual,
      onchange: (changed, value, done) => this.changed(key, changed, value, done),
    });
    this.rows.set(key, row);
    return row;
  }

  /** A list that does something when an entry is chosen. */
  private list(label: string, entries: [string, string][], choose: (value: string) => void) {
    const id = `list-${label.toLowerCase().replaceAll(/\W+/g, "-")}`;
    const list = make("select", { id });
    for (const [value, text] of entries) list.append(make("option", { value }, text));
    list.addEventListener("change", () => choose(list.value));
    const element = make(
      "div",
      { class: "row wide" },
      make("label", { for: id }, label),
      make("div", { class: "controls" }, list),
    );
    return { element, list };
  }

  // --- Rows that are no setting of the table ---

  private themes(): HTMLElement {
    const { table } = this.app.engine;
    const themes = table.sets[0]?.themes ?? [];
    const entries: [string, string][] = [
      ["", "Choose a theme"],
      ...themes.map((name, at): [string, string] => [String(at + 1), tidy(name)]),
    ];
    return this.list("Start from", entries, (theme) => {
      if (theme === "") return;
      void this.replace(`theme ${theme}`, () => this.app.engine.applyTheme(Number(theme)));
    }).element;
  }

  private bodies(names: readonly string[], label: string, chosen: number): HTMLElement {
    const entries = names.map((name, at): [string, string] => [String(at), tidy(name)]);
    const { element, list } = this.list(label, entries, (at) => void this.chooseBody(Number(at)));
    list.value = String(chosen);
    return element;
  }

  private factoryBodies(): HTMLElement {
    const names = this.app.engine.table.sets[0]?.profiles ?? [];
    const entries: [string, string][] = [
      ["", "Choose a body"],
      ...names.map((name, at): [string, string] => [String(at), tidy(name)]),
    ];
    return this.list("Start from", entries, (from) => {
      if (from === "") return;
      const { profile } = this.index;
      void this.replace(`starting from ${names[Number(from)]}`, () =>
        this.app.engine.applyFactoryProfile(profile, 0, Number(from)),
      );
    }).element;
  }

  private styles(): HTMLElement {
    const entries = this.app.engine.table.styles.map((name, at): [string, string] => [
      String(at),
      tidy(name),
    ]);
    const { element, list } = this.list("Style", entries, (style) => {
      const before = this.values["Starfold_FoldStyle"] ?? "0";
      this.record("Style", "Starfold_FoldStyle", before, style);
      this.app.history.seal();
      void this.send(this.prefix() + "Starfold_FoldStyle", style).then(() => this.build());
    });
    list.value = this.values["Starfold_FoldStyle"] ?? "0";
    return element;
  }

  /** A button that leaves this body alone in the universe. */
  private only(): HTMLElement {
    const button = make("button", { type: "button" }, "Only this in the universe");
    button.addEventListener("click", () => void this.leaveAlone());
    return make("div", { class: "row wide" }, button);
  }

  private async leaveAlone(): Promise<void> {
    const { engine } = this.app;
    const weight = this.prefix() + (this.tab === "profile" ? "_UniFoldPct" : "_CompFoldPct");
    const change = async (): Promise<void> => {
      await engine.set("_UniFoldPct", "0");
      for (const at of this.names.composites.keys()) {
        await engine.set(`CompFold${at}/_CompFoldPct`, "0");
      }
      await engine.set(weight, kUsualWeight);
    };
    await this.replace("leaving one body alone", change, { kind: "universe" });
    tell("Every starfold of your universe is this body now.");
  }

  /** The points of a user-defined body. */
  private points(): HTMLElement[] {
    const { table } = this.app.engine;
    if (this.style() === kUserIfs) {
      return this.pointRows("Rule", "IFS", "Starfold_IFS_Points", table.ifsCenter, table.ifsPoint);
    }
    if (this.style() === kMolecule) {
      return this.pointRows("Atom", "Atom", "Starfold_Atoms", table.atomCenter, table.atomPoint);
    }
    return [];
  }

  private pointRows(
    title: string,
    part: string,
    countName: string,
    center: readonly FieldRow[],
    point: readonly FieldRow[],
  ): HTMLElement[] {
    const field = this.app.engine.table.profile.find(({ name }) => name === countName);
    if (!field) return [];
    const count = this.makeRow(field, "", `${title}s`);
    const result = [this.fold(`${title}s`, [count.element, ...this.makeRows(center, "")])];
    for (let at = 0; at < Number(count.value); ++at) {
      const rows = this.makeRows(point, `${part}${at}/`);
      result.push(this.fold(`${title} ${at + 1}`, rows, at === 0));
    }
    return result;
  }

  /** A composite's members: one major type, and any others. */
  private members(): HTMLElement[] {
    const count = Number(this.values["CompFold_Count"] ?? 0);
    const chosen: number[] = [];
    for (let at = 0; at < count; ++at) chosen.push(Number(this.values[`CompFold_Type${at}`]));
    const entries = this.names.profiles.map((name, at): [string, string] => [
      String(at),
      tidy(name),
    ]);
    if (count === 0) entries.unshift(["", "Choose a body"]);
    const { element, list } = this.list("Major body", entries, (major) => {
      if (major === "") return;
      void this.setMembers([Number(major), ...chosen.slice(1)]);
    });
    list.value = String(chosen[0] ?? "");
    const boxes = this.names.profiles.map((name, at) => {
      const box = make("input", { type: "checkbox" });
      box.checked = chosen.indexOf(at) > 0;
      box.disabled = count === 0 || chosen[0] === at;
      box.addEventListener("change", () => {
        const others = chosen.slice(1).filter((member) => member !== at);
        void this.setMembers([chosen[0]!, ...others, ...(box.checked ? [at] : [])]);
      });
      return make("label", { class: "check" }, box, ` ${tidy(name)}`);
    });
    const note = make("p", { class: "hint" }, "The major body decides how near the camera comes.");
    return [
      make("div", { class: "group" }, element, note),
      this.fold("Other bodies in it", [make("div", { class: "checks" }, ...boxes)]),
    ];
  }

  private async setMembers(members: readonly number[]): Promise<void> {
    const most = this.app.engine.table.most.members;
    const unique = [...new Set(members)].slice(0, most);
    const prefix = this.prefix();
    await this.replace("Members", async () => {
      await this.app.engine.set(`${prefix}CompFold_Count`, String(unique.length));
      for (const [at, member] of unique.entries()) {
        await this.app.engine.set(`${prefix}CompFold_Type${at}`, String(member));
      }
    });
  }

  // --- Changes ---

  private changed(key: string, row: SettingRow, value: string, done: boolean): void {
    const before = this.values[key] ?? row.value;
    if (value !== before) this.record(row.label, key, before, value);
    if (done) this.app.history.seal();
    this.values[key] = value;
    const isCount = key === "Starfold_IFS_Points" || key === "Starfold_Atoms";
    const isName = key === "_UniFoldName" || key === "_CompFoldName";
    void this.send(row.name, value).then(() => {
      if (done && (isCount || isName)) void this.build();
    });
  }

  /** A step of the history: one setting had another value. */
  private record(label: string, key: string, before: string, after: string): void {
    const name = this.prefix() + key;
    const { tab } = this;
    const index = { ...this.index };
    const put = async (value: string): Promise<void> => {
      this.tab = tab;
      this.index = { ...index };
      await this.reveal();
      await this.app.set(name, value);
      await this.build();
    };
    const step = { text: label, key: name, undo: () => put(before), redo: () => put(after) };
    this.app.history.add(step);
  }

  /** Sends the last value of each setting; those that it overtakes are never sent. */
  private async send(name: string, value: string): Promise<void> {
    this.waiting.set(name, value);
    if (this.isSending) return;
    this.isSending = true;
    try {
      for (;;) {
        const next = this.waiting.entries().next().value;
        if (!next) break;
        this.waiting.delete(next[0]);
        const fault = await this.app.set(...next);
        if (fault !== "") tell(fault);
      }
    } finally {
      this.isSending = false;
    }
  }

  private async replace(
    text: string,
    change: () => Promise<void>,
    scene: Scene = this.scene(),
  ): Promise<void> {
    const fault = await this.app.replace(
      text,
      async () => {
        await change();
        return "";
      },
      scene,
    );
    if (fault !== "") tell(fault);
    await this.open();
  }

  private async startOver(): Promise<void> {
    await this.replace("starting over", () => this.app.engine.useFactory(0), { kind: "universe" });
    tell("Everything is as it came. Undo brings your settings back.");
  }

  // --- Surprises ---

  private async surprise(): Promise<void> {
    if (this.tab === "composite") return this.surpriseMembers();
    const { engine } = this.app;
    const isBody = this.tab === "profile";
    const section = isBody ? `UniFold${this.index.profile}` : "Universe";
    const fields = (isBody ? engine.table.profile : engine.table.universe).filter(
      ({ name }) => name !== "Starfold_IFS_Points" && name !== "Starfold_Atoms",
    );
    const donors = isBody ? await this.donors() : [this.values];
    const values = surprise(fields, donors);
    const changed = withValues(await engine.saveTemplate(), section, values);
    await this.replace("a surprise", async () => void (await engine.openTemplate(changed)));
  }

  /** The values of all bodies of one style, drawn at random; of a user-defined body its own. */
  private async donors(): Promise<Values[]> {
    const { engine } = this.app;
    if (this.style() >= kUserIfs) return [this.values];
    const all = await Promise.all(
      this.names.profiles.map((_, at) => engine.values(`profile:${at}`)),
    );
    const styled = all.filter(
      (values) =>
        Number(values["Starfold_FoldStyle"]) < kUserIfs &&
        values["Starfold_ColorComp"] !== kInvisible,
    );
    const style = styled[Math.floor(Math.random() * styled.length)]?.["Starfold_FoldStyle"];
    const donors = styled.filter((values) => values["Starfold_FoldStyle"] === style);
    return donors.length > 0 ? donors : [this.values];
  }

  private async surpriseMembers(): Promise<void> {
    const drawn = (): number => Math.floor(Math.random() * this.names.profiles.length);
    const count = 2 + Math.floor(Math.random() * 3);
    await this.setMembers(Array.from({ length: count }, drawn));
  }

  // --- Undo ---

  private showHistory(): void {
    for (const [id, text] of [
      ["undo", this.app.history.undoText],
      ["redo", this.app.history.redoText],
    ] as const) {
      const button = byId<HTMLButtonElement>(id);
      const name = id === "undo" ? "Undo" : "Redo";
      button.disabled = text === undefined;
      button.title = text === undefined ? name : `${name}: ${text}`;
    }
  }

  private async step(which: "undo" | "redo"): Promise<void> {
    await this.app.history[which]();
    if (this.panels.current === "settings") await this.open();
  }

  private key(event: KeyboardEvent): void {
    if (!event.ctrlKey && !event.metaKey) return;
    const isText =
      takesKeys(event.target) &&
      event.target instanceof HTMLInputElement &&
      ["text", "search"].includes(event.target.type);
    const key = event.key.toLowerCase();
    if (isText || (key !== "z" && key !== "y")) return;
    event.preventDefault();
    void this.step(key === "y" || event.shiftKey ? "redo" : "undo");
  }
}

/** Names of the engine align what follows a colon with two blanks. */
function tidy(name: string): string {
  return name.replace(/\s+/g, " ");
}

/** Returns a function that gives the focus to the control that takes the place of the present one. */
function focusIn(page: HTMLElement): () => void {
  const focused = document.activeElement;
  if (!(focused instanceof HTMLElement) || !page.contains(focused)) return () => undefined;
  const row = focused.closest<HTMLElement>("[data-name]")?.dataset["name"];
  const type = focused.getAttribute("type");
  const control = `${focused.localName}${type === null ? "" : `[type="${type}"]`}`;
  const selector = row === undefined ? `#${focused.id}` : `[data-name="${row}"] ${control}`;
  if (row === undefined && focused.id === "") return () => undefined;
  return () => page.querySelector<HTMLElement>(selector)?.focus({ preventScroll: true });
}
