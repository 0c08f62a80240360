// The settings page against the real program over its web bridge: what the
// program holds shows on the page, and what the user does on the page
// reaches the settings file and the display.
import test from "node:test";
import assert from "node:assert/strict";
import { open_browser, open_page, screenshot } from "./lib/browser.mjs";
import { start_ovra, write_config, read_config, read_ramps, wait_for } from "./lib/ovra.mjs";
import { start_static_server } from "./lib/static_server.mjs";
import { SOURCE_DIR } from "./lib/browser.mjs";

const browser = await open_browser();
test.after(() => browser.close());

async function with_ovra(config, body) {
  write_config({ SaveVersion: 3, ...config });
  const ovra = await start_ovra();
  try {
    const opened = await open_page(browser, ovra.page_url());
    await opened.page.waitForFunction(() => web_channel.first_restore_seen && translation_done,
      null, { timeout: 20000 });
    await body(opened, ovra);
    await opened.page.close();
  } finally {
    assert.equal(await ovra.stop(), 0);
  }
}

async function show_page(page, label) {
  if (!(await page.isChecked("#use-advanced-settings-checkbox"))) {
    await page.click("label.slide-switch");
  }
  assert.equal(await page.evaluate((text) => page_loading.open_page(text), label), true, label);
}

test("the page shows what the program holds", async () => {
  await with_ovra({ OvraMode: 2, DayTemperature: 3640, UseSounds: "true", WorkTime: 45 }, async ({ page, errors }) => {
    assert.deepEqual(errors, []);
    assert.equal(await page.textContent("#ovra-mode-button .ui-selectmenu-text"), "Manual");
    assert.equal(await page.textContent("#day-blue-light-slider-value"), "56%");
    assert.equal(await page.isChecked("#use-sounds-checkbox"), true);
    assert.equal(await page.inputValue("#workTimeBox"), "45 min");
    assert.equal(await page.evaluate(() => color_pausers_loaded), true);
    await screenshot(page, "with-ovra-basic-1x");
  });
});

// In the advanced view from the start: a switch to it would bring in the
// values the advanced view last held.
test("a change on the page reaches the display and, after a save, the file", async () => {
  const config = { AdvancedView: "true", UseManualColorSettings: "true", UseManualBrightness: "true", UseSleepLight: "false",
    DayTemperature: 3640, NightTemperature: 3640, DayBrightness: 100, NightBrightness: 100 };
  await with_ovra(config, async ({ page }) => {
    const before = await wait_for(() => {
      const ramps = read_ramps();
      return ramps[2][255] < ramps[0][255] ? ramps : null;
    });
    assert.ok(before, "the stored tint reached the display");
    await show_page(page, "Blue light");
    for (const handle of ["#day-blue-light-slider", "#night-blue-light-slider"]) {
      await page.focus(handle + " .ui-slider-handle");
      await page.keyboard.press("ArrowLeft");
    }
    assert.ok(await wait_for(() => read_ramps()[2][255] < before[2][255]), "the display grew warmer");
    await page.click("#save-and-close-button");
    // 56 % of the blue light is 3640 K; one step less is 3575 K, kept on
    // whole hundreds in the file.
    assert.ok(await wait_for(() => read_config().get("DayTemperature") === "3500"),
      "DayTemperature is " + read_config().get("DayTemperature"));
    assert.equal(read_config().get("NightTemperature"), "3500");
  });
});

test("a list typed on the page is in the file after a save", async () => {
  await with_ovra({}, async ({ page }) => {
    await show_page(page, "Color pausers");
    await page.fill("#color-pausers-textarea", "gimp\nmpv");
    await page.click("#save-and-close-button");
    assert.ok(await wait_for(() => /gimp/.test(read_config().get("ColorPausers") || "")),
      "ColorPausers is " + read_config().get("ColorPausers"));
  });
});

test("a second page takes over and the first one says so", async () => {
  await with_ovra({}, async ({ page }, ovra) => {
    const second = await open_page(browser, ovra.page_url());
    assert.ok(await wait_for(() => page.isVisible(".channel-notice .opened-elsewhere")));
    await second.page.close();
  });
});

test("double scale doubles the page and the window", async () => {
  await with_ovra({ UiScale: 2 }, async ({ page }) => {
    const size = await page.evaluate(() => [window_dimensions.get_window_width(),
      window_dimensions.get_window_height()]);
    assert.deepEqual(size, [990, 950]);
    await screenshot(page, "with-ovra-basic-2x");
  });
});

// What the bridge refuses, tried from a real browser: a page of another
// origin on this machine, and the program's own origin without its token.
test("requests and sockets without the token or from elsewhere are refused", async () => {
  const foreign = await start_static_server(SOURCE_DIR);
  await with_ovra({}, async ({ page }, ovra) => {
    const { origin, pathname } = new URL(ovra.address);
    const token = pathname.split("/")[1];
    const wrong = token.replace(/.$/, (c) => (c === "0" ? "1" : "0"));
    const socket_opens = (p, url) => p.evaluate((address) => new Promise((resolve) => {
      const socket = new WebSocket(address);
      socket.onopen = () => { socket.close(); resolve(true); };
      socket.onerror = () => resolve(false);
    }), url);
    const channel = (t) => `${origin.replace("http", "ws")}/${t}/channel/main`;

    assert.equal(await socket_opens(page, channel(token)), true, "the page's own road is open");
    assert.equal(await socket_opens(page, channel(wrong)), false);
    assert.equal(await socket_opens(page, `${origin.replace("http", "ws")}/channel/main`), false);
    for (const path of [`/${wrong}/main_screen.html`, "/main_screen.html", `/${token}/../main_screen.html`]) {
      const status = await page.evaluate((url) => fetch(url).then((r) => r.status), origin + path);
      assert.notEqual(status, 200, path);
    }

    const other = await browser.context.newPage();
    await other.goto(foreign.base + "main_screen.html");
    assert.equal(await socket_opens(other, channel(token)), false, "a foreign origin is refused");
    await other.close();
    assert.match(ovra.stderr(), /origin/i);
  });
  foreign.server.close();
});
