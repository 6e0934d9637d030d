// Files to and from the visitor's machine.

/** Offers the file as a download. */
export function download(contents: Blob | Uint8Array, name: string, type: string): void {
  const blob = contents instanceof Blob ? contents : new Blob([contents.slice()], { type });
  const address = URL.createObjectURL(blob);
  const link = document.createElement("a");
  link.href = address;
  link.download = name;
  document.body.append(link);
  link.click();
  link.remove();
  // The browser reads the blob after the click.
  setTimeout(() => URL.revokeObjectURL(address), 60_000);
}

/** "starfolds-2026-11-22-15-04-05" with the ending behind it: file names in order of time. */
export function timedName(ending: string, now = new Date()): string {
  const part = (value: number): string => String(value).padStart(2, "0");
  const day = [now.getFullYear(), part(now.getMonth() + 1), part(now.getDate())];
  const time = [part(now.getHours()), part(now.getMinutes()), part(now.getSeconds())];
  return `starfolds-${[...day, ...time].join("-")}${ending}`;
}
