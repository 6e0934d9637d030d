// Writes the gallery's list, index.json, beside the pictures that gallery.sh has rendered:
// node gallery.mjs SCRATCH TEMPLATES THEMES FOLDER
// SCRATCH has the names (setN.list) and settings (setN.sfd) of both factory sets; TEMPLATES is the
// folder of the shipped templates, whose README describes them; THEMES is the help page about themes.
import { readFileSync, readdirSync, writeFileSync } from "node:fs";
import { join } from "node:path";

const [scratch, templates, themes, folder] = process.argv.slice(2);
const pictures = readdirSync(folder).filter((name) => name.endsWith(".webp"));

function pictureOf(id) {
  const picture = pictures.find((name) => name.replace(/-[0-9a-f]{10}\.webp$/, "") === id);
  if (!picture) throw new Error(`no picture of ${id}`);
  return picture;
}

/** The settings of a template by section. */
function sections(file) {
  const result = new Map();
  let section;
  for (const line of readFileSync(file, "latin1").split(/\r?\n/)) {
    const heading = /^\[(.*)\]$/.exec(line);
    if (heading) result.set(heading[1], (section = new Map()));
    const setting = /^([^=[]+)=(.*)$/.exec(line);
    if (setting && section) section.set(setting[1], setting[2]);
  }
  return result;
}

/** What distinguishes a profile from others of its style, in words. */
function traits(settings) {
  const number = (name) => Number(settings.get(`Starfold_${name}`));
  const result = [];
  if (number("FoldStyle") === 0) {
    if (number("RadSegs") > 1 && number("RadFill") < 100) result.push(`${number("RadSegs")} arms`);
    if (number("RadBands") > 1 && number("RadBFill") < 100)
      result.push(`${number("RadBands")} bands`);
    if (number("StdLevels") > 1) result.push(`${number("StdLevels")} levels`);
  }
  if (number("FoldStyle") === 4) result.push(`${number("CP_Points")} control points`);
  if (number("FoldStyle") === 8) result.push(`${number("IFS_Points")} rules`);
  if (number("FoldStyle") === 9 && number("Atoms") > 1) result.push(`${number("Atoms")} atoms`);
  if (number("PulsarFreq") > 0) result.push("pulsars");
  if (number("CometFreq") >= 1000) result.push("many comets");
  return result.join(", ");
}

function listed(set, kind) {
  return readFileSync(join(scratch, `set${set}.list`), "utf8")
    .split("\n")
    .map((line) => new RegExp(`^${kind} (\\d+) (.*)$`).exec(line))
    .filter((match) => match && match[2] !== "Undefined")
    .map((match) => ({ index: Number(match[1]), name: match[2].replaceAll(/\s+/g, " ") }));
}

function profiles(set) {
  const settings = sections(join(scratch, `set${set}.sfd`));
  return listed(set, "profile").map(({ index, name }) => ({
    name,
    style: Number(settings.get(`UniFold${index}`).get("Starfold_FoldStyle")),
    line: traits(settings.get(`UniFold${index}`)),
    picture: pictureOf(`set${set}-profile${index}`),
    show: { kind: "profile", set, index },
  }));
}

function composites(set) {
  const settings = sections(join(scratch, `set${set}.sfd`));
  const names = new Map(listed(set, "profile").map(({ index, name }) => [index, name]));
  return listed(set, "composite").map(({ index, name }) => {
    const record = settings.get(`CompFold${index}`);
    const members = [];
    for (let i = 0; i < Number(record.get("_CompFoldCount")); ++i) {
      members.push(Number(record.get(`StarfoldIndex_${i}`)));
    }
    return {
      name,
      line: members.map((member) => names.get(member)).join(" + "),
      picture: pictureOf(`set${set}-composite${index}`),
      show: { kind: "composite", set, index, members },
    };
  });
}

/** The themes, with the text that the help's table has for a name that begins so. */
function universeThemes() {
  const rows = [...readFileSync(themes, "utf8").matchAll(/^\| ([^|]+) \| ([^|]+) \|$/gm)];
  return readFileSync(join(scratch, "set0.list"), "utf8")
    .split("\n")
    .map((line) => /^theme (\d+) (.*)$/.exec(line))
    .filter(Boolean)
    .map(([, number, text]) => {
      const name = text.replaceAll(/\s+/g, " ");
      const row = rows.find(([, begin]) => name.startsWith(begin));
      if (!row) throw new Error(`the help does not describe the theme "${name}"`);
      return {
        name,
        line: row[2],
        picture: pictureOf(`theme${number}`),
        show: { kind: "theme", index: Number(number) },
      };
    });
}

/** The templates, with the beginning of the text that their README has for each. */
function shippedTemplates() {
  const text = readFileSync(join(templates, "README.md"), "utf8");
  const entries = [...text.matchAll(/^\*\*`([\w-]+)\.sfd`\*\*: ([^]*?)\n!\[([^\]]+)\]/gm)];
  return entries.map(([, id, description, name]) => ({
    name,
    line: description.replaceAll("\n", " "),
    picture: pictureOf(`template-${id}`),
    show: { kind: "template", file: `${id}.sfd` },
  }));
}

const groups = [
  { name: "Universes", items: shippedTemplates() },
  { name: "Themes", items: universeThemes() },
  { name: "Bodies", items: profiles(0) },
  { name: "Composites", items: composites(0) },
  { name: "Bodies of 2.0", items: profiles(1) },
  { name: "Composites of 2.0", items: composites(1) },
];
const shown = groups.flatMap(({ items }) => items).length;
if (shown !== pictures.length) throw new Error(`${pictures.length} pictures for ${shown} entries`);
writeFileSync(join(folder, "index.json"), JSON.stringify({ groups }));
