// The page for all who use it: by the keyboard alone, with a screen reader, on light and dark screens, on small ones.
import assert from "node:assert/strict";
import { mkdirSync, readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { join } from "node:path";
import { after, before, describe, test } from "node:test";
import { download, ended, problem, shown, start, survey } from "./driver.mjs";

const axe = readFileSync(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");
let browser;

before(async () => (browser = await start()));
after(() => browser?.stop());

/** What axe finds wrong with the page: rule, and the elements. */
async function violations(page) {
  await page.evaluate(axe);
  const { violations: found, passes } = await page.evaluate(() => axe.run(document, { resultTypes: ["violations"] }));
  assert.ok(passes.length > 20, "axe has looked at nothing");
  return found.map(({ id, nodes }) => `${id}: ${nodes.slice(0, 3).map(({ html }) => html.slice(0, 120)).join(" | ")}`);
}

for (const colorScheme of ["light", "dark"])
  describe(`on a ${colorScheme} screen`, () => {
    let page;
    before(async () => {
      page = await browser.page({ colorScheme });
      assert.ok(await ended(page));
    });
    after(() => page.context().close());

    test("the survey has nothing that keeps a reader out", async () => {
      await page.locator("#options summary").click();
      assert.deepEqual(await violations(page), []);
      await page.locator("#options summary").click();
    });

    test("a message has nothing that keeps a reader out", async () => {
      await survey(page, "a,b\n1,2\nnan,3\n4,5\n", "table.csv");
      assert.match(await problem(page), /line 3, column 1/);
      assert.deepEqual(await violations(page), []);
    });

    test("axe would find what is wrong", async () => {
      await page.evaluate(() => document.getElementById("option-seed").closest("label").replaceWith(document.getElementById("option-seed")));
      await page.locator("#options summary").click();
      assert.match((await violations(page)).join(), /^label: /);
    });

    test("a picture is taken", { skip: !process.env.SCREENSHOTS }, async () => {
      const other = await browser.page({ colorScheme, viewport: { width: 1000, height: 760 }, deviceScaleFactor: 0.7 });
      assert.ok(await ended(other));
      mkdirSync(process.env.SCREENSHOTS, { recursive: true });
      const { y, height } = await other.locator("#quartiles figure").first().boundingBox();
      const clip = { x: 0, y: 0, width: 1000, height: y + height + 10 };
      await other.screenshot({ path: join(process.env.SCREENSHOTS, `page-${colorScheme}.png`), fullPage: true, clip });
      await other.context().close();
    });
  });

test("by the keyboard alone", { timeout: 400_000 }, async () => {
  const page = await browser.page();
  page.on("filechooser", () => {}); // from now on the browser leaves choosing to the test
  assert.ok(await ended(page));
  const focused = () => page.evaluate(() => document.activeElement.id || document.activeElement.textContent.trim());
  /** Presses Tab until the focus is there. */
  const tabTo = async (goal) => {
    for (let presses = 0; presses < 60; ++presses) {
      await page.keyboard.press("Tab");
      if ((await focused()) === goal) return;
    }
    assert.fail(`Tab doesn't lead to ${goal}`);
  };
  await tabTo("Skip to the results");
  await page.keyboard.press("Enter");
  assert.equal(await focused(), "result");
  await page.reload();
  assert.ok(await ended(page));

  await tabTo("file");
  const [chooser] = await Promise.all([page.waitForEvent("filechooser"), page.keyboard.press("Enter")]);
  await chooser.setFiles({ name: "two.csv", mimeType: "text/csv", buffer: Buffer.from("kind,other,x,y\na,u,1,2\na,v,2,1\na,u,3,5\nb,v,3,4\nb,u,5,7\nb,v,6,5\n") });
  await page.waitForFunction(() => document.querySelector(".file")?.textContent === "two.csv");
  assert.ok(await ended(page));
  await tabTo("option-grouping");
  await page.keyboard.type("other");
  await tabTo("start");
  await page.keyboard.press("Enter");
  await page.waitForFunction(() => /other: u/.test(document.querySelector("dl")?.textContent ?? ""));
  assert.ok(await ended(page));
  await tabTo("Text");
  const [taken] = await Promise.all([page.waitForEvent("download"), page.keyboard.press("Enter")]);
  assert.equal(taken.suggestedFilename(), "two-survey.txt");
  await tabTo("Moments");
  await page.keyboard.press("Enter");
  assert.match(page.url(), /#moments$/);
  await page.keyboard.press("Tab"); // from the heading jumped to, on to the table, which can be scrolled by the keyboard
  assert.equal(await page.evaluate(() => document.activeElement.getAttribute("role")), "group");
  assert.deepEqual(page.problems, []);
  await page.context().close();
});

test("every control shows where the focus is", async () => {
  const page = await browser.page();
  assert.ok(await ended(page));
  for (const id of ["penguins", "option-grouping", "start"]) {
    await page.keyboard.press("Tab");
    await page.locator(`#${id}`).focus();
    assert.notEqual(await page.locator(`#${id}`).evaluate((control) => getComputedStyle(control).outlineStyle), "none", id);
  }
  await page.locator("#file").focus();
  assert.notEqual(await page.locator("label.button").evaluate((label) => getComputedStyle(label).outlineStyle), "none");
  await page.context().close();
});

test("on a small screen nothing is wider than it", async () => {
  const page = await browser.page({ viewport: { width: 340, height: 700 } });
  assert.ok(await ended(page));
  assert.ok((await page.evaluate(() => document.documentElement.scrollWidth)) <= 340);
  await page.context().close();
});

test("500,000 rows of 20 columns don't freeze it", { skip: !process.env.LARGE_TABLE, timeout: 600_000 }, async () => {
  const page = await browser.page();
  page.setDefaultTimeout(550_000);
  assert.ok(await ended(page));
  await page.evaluate(() => {
    window.longest = 0;
    let last = performance.now();
    setInterval(() => {
      const now = performance.now();
      window.longest = Math.max(window.longest, now - last);
      last = now;
    }, 20);
  });
  await page.locator("#file").setInputFiles(process.env.LARGE_TABLE);
  await page.waitForFunction(() => !document.getElementById("stop").hidden);
  const steps = new Set();
  while (await page.locator("#stop").isVisible()) {
    steps.add(Math.round(20 * (await page.locator("#bar").evaluate((bar) => bar.value))));
    await page.waitForTimeout(250);
  }
  assert.ok(await page.locator("#problem").isHidden());
  assert.equal((await shown(page)).summary, "500000 rows, 20 columns");
  const longest = await page.evaluate(() => window.longest);
  console.log(`${await page.locator("#status").textContent()} The page was never away for more than ${Math.round(longest)} ms.`);
  assert.ok(longest < 2000, `${longest} ms`);
  assert.ok(steps.size > 5, `the bar showed ${steps.size} steps`);
  await download(page, page.getByRole("button", { name: "All tables (ZIP)" }));
  assert.deepEqual(page.problems, []);
  await page.context().close();
});
