// Labels of settings. The engine's are those of the desktop program, whose boxes in a line share
// one: "Hue Start, End (0 - 999):" stands before two boxes.

/** The label without its ranges and colon: "Hue Start, End". */
export function withoutRange(label: string): string {
  return label
    .replace(/\s*\([^()]*\d[^()]*\)/g, "")
    .replace(/:\s*$/, "")
    .trim();
}

/**
 * One label for each of a group of settings that share theirs: "Hue Start" and "Hue End" of
 * "Hue Start, End". Undefined if the label has not as many parts.
 */
export function partsOf(label: string, count: number): string[] | undefined {
  const parts = withoutRange(label).split(/,\s*/);
  if (parts.length !== count) return undefined;
  const leading = parts[0]!.split(" ").slice(0, -1).join(" ");
  return parts.map((part, index) =>
    index > 0 && leading !== "" && !part.includes(" ") ? `${leading} ${part}` : part,
  );
}

/** Labels for rows whose engine labels these are, in order. */
export function labelsOf(labels: readonly string[]): string[] {
  const result: string[] = [];
  for (let first = 0; first < labels.length;) {
    const label = labels[first]!;
    let end = first + 1;
    while (end < labels.length && labels[end] === label) ++end;
    const parts = partsOf(label, end - first);
    for (let index = first; index < end; ++index) {
      result.push(parts?.[index - first] ?? withoutRange(label));
    }
    first = end;
  }
  return result;
}
