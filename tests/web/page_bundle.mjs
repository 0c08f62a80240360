// The page's modules and fragments from the bundle made at build time: the
// bundle holds every file the loader fetches and nothing else, the page built
// from it is the page built file by file, and a file it lacks is fetched.
import test from "node:test";
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import fs from "node:fs";
import os from "node:os";
import path from "node:path";
import { open_browser, open_page, SOURCE_DIR } from "./lib/browser.mjs";
import { start_static_server } from "./lib/static_server.mjs";

const folder = fs.mkdtempSync(path.join(process.env.OVRA_TEST_TMP || os.tmpdir(), "bundle-"));
const bundle_file = path.join(folder, "page_bundle.js");
execFileSync("/usr/bin/python3", [path.join(SOURCE_DIR, "scripts/make_page_bundle.py"),
  path.join(SOURCE_DIR, "html"), path.join(SOURCE_DIR, "resources/page-bundle.txt"), bundle_file]);
const bundle = fs.readFileSync(bundle_file, "utf8");
const bundled_names = Object.keys(new Function("window", bundle + "\nreturn window.page_bundle;")({}));

const { server, base } = await start_static_server(SOURCE_DIR);
const browser = await open_browser();
test.after(async () => {
  await browser.close();
  server.close();
  fs.rmSync(folder, { recursive: true, force: true });
});

// The page with `bundle_text` as its bundle (none when null); the files its
// loader still asked its own server for, and its advanced view once built.
async function open_with(bundle_text) {
  const asked = [];
  const prepare = async (page) => {
    page.on("request", (request) => {
      const url = new URL(request.url());
      if (url.origin === new URL(base).origin && request.resourceType() === "xhr") {
        asked.push(url.pathname.slice(1));
      }
    });
    if (bundle_text !== null) {
      await page.route("**/js/page_bundle.js", (route) => route.fulfill({
        contentType: "text/javascript; charset=utf-8", body: bundle_text }));
    }
  };
  const { page, errors } = await open_page(browser, base + "main_screen.html?window=main", { prepare });
  const view = await page.$eval(".view-advanced", (element) => element.innerHTML);
  await page.close();
  return { asked: asked.sort(), errors, view };
}

test("with or without the bundle, or with part of it, the page is the same", async () => {
  const file_by_file = await open_with(null);
  assert.deepEqual(file_by_file.errors, []);
  assert.deepEqual(file_by_file.asked, bundled_names.slice().sort());
  const missing = ["js/modules/ui/work_time.js", "pages/about_page.html"];
  const cases = [
    { name: "whole bundle", text: bundle, asked: [] },
    { name: "bundle without two files",
      text: bundle + missing.map((name) => `delete window.page_bundle[${JSON.stringify(name)}];`).join("\n"),
      asked: missing }
  ];
  for (const { name, text, asked } of cases) {
    const opened = await open_with(text);
    assert.deepEqual(opened.errors, [], name);
    assert.deepEqual(opened.asked, asked, name);
    assert.equal(opened.view, file_by_file.view, name);
  }
});
