// Template files as text, to take a body out of one and into another. The file's bytes are kept as
// they are: one character stands for one byte, whatever the file's encoding.

function textOf(bytes: Uint8Array): string {
  let text = "";
  for (let at = 0; at < bytes.length; at += 8192) {
    text += String.fromCharCode(...bytes.subarray(at, at + 8192));
  }
  return text;
}

function bytesOf(text: string): Uint8Array {
  return Uint8Array.from(text, (character) => character.charCodeAt(0));
}

/** The sections in order: name ("" before the first) and text with its heading. */
function sectionsOf(text: string): [string, string][] {
  return text
    .split(/^(?=\[)/m)
    .map((section) => [/^\[([^\]]*)\]/.exec(section)?.[1] ?? "", section]);
}

/** "UniFold7" of "UniFold7\IFS": the record that a section belongs to. */
function recordOf(section: string): string {
  return section.split("\\")[0]!;
}

/**
 * `mine` with the records of `theirs` that `records` names, such as "UniFold7" or "CompFold3", in
 * the place of its own.
 */
export function withRecords(
  mine: Uint8Array,
  theirs: Uint8Array,
  records: readonly string[],
): Uint8Array {
  const kept = sectionsOf(textOf(mine)).filter(([name]) => !records.includes(recordOf(name)));
  const taken = sectionsOf(textOf(theirs)).filter(([name]) => records.includes(recordOf(name)));
  const lines = [...kept, ...taken].map(([, text]) => (text.endsWith("\n") ? text : `${text}\r\n`));
  return bytesOf(lines.join(""));
}

/** `mine` with other values of settings of one section, by their names there. */
export function withValues(
  mine: Uint8Array,
  section: string,
  values: Readonly<Record<string, string>>,
): Uint8Array {
  const changed = sectionsOf(textOf(mine)).map(([name, text]) =>
    name !== section
      ? text
      : text.replace(/^([^=\r\n]+)=[^\r\n]*/gm, (line, key: string) =>
          values[key] === undefined ? line : `${key}=${values[key]}`,
        ),
  );
  return bytesOf(changed.join(""));
}
