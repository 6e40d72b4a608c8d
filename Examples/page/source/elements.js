// Making elements. Texts go in as texts, so that what stands in a file can't be markup.

/** An element with attributes (those that are null, undefined or false are left out) and children: nodes and texts. */
export function element(tag, attributes = {}, ...children) {
  const result = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) {
    if (value === null || value === undefined || value === false) continue;
    if (name.startsWith("on")) result.addEventListener(name.slice(2), value);
    else result.setAttribute(name, value === true ? "" : value);
  }
  result.append(...children.filter((child) => child !== null && child !== undefined));
  return result;
}

/** "12,345" */
export function grouped(number) {
  return number.toLocaleString("en-US");
}
