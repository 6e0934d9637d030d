// The canvas. Only what has changed is put on it, in tiles.

/** The side of a tile in pixels, a power of two. */
const tileShift = 6;
const tileSide = 1 << tileShift;

const opaque = 0xff000000;

export class Screen {
  private readonly canvas: OffscreenCanvas;
  private readonly context: OffscreenCanvasRenderingContext2D;
  private image: ImageData;
  private pixels: Uint32Array;
  /** For each tile whether it differs from the canvas. */
  private changed: Uint8Array;
  private columns = 0;

  constructor(canvas: OffscreenCanvas) {
    const context = canvas.getContext("2d", { alpha: false });
    if (!context) throw new Error("This browser cannot draw in the background.");
    this.canvas = canvas;
    this.context = context;
    this.image = new ImageData(1, 1);
    this.pixels = new Uint32Array(this.image.data.buffer);
    this.changed = new Uint8Array(1);
    this.resize(canvas.width, canvas.height);
  }

  /** The canvas is black afterwards. */
  resize(width: number, height: number): void {
    this.canvas.width = width;
    this.canvas.height = height;
    this.image = new ImageData(width, height);
    this.pixels = new Uint32Array(this.image.data.buffer).fill(opaque);
    this.columns = Math.ceil(width / tileSide);
    this.changed = new Uint8Array(this.columns * Math.ceil(height / tileSide)).fill(1);
  }

  /** Takes pairs of place and colour, or all pixels; see `Page.present`. */
  take(words: Uint32Array, isWhole: boolean): void {
    if (isWhole) this.takeWhole(words);
    else this.takeChanges(words);
  }

  private takeWhole(words: Uint32Array): void {
    const { pixels } = this;
    if (words.length !== pixels.length) return;
    for (let i = 0; i < words.length; ++i) pixels[i] = words[i]! | opaque;
    this.changed.fill(1);
  }

  private takeChanges(words: Uint32Array): void {
    const { pixels, changed, columns } = this;
    const { width } = this.image;
    for (let i = 0; i < words.length; i += 2) {
      const place = words[i]!;
      const x = place & 0xffff;
      const y = place >>> 16;
      pixels[y * width + x] = words[i + 1]! | opaque;
      changed[(y >>> tileShift) * columns + (x >>> tileShift)] = 1;
    }
  }

  /**
   * Puts the changed tiles on the canvas; neighbours in a row of tiles at once. Where more than half
   * have changed, all at once costs less, most of all in Firefox.
   */
  show(): void {
    const { changed, columns, image, context } = this;
    let count = 0;
    for (const tile of changed) count += tile;
    if (2 * count > changed.length) {
      changed.fill(0);
      context.putImageData(image, 0, 0);
      return;
    }
    for (let tile = 0; tile < changed.length; ++tile) {
      if (changed[tile] === 0) continue;
      const row = Math.floor(tile / columns);
      const first = tile - row * columns;
      let end = first;
      while (end < columns && changed[row * columns + end] === 1) {
        changed[row * columns + end] = 0;
        ++end;
      }
      const x = first << tileShift;
      context.putImageData(image, 0, 0, x, row << tileShift, (end << tileShift) - x, tileSide);
      tile = row * columns + end - 1;
    }
  }

  picture(): Promise<Blob> {
    return this.canvas.convertToBlob({ type: "image/png" });
  }

  bitmap(): Promise<ImageBitmap> {
    return createImageBitmap(this.canvas);
  }
}
