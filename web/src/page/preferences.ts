// What the browser keeps between visits. Where it keeps nothing (private windows, blocked storage),
// the page works with the defaults.

type Key = "mine" | "greeted" | "single-keys";
const kPrefix = "starfolds.";

export function remembered(key: Key): string | null {
  try {
    return localStorage.getItem(kPrefix + key);
  } catch {
    return null;
  }
}

/** Null forgets the value. */
export function remember(key: Key, value: string | null): void {
  try {
    if (value === null) localStorage.removeItem(kPrefix + key);
    else localStorage.setItem(kPrefix + key, value);
  } catch {
    // Storage that is full or blocked: the value lasts for this visit only.
  }
}
