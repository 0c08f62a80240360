// Debian's Chromium driven by playwright-core, each run with a profile of
// its own, and a folder for what a run leaves for people to look at.
import fs from "node:fs";
import os from "node:os";
import path from "node:path";
import { chromium } from "playwright-core";

export const SOURCE_DIR = process.env.OVRA_SOURCE_DIR ||
  path.resolve(path.dirname(new URL(import.meta.url).pathname), "../../..");
export const ARTIFACTS = process.env.OVRA_ARTIFACTS || path.join(os.tmpdir(), "ovra-artifacts");

const FLAGS = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
  "--disable-background-networking", "--disable-component-update", "--disable-sync"];

export async function open_browser() {
  const profile = fs.mkdtempSync(path.join(process.env.OVRA_TEST_TMP || os.tmpdir(), "chromium-"));
  const context = await chromium.launchPersistentContext(profile, {
    executablePath: "/usr/bin/chromium",
    headless: true,
    args: FLAGS,
    viewport: { width: 1200, height: 1200 }
  });
  return {
    context,
    async close() {
      await context.close();
      fs.rmSync(profile, { recursive: true, force: true });
    }
  };
}

// A page whose calls to the missing native side are collected: on its own
// the page writes each one to the console as "native: name(args)".
// `prepare(page)` runs before the page loads, for routes of its own.
export async function open_page(browser, url, { prepare } = {}) {
  const page = await browser.context.newPage();
  const calls = [];
  const errors = [];
  page.on("console", (message) => {
    const match = message.text().match(/^native: (\w+)\((.*)\)$/s);
    if (match) {
      calls.push({ name: match[1], args: match[2] });
    }
  });
  page.on("pageerror", (error) => errors.push(error.message));
  // What the page remembers on its own would carry over from test to test.
  await page.addInitScript(() => window.localStorage.clear());
  if (prepare) {
    await prepare(page);
  }
  await page.goto(url);
  await page.waitForFunction(() => window.load_finished === true, null, { timeout: 20000 });
  return { page, calls, errors };
}

export async function screenshot(page, name) {
  fs.mkdirSync(ARTIFACTS, { recursive: true });
  const file = path.join(ARTIFACTS, name + ".png");
  await (await page.$(".ovra-container")).screenshot({ path: file });
  return file;
}
