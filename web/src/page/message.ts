// One line for the visitor, shown for some seconds and read by screen readers.
import { byId } from "./dom";

const kShownFor = 6000;
let timer: ReturnType<typeof setTimeout> | undefined;

export function tell(text: string): void {
  const line = byId("message");
  line.textContent = text;
  line.classList.toggle("shown", text !== "");
  clearTimeout(timer);
  timer = setTimeout(() => {
    line.classList.remove("shown");
    line.textContent = "";
  }, kShownFor);
}

/** Tells the reason of a failure that the visitor can do nothing about but try again. */
export function tellFailure(what: string, reason: unknown): void {
  tell(`${what}: ${reason instanceof Error ? reason.message : String(reason)}`);
}
