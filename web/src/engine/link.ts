// The fragment of a link: base64url of the raw deflated text. Nothing of it is trusted.

/** The longest fragment that is made or opened, in characters. */
export const longestFragment = 1 << 17;
/** The longest text, in bytes, as in settings/share_link.h. */
export const longestText = 1 << 19;

export class LinkFault extends Error {}

type Bytes = Uint8Array<ArrayBuffer>;

function transformed(bytes: Bytes, stream: CompressionStream | DecompressionStream): ReadableStream<Uint8Array> {
  const source = new ReadableStream<BufferSource>({
    start(controller) {
      controller.enqueue(bytes);
      controller.close();
    },
  });
  return source.pipeThrough(stream);
}

/** Reads a stream; throws when it has more than `most` bytes, without reading the rest. */
async function readAll(stream: ReadableStream<Uint8Array>, most: number): Promise<Uint8Array> {
  const reader = stream.getReader();
  const pieces: Uint8Array[] = [];
  let size = 0;
  for (;;) {
    const { done, value } = await reader.read();
    if (done) break;
    size += value.length;
    if (size > most) {
      await reader.cancel();
      throw new LinkFault("The link is too long");
    }
    pieces.push(value);
  }
  const all = new Uint8Array(size);
  let at = 0;
  for (const piece of pieces) {
    all.set(piece, at);
    at += piece.length;
  }
  return all;
}

function toBase64Url(bytes: Uint8Array): string {
  let binary = "";
  for (const byte of bytes) binary += String.fromCharCode(byte);
  return btoa(binary).replaceAll("+", "-").replaceAll("/", "_").replaceAll("=", "");
}

function fromBase64Url(text: string): Bytes {
  if (!/^[A-Za-z0-9_-]+$/.test(text)) throw new LinkFault("This is not a link to a universe");
  const binary = atob(text.replaceAll("-", "+").replaceAll("_", "/"));
  return Uint8Array.from(binary, (char) => char.charCodeAt(0));
}

/** Throws a `LinkFault` if the fragment were too long. */
export async function packLink(text: Bytes): Promise<string> {
  const packed = await readAll(transformed(text, new CompressionStream("deflate-raw")), longestText);
  const fragment = toBase64Url(packed);
  if (fragment.length > longestFragment) {
    throw new LinkFault("The settings are too long for a link. Save them as a template instead");
  }
  return fragment;
}

/** Throws a `LinkFault` with a message for the user. */
export async function unpackLink(fragment: string): Promise<Uint8Array> {
  if (fragment.length > longestFragment) throw new LinkFault("The link is too long");
  try {
    const packed = fromBase64Url(fragment);
    return await readAll(transformed(packed, new DecompressionStream("deflate-raw")), longestText);
  } catch (fault) {
    if (fault instanceof LinkFault) throw fault;
    throw new LinkFault("The link is damaged or incomplete");
  }
}
