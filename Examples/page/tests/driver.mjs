// Drives the page in headless Chromium as its users do, and reads what it shows.
import { chromium } from "playwright-core";
import { strFromU8, unzipSync } from "fflate";
import { readFile } from "node:fs/promises";
import { serve } from "./server.mjs";

const directory = process.env.PAGE;
if (!directory) throw new Error("PAGE must name the directory of the built page");

/** A browser and a server; `page(options)` opens the page anew, in a context of its own. */
export async function start() {
  const server = await serve(directory);
  const browser = await chromium.launch({
    executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium",
    args: ["--no-sandbox", "--disable-dev-shm-usage"],
  });
  return {
    server,
    browser,
    /** Opens the page; what goes wrong in it is kept in `page.problems`. */
    async page(options = {}) {
      const context = await browser.newContext({ acceptDownloads: true, viewport: { width: 1180, height: 900 }, ...options });
      const page = await context.newPage();
      page.setDefaultTimeout(120_000);
      page.problems = [];
      page.asked = [];
      page.on("pageerror", (error) => page.problems.push(String(error)));
      page.on("console", (message) => message.type() === "error" && page.problems.push(message.text()));
      page.on("dialog", (dialog) => {
        page.problems.push(`dialog: ${dialog.message()}`);
        dialog.dismiss();
      });
      context.on("request", (request) => page.asked.push({ method: request.method(), url: request.url(), body: request.postData() }));
      await page.goto(server.address);
      return page;
    },
    async stop() {
      await browser.close();
      await server.close();
    },
  };
}

/** Waits until a survey has ended; true where it went well. */
export async function ended(page) {
  await page.waitForFunction(() => document.getElementById("stop").hidden && document.getElementById("result").getAttribute("aria-busy") === "false");
  return page.locator("#problem").isHidden();
}

/** Gives the page a file and waits for the end of its survey; true where it went well. */
export async function survey(page, content, name) {
  await page.locator("#file").setInputFiles({ name, mimeType: "text/csv", buffer: Buffer.from(content) });
  return ended(page);
}

export function problem(page) {
  return page.locator("#problem p").textContent();
}

/** What is shown: titles, texts and tables, each of these as rows of texts under its name. */
export function shown(page) {
  return page.evaluate(() => {
    const text = (root, selector) => root.querySelector(selector)?.textContent ?? "";
    const result = document.getElementById("result");
    const tables = {};
    for (const table of result.querySelectorAll("table")) {
      const rows = [[...table.tHead.rows[0].cells].map((cell) => cell.textContent)];
      for (const body of table.tBodies) {
        let run = null; // what names all rows of the body
        for (const row of body.rows) {
          const cells = [...row.cells].map((cell) => cell.textContent);
          if (row.cells[0]?.scope === "rowgroup") run = cells.shift();
          rows.push(run === null ? cells : [run, ...cells]);
        }
      }
      tables[table.dataset.table] = rows;
    }
    return {
      title: text(result, ".file"),
      summary: text(result, ".summary"),
      lists: [...result.querySelectorAll("dt")].map((label) => [label.textContent, label.nextElementSibling.textContent]),
      remarks: [...result.querySelectorAll(".remark")].map((remark) => remark.textContent),
      sections: [...result.querySelectorAll("section")].map((section) => ({
        name: section.id,
        title: text(section, "h2"),
        lead: text(section, ".lead"),
        note: text(section, ".note"),
        pictures: [...section.querySelectorAll("[data-picture]")].map((picture) => picture.dataset.picture),
      })),
      tables,
    };
  });
}

/** What a click on this button downloads: its name and its bytes. */
export async function download(page, button) {
  const [taken] = await Promise.all([page.waitForEvent("download"), button.click()]);
  return { name: taken.suggestedFilename(), bytes: await readFile(await taken.path()) };
}

/** The files of the archive that the page offers. */
export async function archive(page) {
  const { bytes } = await download(page, page.getByRole("button", { name: "All tables (ZIP)" }));
  return unzipSync(bytes);
}

export { strFromU8 };
