// The settings page with no program behind it, as a browser shows it from a
// plain server: it comes up through the channel's error road and writes each
// call for the native side to the console, which is what these tests read.
import test from "node:test";
import assert from "node:assert/strict";
import { open_browser, open_page, screenshot, SOURCE_DIR } from "./lib/browser.mjs";
import { start_static_server } from "./lib/static_server.mjs";

const { server, base } = await start_static_server(SOURCE_DIR);
const browser = await open_browser();
test.after(async () => {
  await browser.close();
  server.close();
});

async function fresh_page(query = "") {
  const opened = await open_page(browser, base + "main_screen.html?window=main" + query);
  opened.reports = (name) => opened.calls.filter((call) => call.name === name).map((call) => call.args);
  return opened;
}

// Opens a page of the advanced view by its label, also one the menu of
// this platform leaves out.
async function show_page(page, label) {
  if (!(await page.isChecked("#use-advanced-settings-checkbox"))) {
    await page.click("label.slide-switch");
  }
  assert.equal(await page.evaluate((text) => page_loading.open_page(text), label), true, label);
}

test("comes up on its own, as on Linux, without errors", async () => {
  const { page, errors } = await fresh_page();
  assert.deepEqual(errors, []);
  const types = await page.$$eval("#ovra-type option", (options) => options.map((o) => o.value));
  assert.deepEqual(types, ["1", "2", "4", "5", "6", "8"]);
  assert.equal(await page.$$eval(".advanced-settings-menu li:not(.linux)", (items) => items.length), 0);
  assert.equal(await page.isVisible(".minimize"), false);
  await page.close();
});

test("the channel's address carries the page's token and window", async () => {
  const { page } = await fresh_page();
  const cases = [
    ["/f00d/main_screen.html", "?window=main", "ws://127.0.0.1:12311/f00d/channel/main"],
    ["/f00d/", "", "ws://127.0.0.1:12311/f00d/channel/main"],
    ["/f00d/main_screen.html", "?window=rest", "ws://127.0.0.1:12311/f00d/channel/rest"],
    ["/", "?token=beef", "ws://127.0.0.1:12311/beef/channel/main"]
  ];
  for (const [pathname, search, expected] of cases) {
    const address = await page.evaluate(([p, s]) => web_channel_address(
      { host: "127.0.0.1:12311", pathname: p, search: s }), [pathname, search]);
    assert.equal(address, expected, pathname + search);
  }
  await page.close();
});

test("every menu entry opens its page, and its title bar leads back", async () => {
  const { page } = await fresh_page();
  assert.equal(await page.$$eval(".view-advanced .page", (pages) => pages.length), 36);
  await page.click("label.slide-switch");
  const entries = await page.$$eval(".advanced-settings-menu li:visible .menu-text",
    (texts) => texts.map((t) => t.textContent));
  assert.ok(entries.length >= 15, entries.join(", "));
  for (const entry of entries) {
    await page.click(`.advanced-settings-menu li:has-text("${entry}") a`);
    assert.equal(await page.textContent(".page:visible .settings-page-label"), entry);
    await page.click(".page:visible .settings-page-title");
    assert.equal(await page.isVisible("#advanced-settings-menu-holder"), true, entry);
  }
  await page.close();
});

test("a user's change reports once; a value from the native side moves silently", async () => {
  const { page, reports } = await fresh_page();
  await page.evaluate(() => start_on_startup.set_start_on_startup(true));
  assert.equal(await page.isChecked("#checkbox-start-on-startup"), true);
  assert.deepEqual(reports("start_on_startup_changed"), []);
  await show_page(page, "System");
  await page.click("label:has(#checkbox-start-on-startup)");
  assert.deepEqual(reports("start_on_startup_changed"), ["false"]);
  await page.click("label.slide-switch");

  await page.click("#ovra-mode-button");
  await page.click("#ovra-mode-menu li:has-text('Manual')");
  assert.deepEqual(reports("ovra_mode_changed_force"), ["2, false"]);
  await page.evaluate(() => ovra_mode.set_ovra_mode_dropdown_value_ui(3));
  assert.equal(await page.textContent("#ovra-mode-button .ui-selectmenu-text"), "Paused");
  assert.deepEqual(reports("ovra_mode_changed_force"), ["2, false"]);
  await page.close();
});

test("the blue light is the temperature in steps of 65 K", async () => {
  const { page, reports } = await fresh_page();
  await page.evaluate(() => day_blue_light.set_day_temperature_slider_value(6500));
  assert.equal(await page.textContent("#day-blue-light-slider-value"), "100%");
  await page.evaluate(() => day_blue_light.set_day_temperature_slider_value(3640));
  await show_page(page, "Blue light");
  await page.focus("#day-blue-light-slider .ui-slider-handle");
  await page.keyboard.press("ArrowRight");
  assert.deepEqual(reports("day_temperature_changed"), ["3705, 0"]);
  await page.close();
});

test("times of day show as HH:MM and report hours and minutes", async () => {
  const { page, reports } = await fresh_page();
  await show_page(page, "Sleep");
  await page.click("label:has(#use-sleep-light-checkbox)");
  await page.evaluate(() => bedtime.set_bedtime_value(22, 5));
  assert.equal(await page.inputValue("#bedtime"), "22:05");
  assert.deepEqual(reports("bedtime_changed"), []);
  await page.click("#bedtime");
  await page.click(".ui-timepicker-list li:has-text('23:00')");
  await page.fill("#wake-time", "6:30");
  await page.press("#wake-time", "Tab");
  assert.deepEqual(reports("bedtime_changed"), ["23, 0"]);
  assert.deepEqual(reports("wake_time_changed"), ["6, 30"]);
  assert.equal(await page.textContent("#sleep-light-slider-value"), "57%");
  await page.close();
});

test("the brightness range starts at 5 when restored, at 10 when clicked", async () => {
  const { page } = await fresh_page();
  const minimum = () => page.evaluate(() => $("#day-brightness-slider").slider("option", "min"));
  assert.equal(await minimum(), 20);
  await page.evaluate(() => brightness_extended_values.set_brightness_extended_values(true));
  assert.equal(await minimum(), 5);
  await page.evaluate(() => brightness_extended_values.set_brightness_extended_values(false));
  await show_page(page, "Brightness");
  await page.click("label:has(#checkbox-brightness-extended-values)");
  assert.equal(await minimum(), 10);
  await page.close();
});

test("the wider temperature range follows the blue light page's box too", async () => {
  const { page } = await fresh_page();
  const maximum = () => page.evaluate(() => $("#day-temperature-slider").slider("option", "max"));
  assert.equal(await maximum(), 6500);
  await page.evaluate(() => blue_light_extended_values.set_temperature_extended_values(true));
  assert.equal(await maximum(), 10000);
  await page.evaluate(() => blue_light_extended_values.set_temperature_extended_values(false));
  assert.equal(await maximum(), 6500);
  await page.close();
});

test("number boxes keep to their range and show their unit", async () => {
  const { page, reports } = await fresh_page();
  await show_page(page, "Timer");
  for (const [typed, shown] of [["99999", "1440 min"], ["0", "1 min"], ["abc", "1 min"], ["45", "45 min"]]) {
    await page.click("#workTimeBox");
    await page.keyboard.type(typed);
    await page.keyboard.press("Enter");
    assert.equal(await page.inputValue("#workTimeBox"), shown, typed);
  }
  assert.deepEqual(reports("work_time_changed"), ["1440", "1", "45"]);
  await page.close();
});

test("a list is sent on every edit, but only once it has arrived", async () => {
  const { page, reports } = await fresh_page();
  await show_page(page, "Color pausers");
  await page.fill("#color-pausers-textarea", "early");
  assert.deepEqual(reports("save_color_pausers"), []);
  await page.evaluate(() => lists.receive("color_pausers", "gimp"));
  await page.evaluate(() => set_current_active_process("vlc"));
  assert.equal(await page.textContent("#current-color-pauser-process"), "Add vlc");
  await page.click("#current-color-pauser-process");
  await page.click("#current-color-pauser-process");
  assert.equal(await page.inputValue("#color-pausers-textarea"), "gimp");
  await page.type("#color-pausers-textarea", "\nmpv");
  assert.equal(reports("save_color_pausers").at(-1), "gimp\nmpv");
  await page.close();
});

test("keys: Up and Down move the menu, a combination is recorded by its names", async () => {
  const { page, reports } = await fresh_page();
  await page.click("label.slide-switch");
  const scrolled = () => page.$eval("#advanced-settings-menu-holder", (holder) => holder.scrollTop);
  await page.keyboard.press("ArrowDown");
  assert.equal(await scrolled(), 50);
  await page.keyboard.press("ArrowUp");
  await page.keyboard.press("ArrowUp");
  assert.equal(await scrolled(), 0);
  await show_page(page, "Shortcuts");
  for (const [keys, text] of [["Control+Alt+KeyK", "Ctrl+Alt+K"], ["Shift+F5", "Shift+F5"],
    ["Control+Alt+PageUp", "Ctrl+Alt+PgUp"], ["Control+Alt", "Ctrl+Alt+"]]) {
    await page.focus("#feature-shortcut");
    await page.keyboard.press(keys);
    assert.equal(await page.inputValue("#feature-shortcut"), text);
    assert.equal(reports("shortcut_changed").at(-1), "1, " + text);
  }
  await page.close();
});

test("the monitor tabs follow the screen count", async () => {
  const { page } = await fresh_page();
  await page.evaluate(() => use_per_monitor_settings.set_use_per_monitor_settings(true));
  for (const [count, tabs, small] of [[2, 2, false], [3, 3, false], [4, 4, true]]) {
    await page.evaluate((n) => manage_monitors.set_screen_count(n), count);
    assert.equal(await page.$$eval(".monitors label:visible", (labels) => labels.length), tabs);
    assert.equal(await page.$eval(".monitors", (m) => m.classList.contains("small")), small);
  }
  await page.close();
});

test("a page opened elsewhere says so over everything", async () => {
  const { page } = await fresh_page();
  await page.evaluate(() => web_channel_closed({ code: 4001 }));
  assert.equal(await page.isVisible(".channel-notice .opened-elsewhere"), true);
  assert.equal(await page.isVisible(".channel-notice .connection-closed"), false);
  await page.close();
});

for (const scale of [1, 2]) {
  test(`basic and advanced views at ${scale}x`, async () => {
    const { page } = await fresh_page(scale === 2 ? "&scale=2" : "");
    const size = () => page.evaluate(() => [window_dimensions.get_window_width(),
      window_dimensions.get_window_height()]);
    assert.deepEqual(await size(), [495 * scale, 475 * scale]);
    await screenshot(page, `basic-${scale}x`);
    await page.click("label.slide-switch");
    await screenshot(page, `advanced-${scale}x`);
    await page.click(".advanced-settings-menu li:has-text('Blue light') a");
    await screenshot(page, `blue-light-${scale}x`);
    await page.close();
  });
}
