// Small helpers for elements. Texts are always set as text, never as markup.

/** The element of index.html with this id. Throws if there is none: then page and script differ. */
export function byId<T extends HTMLElement = HTMLElement>(id: string): T {
  const element = document.getElementById(id);
  if (!element) throw new Error(`index.html has no element "${id}"`);
  return element as T;
}

type Attributes = Record<string, string | boolean | undefined>;

/** A new element. An attribute that is false or undefined is left out, true is set empty. */
export function make<K extends keyof HTMLElementTagNameMap>(
  tag: K,
  attributes: Attributes = {},
  ...children: (Node | string)[]
): HTMLElementTagNameMap[K] {
  const element = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) {
    if (value === true) element.setAttribute(name, "");
    else if (value !== false && value !== undefined) element.setAttribute(name, value);
  }
  element.append(...children);
  return element;
}

/** The symbol `name` of index.html as an icon. */
export function icon(name: string): SVGSVGElement {
  const space = "http://www.w3.org/2000/svg";
  const picture = document.createElementNS(space, "svg");
  const use = document.createElementNS(space, "use");
  picture.setAttribute("aria-hidden", "true");
  use.setAttribute("href", `#i-${name}`);
  picture.append(use);
  return picture;
}

/** Shows another icon in a button of index.html. */
export function setIcon(button: HTMLElement, name: string): void {
  button.querySelector("use")?.setAttribute("href", `#i-${name}`);
}

/** Calls `action` once `milliseconds` after the last call of the returned function. */
export function debounced(milliseconds: number, action: () => void): () => void {
  let timer: ReturnType<typeof setTimeout> | undefined;
  return () => {
    clearTimeout(timer);
    timer = setTimeout(action, milliseconds);
  };
}

/** Whether the element takes text or arrow keys itself. */
export function takesKeys(target: EventTarget | null): boolean {
  return (
    target instanceof HTMLInputElement ||
    target instanceof HTMLSelectElement ||
    target instanceof HTMLTextAreaElement
  );
}
