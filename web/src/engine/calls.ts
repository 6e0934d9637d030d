// The messages between client.ts and worker.ts. A call is answered by one message with its number.
import type { FrameHash, EngineStats, LinkContents, Scene, Scope } from "./protocol";

/** What the worker does for the page, and what it answers. */
export interface Calls {
  table(): string;
  attach(canvas: OffscreenCanvas): void;
  start(scene: Scene, seed?: number): void;
  resize(cssWidth: number, cssHeight: number): void;
  pause(on: boolean): void;
  /** The page cannot be seen: nothing runs until it can. */
  hide(on: boolean): void;
  nextUniverse(): void;
  get(name: string): string;
  set(name: string, value: string): string;
  values(scope: Scope): Record<string, string>;
  factory(scope: Scope): Record<string, string>;
  names(): { profiles: string[]; composites: string[] };
  openTemplate(bytes: Uint8Array): string;
  saveTemplate(): Uint8Array;
  useFactory(set: number): void;
  applyTheme(theme: number): void;
  applyFactoryProfile(profile: number, set: number, from: number): void;
  link(withSeed: boolean, withSize: boolean): Promise<string>;
  openLink(fragment: string): Promise<LinkContents>;
  picture(): Promise<Blob>;
  watch(on: boolean): void;
  hash(): FrameHash;
  runUntil(frame: number): Promise<FrameHash>;
  stats(): EngineStats;
}

export type CallName = keyof Calls;

export interface CallMessage {
  id: number;
  name: CallName;
  args: unknown[];
}

export type AnswerMessage =
  | { kind: "answer"; id: number; result: unknown }
  | { kind: "refused"; id: number; reason: string }
  | { kind: "picture"; frame: ImageBitmap }
  /** The engine has ended. */
  | { kind: "fault"; reason: string };
