// Every form of control against the real program: what the user does
// reaches the program once and the file with a save, what the program sends
// moves the control without a report back, and the numbers on which page
// and program must agree. The program writes each call of the page and each
// store of the change rule to standard error, and the tests count them.
import test from "node:test";
import assert from "node:assert/strict";
import fs from "node:fs";
import { open_browser, open_page, screenshot } from "./lib/browser.mjs";
import { start_ovra, write_config, read_config, config_file, wait_for } from "./lib/ovra.mjs";
import { TRACED, ProgramLog, settle } from "./lib/program_log.mjs";

const browser = await open_browser();
test.after(() => browser.close());

// Starts in the advanced view, so that the stored values stand as written.
async function with_ovra(config, body, options = {}) {
  write_config({ SaveVersion: 3, AdvancedView: "true", AutosaveSettings: "false", ...config });
  const ovra = await start_ovra(TRACED);
  const log = new ProgramLog(ovra);
  try {
    const { page, errors } = await open_page(browser, ovra.page_url(), options);
    await page.waitForFunction(() => web_channel.first_restore_seen && translation_done,
      null, { timeout: 20000 });
    await settle(page);
    assert.deepEqual(errors, []);
    // The stored values moved the controls; none of them may answer.
    assert.deepEqual(log.calls_matching(/_changed/), []);
    log.mark();
    await body({ page, log });
    await page.close();
  } finally {
    assert.equal(await ovra.stop(), 0);
  }
}

async function show_page(page, label) {
  assert.equal(await page.evaluate((text) => page_loading.open_page(text), label), true, label);
}

function file_state() {
  return { text: fs.readFileSync(config_file(), "utf8"), mtime: fs.statSync(config_file()).mtimeMs };
}

async function save(page, expected) {
  await page.click("#save-and-close-button");
  const matches = () => Object.entries(expected).every(([key, value]) => read_config().get(key) === value);
  assert.ok(await wait_for(matches), `the file holds ${JSON.stringify(expected)}: ${fs.readFileSync(config_file(), "utf8")}`);
}

const has_class = (selector, name) => (page) =>
  page.$eval(selector, (element, wanted) => element.classList.contains(wanted), name);

// The menu takes the item under the pointer only once the pointer moves on
// it, and a pointer that comes back to the very same point has not moved:
// it comes to the item in two moves.
async function choose(page, select, item) {
  await page.click(`${select}-button`);
  const entry = page.locator(`${select}-menu .ui-menu-item-wrapper:text-is("${item}")`);
  await entry.hover({ position: { x: 4, y: 4 } });
  await entry.click({ position: { x: 8, y: 8 } });
}

async function press(page, selector, keys, pause_ms = 0) {
  await page.focus(selector);
  for (const key of keys) {
    await page.keyboard.press(key);
    await new Promise((resolve) => setTimeout(resolve, pause_ms));
  }
}

// One control of each form: the stored value it shows, what the user does,
// what it shows then, the call that reaches the program, what is stored.
const FORMS = [
  { form: "checkbox", page: "Sounds", config: { UseSounds: "true" },
    shows: (page) => page.isChecked("#use-sounds-checkbox"), before: true, after: false,
    change: (page) => page.click("label:has(#use-sounds-checkbox)"),
    slot: "use_sounds_changed", call: "false", stores: { UseSounds: "false" } },
  { form: "slider", page: "Screen overlay", config: { DayDim: 40 },
    shows: (page) => page.textContent("#day-dim-slider-value"), before: "40%", after: "41%",
    change: (page) => press(page, "#day-dim-slider .ui-slider-handle", ["ArrowRight"]),
    slot: "day_dim_changed", call: "41", stores: { DayDim: "41" } },
  { form: "dropdown", page: "Screen effects", config: { UseColorEffects: "true", ColorEffect: 2 },
    shows: (page) => page.textContent("#color-effect-select-button .ui-selectmenu-text"),
    before: "Grayscale 1", after: "Sepia",
    change: (page) => choose(page, "#color-effect-select", "Sepia"),
    slot: "color_effect_changed", call: "14", stores: { ColorEffect: "14" } },
  // More than a day's minutes is a day's.
  { form: "number box", page: "Timer", config: { WorkTime: 45 },
    shows: (page) => page.inputValue("#workTimeBox"), before: "45 min", after: "1440 min",
    change: async (page) => {
      await page.click("#workTimeBox");
      await page.keyboard.type("99999");
      await page.keyboard.press("Tab");
    },
    slot: "work_time_changed", call: "1440", stores: { WorkTime: "1440" } },
  { form: "time picker", page: "Sleep", config: { UseSleepLight: "true", BedtimeHours: 22, BedtimeMinutes: 30 },
    shows: (page) => page.inputValue("#bedtime"), before: "22:30", after: "23:15",
    change: async (page) => {
      await page.click("#bedtime");
      await page.click(".ui-timepicker-wrapper:visible li:text-is('23:15')");
    },
    slot: "bedtime_changed", call: "23,15", stores: { BedtimeHours: "23", BedtimeMinutes: "15" } },
  { form: "buttons", page: "Lightness", config: { UseLightnessScreen: "true" },
    shows: has_class("#lightness-screen-on", "active"), before: true, after: false,
    change: (page) => page.click("#lightness-screen-off"),
    slot: "use_lightness_screen_changed", call: "false", stores: { UseLightnessScreen: "false" } }
];

for (const row of FORMS) {
  test(`${row.form}: the user's change is stored once, the program's value comes back silently`, async () => {
    await with_ovra(row.config, async ({ page, log }) => {
      await show_page(page, row.page);
      assert.equal(await row.shows(page), row.before, "the stored value is shown");
      const file = file_state();

      await row.change(page);
      await settle(page);
      await screenshot(page, "controls-" + row.form.replace(" ", "-"));
      assert.equal(await row.shows(page), row.after);
      assert.deepEqual(log.calls(row.slot), [row.call], "one call, and no answer to the program's own");
      for (const [key, value] of Object.entries(row.stores)) {
        assert.deepEqual(log.stores(key), [value], key);
      }
      assert.deepEqual(file_state(), file, "nothing is written before a save");

      // Closing without a save gives every control the stored value again.
      log.mark();
      await page.evaluate(() => close_clicked());
      await settle(page);
      assert.equal(await row.shows(page), row.before, "the control follows the program");
      assert.deepEqual(log.calls(row.slot), []);
      assert.deepEqual(Object.keys(row.stores).flatMap((key) => log.stores(key)), []);

      await row.change(page);
      await save(page, row.stores);
    });
  });
}

test("the mode and type dropdowns answer the program's plain setter once, with force", async () => {
  await with_ovra({ OvraMode: 2, OvraType: 4 }, async ({ page, log }) => {
    // Leaving the advanced view brings the basic view's mode and type back.
    await page.click("label.slide-switch");
    await settle(page);
    assert.equal(log.calls("use_advanced_settings_changed").length, 1);
    assert.deepEqual(log.calls("ovra_mode_changed_force"), ["2,true"]);
    assert.deepEqual(log.calls("ovra_type_changed_force"), ["4,true"]);
    assert.equal(await page.textContent("#ovra-mode-button .ui-selectmenu-text"), "Manual");

    log.mark();
    await choose(page, "#ovra-mode", "Automatic");
    await settle(page);
    assert.deepEqual(log.calls("ovra_mode_changed_force"), ["1,false"]);
    assert.deepEqual(log.stores("OvraMode"), ["1"]);
    await save(page, { OvraMode: "1" });
  });
});

// The program's messages reach the page late and in order, as on a busy
// machine: the answer to one step of the user's comes after the next step.
function slow_channel(page) {
  return page.routeWebSocket(/\/channel\//, (socket) => {
    const server = socket.connectToServer();
    server.onMessage((text) => setTimeout(() => socket.send(text), 50));
  });
}

test("the blue light shows 6500 K as 100 and reports 57 as 3705 K", async () => {
  await with_ovra({ UseManualColorSettings: "true", DayTemperature: 6500 }, async ({ page, log }) => {
    await show_page(page, "Blue light");
    assert.equal(await page.textContent("#day-blue-light-slider-value"), "100%");
    // Two pages of 20 down, then three steps: 80, 60, 59, 58, 57, each
    // before the program's answer to the last is back.
    await press(page, "#day-blue-light-slider .ui-slider-handle",
      ["PageDown", "PageDown", "ArrowLeft", "ArrowLeft", "ArrowLeft"], 30);
    await settle(page);
    assert.equal(await page.textContent("#day-blue-light-slider-value"), "57%");
    const kelvin = ["5200", "3900", "3835", "3770", "3705"];
    assert.deepEqual(log.calls("day_temperature_changed"), kelvin.map((k) => k + ",0"));
    assert.deepEqual(log.stores("DayTemperature"), kelvin);
  }, { prepare: slow_channel });
});

const BRIGHTNESS_SLIDERS = ["#day-brightness-slider", "#night-brightness-slider"];
const range_of = (page) => page.evaluate((sliders) => sliders.map((slider) =>
  [$(slider).slider("option", "min"), $(slider).slider("option", "max")]), BRIGHTNESS_SLIDERS);

test("the wider brightness range starts at 5 when restored and at 10 when clicked on", async () => {
  await with_ovra({ UseBrightnessExtendedValues: "true" }, async ({ page }) => {
    assert.deepEqual(await range_of(page), [[5, 150], [5, 150]]);
  });
  await with_ovra({ UseBrightnessExtendedValues: "false" }, async ({ page, log }) => {
    assert.deepEqual(await range_of(page), [[20, 100], [20, 100]]);
    await show_page(page, "Brightness");
    await page.click("label:has(#checkbox-brightness-extended-values)");
    await settle(page);
    assert.deepEqual(await range_of(page), [[10, 150], [10, 150]]);
    assert.deepEqual(log.calls("brightness_extended_values_changed"), ["true"]);
    assert.deepEqual(log.stores("UseBrightnessExtendedValues"), ["true"]);
  });
});

// The page of each list, its box, its button, the slot that takes it, the
// key, and the line that the button adds for the application "gimp".
const LISTS = [
  ["Color pausers", "#color-pausers-textarea", "#current-color-pauser-process", "save_color_pausers",
    "ColorPausers", "gimp"],
  ["Timer pausers", "#timer-pausers-textarea", "#current-timer-pauser-process", "save_timer_pausers",
    "TimerPausers", "gimp"],
  ["Mouse pausers", "#mouse-pausers-textarea", "#current-mouse-pauser-process", "save_mouse_pausers",
    "MousePausers", "gimp"],
  ["Color triggers", "#color-triggers-textarea", "#current-color-trigger-process", "save_color_triggers",
    "ColorTriggers", "gimp = 6500 100"]
];
// As the program writes them into the file.
const STORED_LISTS = { ColorPausers: "mpv\\nvlc", TimerPausers: "", MousePausers: "steam",
  ColorTriggers: '"vlc = 5000 90"' };

test("the current application's button, pressed twice, gives each list back as it was", async () => {
  await with_ovra(STORED_LISTS, async ({ page, log }) => {
    // As the process watcher would: the program names the application in front.
    await page.evaluate(() => native_object.set_current_active_process("gimp"));
    for (const [label, box, button, slot, , line] of LISTS) {
      await show_page(page, label);
      const stored = await page.inputValue(box);
      assert.equal(await page.textContent(button), "Add gimp", label);
      await page.click(button);
      assert.deepEqual((await page.inputValue(box)).split("\n").filter(Boolean),
        [...stored.split("\n").filter(Boolean), line], label);
      assert.equal(await page.textContent(button), "Remove gimp", label);
      await page.click(button);
      assert.equal(await page.inputValue(box), stored, label);
      await settle(page);
      assert.equal(log.calls(slot).length, 2, label);
      assert.equal(JSON.parse(log.calls(slot)[1]), stored, label);
    }
    await show_page(page, "Color pausers");
    await page.click("label:has(#color-pausers-checkbox)");
    await save(page, { UseColorPausers: "true" });
    for (const [key, text] of Object.entries(STORED_LISTS)) {
      assert.equal(read_config().get(key) || "", text, key);
    }
  });
});

// Holds back the program's list signals, as if the page had not had them yet.
function without_lists(page) {
  const held_names = ["set_color_pausers_list", "set_timer_pausers_list", "set_mouse_pausers_list",
    "set_color_triggers_list", "set_websites_for_blocking", "set_applications_for_blocking"];
  return page.routeWebSocket(/\/channel\//, (socket) => {
    const server = socket.connectToServer();
    const held = new Set();
    server.onMessage((text) => {
      const message = JSON.parse(text);
      const signals = message.data && message.data.native_object && message.data.native_object.signals;
      for (const [name, index] of signals || []) {
        if (held_names.includes(name)) {
          held.add(index);
        }
      }
      if (!(message.type === 1 && held.has(message.signal))) {
        socket.send(text);
      }
    });
  });
}

test("a save before the lists arrived leaves the stored lists alone", async () => {
  await with_ovra(STORED_LISTS, async ({ page, log }) => {
    await show_page(page, "Color pausers");
    assert.equal(await page.inputValue("#color-pausers-textarea"), "", "the list is held back");
    await page.fill("#color-pausers-textarea", "gimp");
    await page.click("label:has(#color-pausers-checkbox)");
    await save(page, { UseColorPausers: "true" });
    assert.deepEqual(log.calls_matching(/^save_(?!and_close)/), []);
    for (const [key, text] of Object.entries(STORED_LISTS)) {
      assert.equal(read_config().get(key) || "", text, key);
    }
  }, { prepare: without_lists });
});

test("a drag through 50 steps stores each step once and writes nothing", async () => {
  await with_ovra({ UseManualColorSettings: "true", DayTemperature: 6500 }, async ({ page, log }) => {
    await show_page(page, "Color Temperature");
    const track = await page.locator("#day-temperature-slider").boundingBox();
    const handle = await page.locator("#day-temperature-slider .ui-slider-handle").boundingBox();
    const y = handle.y + handle.height / 2;
    const x_of = (kelvin) => track.x + track.width * kelvin / 6500;
    const file = file_state();
    await page.mouse.move(handle.x + handle.width / 2, y);
    await page.mouse.down();
    const steps = Array.from({ length: 50 }, (_, i) => 6400 - 100 * i);
    for (const kelvin of steps) {
      await page.mouse.move(x_of(kelvin), y, { steps: 3 });
    }
    await page.mouse.up();
    await settle(page);
    const kelvin = steps.map(String);
    assert.deepEqual(log.calls("day_temperature_changed"), kelvin.map((k) => k + ",0"));
    assert.deepEqual(log.stores("DayTemperature"), kelvin);
    assert.equal(await page.textContent("#day-temperature-slider-value"), "1500K");
    assert.deepEqual(file_state(), file, "nothing is written before a save");
    await save(page, { DayTemperature: "1500" });
  }, { prepare: slow_channel });
});
