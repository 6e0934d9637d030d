// Sliders: positions 0 to kPositions for the range of a number. Wide ranges, most of whose useful
// values are near the low end (0 to 99999, usually 2500), get finer steps there.

export const kPositions = 1000;

export interface Range {
  low: number;
  high: number;
  /** Only whole numbers. */
  whole: boolean;
}

function exponent(range: Range): number {
  const width = range.high - range.low;
  if (width > 20000) return 3;
  return width > 1500 ? 2 : 1;
}

/** The position of a value; a value out of range is at the nearer end. */
export function positionOf(value: number, range: Range): number {
  if (range.high <= range.low) return 0;
  const share = Math.min(1, Math.max(0, (value - range.low) / (range.high - range.low)));
  return Math.round(kPositions * share ** (1 / exponent(range)));
}

/** The value at a position. Fractions have four significant digits. */
export function valueAt(position: number, range: Range): number {
  if (position >= kPositions) return range.high;
  const share = (Math.max(0, position) / kPositions) ** exponent(range);
  const value = range.low + share * (range.high - range.low);
  return range.whole ? Math.round(value) : Number(value.toPrecision(4));
}
