// Sliders: positions 0 to kPositions for the range of a number. Many ranges are far wider than their
// useful part (0 to 30000, usually 300): so the usual value is put near a third of the slider, and
// values below it have finer steps.

export const kPositions = 1000;

export interface Range {
  low: number;
  high: number;
  /** Only whole numbers. */
  whole: boolean;
  /** The value that most would start from. */
  usual: number;
}

const kPlaceOfUsual = 0.3;
const kSteepest = 4;

/** The power of the position that gives a value; 1 where sliders are even. */
function exponent(range: Range): number {
  const share = (range.usual - range.low) / (range.high - range.low);
  if (share > 0) {
    return Math.min(kSteepest, Math.max(1, Math.log(share) / Math.log(kPlaceOfUsual)));
  }
  return range.high - range.low > 1000 ? 2 : 1;
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
