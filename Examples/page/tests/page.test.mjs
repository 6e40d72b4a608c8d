// The page in headless Chromium: what it shows is what the program of Examples/survey tells, to the last digit.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { after, before, describe, test } from "node:test";
import { assertSame, assertShows, onPage } from "./compare.mjs";
import { download, ended, problem, shown, start, survey } from "./driver.mjs";
import { birds, hostile } from "./hostile.mjs";
import { surveyed } from "./native.mjs";

const penguins = readFileSync(new URL("../../survey/penguins.csv", import.meta.url));
let browser;
let page;

before(async () => {
  browser = await start();
  page = await browser.page();
  assert.ok(await ended(page));
});
after(() => browser?.stop());

/** Surveys again with what the fields say; true where it went well. */
async function surveyAgain() {
  await page.locator("#start").click();
  return ended(page);
}

describe("the penguins", () => {
  test("are there from the start, by species", async () => {
    assert.equal(await page.locator("#option-grouping").inputValue(), "species");
    await assertShows(page, surveyed(penguins, "penguins.csv", [], "species"));
  });

  test("come with all pictures", async () => {
    const drawn = await page.locator("figure svg[role=img]").evaluateAll((pictures) => pictures.map((picture) => [picture.ariaLabel.length > 40, picture.querySelectorAll("path, rect, circle, line").length > 12]));
    assert.equal(drawn.length, 9);
    assert.ok(drawn.flat().every(Boolean));
    assert.equal(await page.locator("[data-picture=biplot] [aria-hidden] path").count() > 0, true);
  });

  for (const [what, fields, words, grouping] of [
    ["by island", { grouping: "island" }, [], "island"],
    ["ungrouped", { grouping: "" }, [], ""],
    ["grouped by numbers", { grouping: "flipper_length_mm" }, [], "flipper_length_mm"],
    ["without a correction, another seed", { grouping: "sex", correction: "none", seed: "77" }, ["--correction", "none", "--seed", "77"], "sex"],
    ["NA isn't missing, but male is", { grouping: "species", missing: "male,x" }, ["--missing", "male,x"], "species"],
  ])
    test(what, async () => {
      await page.locator("#options").evaluate((options) => (options.open = true));
      for (const [field, value] of Object.entries({ correction: "holm", seed: "1", missing: "NA", ...fields })) {
        const control = page.locator(`#option-${field}`);
        await (await control.evaluate((each) => each.tagName) === "SELECT" ? control.selectOption(value) : control.fill(value));
      }
      assert.ok(await surveyAgain());
      await assertShows(page, surveyed(penguins, "penguins.csv", words, grouping));
    });

  test("weighted, where a weight is missing, say which", async () => {
    await page.locator("#option-missing").fill("NA");
    await page.locator("#option-weights").selectOption("body_mass_g");
    assert.equal(await surveyAgain(), false);
    const { message } = surveyed(penguins, "penguins.csv", ["--weights", "body_mass_g"], "species");
    assert.equal(await problem(page), onPage(message));
    assert.match(message, /line 5, column 6/);
  });

  test("weighted", async () => {
    const complete = penguins.toString().split("\n").filter((line) => !line.includes(",,")).join("\n");
    await survey(page, complete, "complete.csv");
    await page.locator("#option-weights").selectOption("body_mass_g");
    assert.ok(await surveyAgain());
    await assertShows(page, surveyed(complete, "complete.csv", ["--weights", "body_mass_g"], "species"));
    await page.locator("#penguins").click();
    assert.ok(await ended(page));
    assert.equal(await page.locator("#option-weights").inputValue(), "");
  });
});

describe("a hostile file:", () => {
  let surveys = 0;
  for (const [what, content, name = "table.csv"] of hostile)
    test(what, async () => {
      surveys += await assertSame(page, content, name);
      assert.deepEqual(page.problems, []);
    });

  test("some of them can be surveyed, others can't", () => {
    assert.ok(surveys > 20 && hostile.length - surveys > 15, `${surveys} of ${hostile.length}`);
  });

  test("markup stands there as text", async () => {
    const [, content] = hostile.find(([what]) => what === "markup in names and cells");
    assert.ok(await survey(page, content, "markup.csv"));
    assert.equal(await page.locator("#result img, #result script, #result b").count(), 0);
    assert.ok(await page.locator("#result th", { hasText: "<img src=x onerror=alert(1)>" }).count() > 0);
    assert.ok((await page.locator("#option-grouping option").allTextContents()).includes("<img src=x onerror=alert(1)>"));
  });

  test("100,000 groups", { timeout: 300_000 }, async () => {
    const content = `g,x,y\n${Array.from({ length: 200_000 }, (_, i) => `${(i * 7) % 100_000},${(i * 31) % 97},${(i * i) % 89}`).join("\n")}\n`;
    assert.ok(await survey(page, content, "groups.csv"));
    await page.locator("#option-grouping").selectOption("g");
    assert.ok(await surveyAgain());
    await assertShows(page, surveyed(content, "groups.csv", [], "g"));
  });

  test("what a message names can be reached from it", async () => {
    assert.equal(await survey(page, "a,b\n1,5\n?,6\n3,4\n2,2\n", "marks.csv"), false);
    assert.match(await problem(page), /marks\.csv, line 3, column 1 \(a\)/);
    assert.equal(await page.locator("#status").textContent(), "");
    assert.deepEqual(await page.locator("#option-grouping option").allTextContents(), ["no column"]);
    assert.equal(await survey(page, "a,b\n1,5\nnan,6\n3,4\n2,2\n", "marks.csv"), false);
    await page.locator("#problem button").click();
    assert.equal(await page.evaluate(() => document.activeElement.id), "option-missing");
    await page.locator("#option-missing").fill("NA,nan");
    assert.ok(await surveyAgain());
    await page.locator("#option-missing").fill("NA");
  });
});

describe("the page", () => {
  test("takes a file that is dropped", async () => {
    const dropped = await page.evaluateHandle((text) => {
      const data = new DataTransfer();
      data.items.add(new File([text], "dropped.csv", { type: "text/csv" }));
      return data;
    }, birds);
    await page.dispatchEvent("body", "dragover", { dataTransfer: dropped });
    assert.ok(await page.locator("#dropping").isVisible());
    await page.dispatchEvent("body", "drop", { dataTransfer: dropped });
    assert.ok(await page.locator("#dropping").isHidden());
    assert.ok(await ended(page));
    await assertShows(page, surveyed(birds, "dropped.csv", [], "species"));
  });

  test("gives away the text, the page, and the whole of what is cut", async () => {
    const content = `g,x,y\n${Array.from({ length: 400 }, (_, i) => `group ${i % 200},${(i * 31) % 97},${(i * i) % 89}`).join("\n")}\n`;
    assert.ok(await survey(page, content, "long.csv"));
    await page.locator("#option-grouping").selectOption("g");
    assert.ok(await surveyAgain());
    const native = surveyed(content, "long.csv", [], "g");
    const text = await download(page, page.getByRole("button", { name: "Text" }));
    assert.equal(text.name, "long-survey.txt");
    assert.equal(text.bytes.toString(), native.text);
    const whole = await download(page, page.locator("section#moments").getByRole("button", { name: /as CSV$/ }));
    assert.equal(whole.name, "moments.csv");
    assert.deepEqual(whole.bytes, native.files["data/moments.csv"]);
    const saved = await download(page, page.getByRole("button", { name: "Page as HTML" }));
    const before = await shown(page);
    const other = await page.context().newPage();
    await other.setContent(saved.bytes.toString());
    assert.deepEqual(await shown(other), before);
    assert.equal(await other.locator("script, button, link").count(), 0);
    await other.close();
  });

  test("stops when told to, and goes on with the next file", { timeout: 400_000 }, async () => {
    const rows = Array.from({ length: 300_000 }, (_, i) => `${"abc"[i % 3]},${(i * 31) % 9973},${(i * i) % 8999},${i % 7 ? i % 1009 : ""}`);
    await page.locator("#file").setInputFiles({ name: "large.csv", mimeType: "text/csv", buffer: Buffer.from(`g,x,y,z\n${rows.join("\n")}\n`) });
    await page.waitForFunction(() => document.getElementById("bar").value > 0);
    assert.equal(page.workers().length, 1);
    await page.locator("#stop").click();
    await page.waitForFunction(() => document.getElementById("status").textContent === "Stopped.");
    assert.equal(await page.evaluate(() => document.activeElement.id), "start");
    for (let tries = 0; page.workers().length > 0 && tries < 100; ++tries) await page.waitForTimeout(100);
    assert.equal(page.workers().length, 0);
    await page.locator("#penguins").click();
    assert.ok(await ended(page));
    assert.equal((await shown(page)).title, "penguins.csv");
  });

  test("runs while the penguins are on their way, and can be stopped", async () => {
    const other = await browser.page();
    assert.ok(await ended(other));
    let release;
    await other.route("**/penguins.csv", (route) => new Promise((resolve) => (release = () => resolve(route.continue()))));
    await survey(other, birds, "birds.csv");
    await other.locator("#penguins").click();
    assert.ok(await other.locator("#stop").isVisible());
    for (let tries = 0; !release && tries < 100; ++tries) await other.waitForTimeout(50);
    release();
    assert.ok(await ended(other));
    assert.equal((await shown(other)).title, "penguins.csv");
    release = undefined;
    await other.locator("#penguins").click();
    for (let tries = 0; !release && tries < 100; ++tries) await other.waitForTimeout(50);
    assert.ok(await survey(other, birds, "birds.csv"));
    release();
    await other.waitForTimeout(300);
    assert.ok(await ended(other));
    assert.equal((await shown(other)).title, "birds.csv");
    await other.context().close();
  });

  test("says what it can't load", async () => {
    const other = await browser.page();
    assert.ok(await ended(other));
    await other.route("**/penguins.csv", (route) => route.fulfill({ status: 404 }));
    await other.locator("#penguins").click();
    assert.equal(await ended(other), false);
    await other.waitForTimeout(300); // nothing comes after it
    assert.equal(await problem(other), "penguins.csv can't be loaded (404)");
    await other.context().close();
  });

  test("sends nothing, and couldn't", async () => {
    for (const { method, url, body } of page.asked) {
      assert.equal(method, "GET");
      assert.equal(body, null);
      assert.ok(url.startsWith(browser.server.address) || url.startsWith("data:") || url.startsWith("blob:"), url);
    }
    const paths = new Set(browser.server.requests.map((request) => request.replace("GET /", "")));
    assert.deepEqual([...paths].sort(), ["", "page.css", "page.js", "penguins.csv", "survey.wasm", "worker.js"]);
    const other = await browser.page();
    await ended(other);
    const forbidden = await other.evaluate(() => fetch("http://localhost:9/", { method: "POST", body: "cells" }).then(() => false, () => true));
    assert.ok(forbidden);
    assert.ok(other.problems.some((problem) => /Content Security Policy/.test(problem)));
    await other.context().close();
  });
});
