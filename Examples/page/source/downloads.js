// Taking results away as files.

export function save(name, type, content) {
  const link = document.createElement("a");
  link.href = URL.createObjectURL(new Blob([content], { type }));
  link.download = name;
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 60000);
}

/** What is shown as a page that needs no other file. */
export async function reportPage(name) {
  const style = await (await fetch("page.css")).text();
  const result = document.getElementById("result").cloneNode(true);
  for (const control of result.querySelectorAll("button, #downloads, p.whole")) control.remove();
  const title = result.querySelector(".title");
  const heading = document.createElement("h1"); // which the page of controls has itself
  heading.append(...title.childNodes);
  title.replaceWith(heading);
  const page = document.implementation.createHTMLDocument(`Survey of ${name}`);
  page.documentElement.lang = "en";
  const meta = (attributes) => Object.assign(page.createElement("meta"), attributes);
  const charset = page.createElement("meta");
  charset.setAttribute("charset", "utf-8");
  const sheet = page.createElement("style");
  sheet.textContent = style;
  page.head.prepend(charset);
  page.head.append(meta({ name: "viewport", content: "width=device-width, initial-scale=1" }), meta({ name: "color-scheme", content: "light dark" }), sheet);
  page.body.append(page.importNode(result, true));
  return `<!DOCTYPE html>\n${page.documentElement.outerHTML}\n`;
}
