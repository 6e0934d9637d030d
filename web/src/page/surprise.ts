// "Surprise me": new values that are likely to look good. Values drawn from their whole ranges do not:
// most of these ranges is empty sky. So the values of existing bodies are mixed and varied.
import type { FieldRow } from "../engine/protocol";

type Values = Record<string, string>;
type Random = () => number;

/** Varied by at most this factor, up or down. */
const kVariation = 1.6;
/**
 * Settings whose value says what a body is, not how it looks; those that fit each other; and those
 * whose useful values are close to one end of their range.
 */
const kKept =
  /StdLev|FoldStyle|ColorComp|Distance|Radius$|CP_Points|Pers|Damping|AmCAge|Profile$|Tilt/;
const kHue = /Hue(Start|Base)$|HW_(Start|End)$|HWC_(Start|End)$/;

function pick<T>(from: readonly T[], random: Random): T {
  return from[Math.floor(random() * from.length)]!;
}

function varied(value: string, row: FieldRow, random: Random): string {
  const number = Number(value) * kVariation ** (random() * 2 - 1);
  const clamped = Math.min(row.high ?? number, Math.max(row.low ?? number, number));
  return row.kind === "single"
    ? String(Number(clamped.toPrecision(4)))
    : String(Math.round(clamped));
}

/**
 * New values for the settings of `fields`. All settings of a page come from one of the records
 * `donors`, which has at least one; hues are drawn anew.
 */
export function surprise(
  fields: readonly FieldRow[],
  donors: readonly Values[],
  random: Random = Math.random,
): Values {
  const result: Values = {};
  const donorOf = new Map<string, Values>();
  for (const row of fields) {
    if (row.name.startsWith("_") || row.kind === "text") continue;
    if (!donorOf.has(row.page)) donorOf.set(row.page, pick(donors, random));
    const value = donorOf.get(row.page)![row.name];
    if (value === undefined) continue;
    if (kHue.test(row.name)) result[row.name] = hue(row, random);
    else if (kKept.test(row.name) || row.low === undefined) result[row.name] = value;
    else result[row.name] = varied(value, row, random);
  }
  return result;
}

/** Base is a share of white, which more than a little of makes colours pale. */
function hue(row: FieldRow, random: Random): string {
  if (row.name.endsWith("Base")) return String(Math.floor(random() * 25));
  return String(Math.floor(random() * 360));
}
