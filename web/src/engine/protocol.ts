// What the page sees of the engine. The engine runs in a worker (worker.ts); `createEngine` of
// client.ts starts it and returns an `EngineClient`.

/** One setting, from the engine's field table. */
export interface FieldRow {
  /** As stored, without the record: "Starfold_Radius". */
  name: string;
  label: string;
  /** "single" is a number with a fraction; "flag" takes "0" and "1"; "choice" an index of `choices`. */
  kind: "integer" | "long" | "single" | "flag" | "text" | "choice";
  /** The range, both ends included; absent for texts, flags and choices. */
  low?: number;
  high?: number;
  /** Ranges of the styles for which it differs from `low` and `high`. */
  ranges?: Record<number, [number, number]>;
  /** As text, like all values. */
  default: string;
  /** The caption of the dialog's page, "" for what is above the pages. */
  page: string;
  choices?: string[];
  /** The names of the 50 profiles stand before `choices`. */
  profileChoices?: true;
  /** The styles that show the setting; absent: all. */
  styles?: number[];
}

export interface FactorySet {
  name: string;
  profiles: string[];
  composites: string[];
  /** Themes 1 to 8, for `applyTheme(1)` to `applyTheme(8)`. */
  themes: string[];
}

export interface SettingsTable {
  universe: FieldRow[];
  profile: FieldRow[];
  composite: FieldRow[];
  advanced: FieldRow[];
  /** Of a profile with its own iterated function system: the centre, and one of its points. */
  ifsCenter: FieldRow[];
  ifsPoint: FieldRow[];
  /** Of a molecular structure: the centre, and one of its atoms. */
  atomCenter: FieldRow[];
  atomPoint: FieldRow[];
  /** The most points, atoms and members that a record has. */
  most: { ifsPoints: number; atoms: number; members: number };
  /** The names of the styles, in the order of `Starfold_FoldStyle`. */
  styles: string[];
  /** Style -> field -> label, where it differs from the field's `label`. */
  captions: Record<number, Record<string, string>>;
  /** [0]: Starfolds 4.x, [1]: Starfolds 2.0. */
  sets: FactorySet[];
}

/** What a run shows: universes one after the other, or one body straight ahead. */
export type Scene =
  | { kind: "universe" }
  | { kind: "profile"; index: number }
  | { kind: "composite"; index: number };

export type Scope = "universe" | "advanced" | `profile:${number}` | `composite:${number}`;

/** What a link says beside the settings. */
export interface LinkContents {
  /** "" or why the link was refused, for the user; then nothing was changed. */
  fault: string;
  scene: Scene;
  /** Absent: the universe differs from visit to visit. */
  seed?: number;
  /** The surface in CSS pixels that shows the universe as its sender saw it. */
  size?: { width: number; height: number };
}

export interface FrameHash {
  /** Frames shown since the beginning of the run. */
  frame: number;
  /** 16 hexadecimal digits, the same as `starfolds-render --hash` prints. */
  hash: string;
}

export interface EngineStats {
  /** Frames shown since the worker began. */
  frames: number;
  /** Mean time of the last frames in the worker: engine and canvas. */
  msPerFrame: number;
}

/**
 * All names of settings are those of `starfolds-render --set`: "Universe_Stars", "Adv_TimeDelay",
 * "Starfold7/Starfold_Radius", "CompFold3/CompFold_Type0", "Starfold7/IFS_CenterX",
 * "Starfold7/IFS0/IFS_LocX", "Starfold7/Atom31/Atom_Size". All values are texts.
 */
export interface EngineClient {
  readonly table: SettingsTable;

  /** Gives the canvas to the worker. Once. */
  attach(canvas: HTMLCanvasElement): void;

  /** Begins a run, from its first frame. Without a seed it is drawn. */
  start(scene: Scene, seed?: number): Promise<void>;
  /** The surface's size in CSS pixels, 1 to 16384 each; a run begins anew with the same seed. */
  resize(cssWidth: number, cssHeight: number): Promise<void>;
  pause(on: boolean): void;
  /** Leaves the universe or body on the surface for a new one, with another seed. */
  nextUniverse(): void;

  /** The text of a setting; "" if there is no such setting. */
  get(name: string): Promise<string>;
  /** Returns "" or the engine's message. The run begins anew if it shows the setting. */
  set(name: string, value: string): Promise<string>;
  /**
   * All settings of a record by their names without the record: "Starfold_Radius",
   * "IFS0/IFS_LocX", "CompFold_Type0".
   */
  values(scope: Scope): Promise<Record<string, string>>;
  /** The same of factory set 4.x with its first theme, whatever is set now. */
  factory(scope: Scope): Promise<Record<string, string>>;
  /** The names of the bodies as they are now. */
  names(): Promise<{ profiles: string[]; composites: string[] }>;

  /** Opens a template (.sfd). Returns "" or the reason; then nothing is changed. */
  openTemplate(bytes: Uint8Array): Promise<string>;
  /** The settings as a template file, as the desktop program writes it. */
  saveTemplate(): Promise<Uint8Array>;

  /** All profiles and composites of set 0 or 1, and its first theme. */
  useFactory(set: number): Promise<void>;
  /** The universe's settings of theme 1 to 8. */
  applyTheme(theme: number): Promise<void>;
  /** Profile `from` of a factory set, in place of profile `profile`. */
  applyFactoryProfile(profile: number, set: number, from: number): Promise<void>;

  /** The fragment of a link, without "#". Rejects if it were too long. */
  link(options: { seed?: boolean; size?: boolean }): Promise<string>;
  /** Takes the settings of a link. The caller then starts the scene. */
  openLink(fragment: string): Promise<LinkContents>;

  /** What is on the surface, as PNG. */
  picture(): Promise<Blob>;
  /** Hands every shown frame over as a picture, for recording; null ends it. */
  watch(listener: ((frame: ImageBitmap) => void) | null): void;

  /** The frame on the surface. */
  hash(): Promise<FrameHash>;
  /** Runs on without waiting until so many frames are shown, and pauses. At once if they are. */
  runUntil(frame: number): Promise<FrameHash>;
  stats(): Promise<EngineStats>;

  /** Called after an error that ended the engine. */
  onfault: (message: string) => void;
}
