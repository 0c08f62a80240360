// The settings window's entry script: loads the modules, builds the page,
// and starts it once the native side is there (or without one).
"use strict";

var DEFAULT_WORK_TIME = 30;
var MAX_WORK_TIME = 1440;
var MIN_WORK_TIME = 1;
var DEFAULT_REST_TIME = 1;
var MAX_REST_TIME = 86400;
var MIN_REST_TIME = 1;
var MIN_POSTPONE_TIME = 1;
var minColorTemp = 0;
var minBrightness = 10;

var load_finished = false;
var jquery_load_finished = false;

// Help pages live under one address; a help button adds its own slug.
var HELP_BASE_URL = "https://ovra.app/help/";

// Words that scripts write into the page; translate() replaces the English.
var ADD = "Add";
var REMOVE = "Remove";
var MIN = "min";
var SEC = "sec";
var HOUR = "hour";
var ON = "On";
var OFF = "Off";
var FEATURE_ON_OFF = "Point at a page to see whether it is in use";
var LOADING = "Loading...";

// True once the last text of a translation pass has arrived.
var translation_done = false;

var current_active_process_name = "";
var current_process_shown = false;

// The modules, in load order, each bound to a global of its file's name.
var MODULE_FILES = [
  "js/api/keeper/save_keys.js", "js/api/keeper/defines.js", "js/api/keeper/save_manager.js",
  "js/api/hellboy/color_ramp.js", "js/api/page_tint/page_tint.js",
  "js/modules/page_loading.js", "js/modules/features.js", "js/modules/websites_blocking.js",
  "js/modules/window_dimensions.js", "js/modules/keyboard_manager.js", "js/modules/monitors.js",
  "js/components/setters.js", "js/components/folds.js", "js/components/forms.js",
  "js/components/blue_light.js",
  "js/components/lists.js"
];

// One module a control, in the order they are set up within their kind.
var UI_MODULES = [
  "ovra_mode", "ovra_type", "timer_type", "use_advanced_settings",
  "language", "strictness", "color_effect", "rest_screen_type", "color_scheme", "leading_color",
  "overlay_color", "font_type", "shortcuts",
  "day_blue_light", "night_blue_light", "day_temperature", "night_temperature",
  "day_brightness", "night_brightness", "sleep_light", "sleep_brightness",
  "day_opacity", "night_opacity", "day_dim", "night_dim",
  "lightness_screen_opacity", "lightness_screen_radius", "lightness_screen_x_position",
  "lightness_screen_y_position", "pwm_control",
  "use_manual_blue_light", "use_manual_color_settings", "use_manual_brightness", "use_sleep_light",
  "blue_light_extended_values", "temperature_extended_values", "brightness_extended_values",
  "use_per_monitor_settings", "manage_monitors", "use_manual_location", "use_manual_night_duration",
  "use_automatic_brightness", "match_brightness_to_lighting", "use_smart_brightness",
  "use_smart_inversion", "use_color_effects", "use_blink_detection", "use_sounds",
  "automatically_close_rest_screen", "use_mouse_inactivity", "use_keyboard_inactivity",
  "use_keyboard_blocking", "use_software_cursor", "auto_save_settings", "use_gamma_fixer",
  "optimize_ui_creation", "use_keyboard_shortcuts", "destroy_ui_on_close",
  "use_low_level_color_api", "start_on_startup", "hide_taskbar_icon",
  "use_color_pausers", "use_timer_pausers", "use_mouse_pausers", "use_color_triggers",
  "color_pausers_pause_on_fullscreen_apps", "timer_pausers_pause_on_fullscreen_apps",
  "mouse_pausers_pause_on_fullscreen_apps",
  "night_start_time", "night_end_time", "bedtime", "wake_time",
  "work_time", "rest_time", "postpone_time", "day_transition", "night_transition",
  "sleep_transition", "pause_transition", "latitude", "longitude", "time_zone_offset",
  "new_moon_offset", "full_moon_offset",
  "use_overlay_screen", "use_lightness_screen", "use_inverted_colors", "use_camera",
  "use_blink_screen"
];

var SETUP_ORDER = ["dropdown", "slider", "checkbox", "time_picker", "number_box", "buttons"];

function bind_module(path) {
  var name = path.split("/").pop().replace(/\.js$/, "");
  window[name] = require(path);
}

MODULE_FILES.forEach(bind_module);
UI_MODULES.forEach(function (name) {
  bind_module("js/modules/ui/" + name + ".js");
});

// --- Building the page -----------------------------------------------------

$(function () {
  page_loading.load_pages();
  features.refresh_unused_pages();
  page_loading.setup_menu();
  keyboard_manager.bind_scroll();
  $(".pagination, .advanced-settings-page-title, .page").hide();
  if ($("#blockStartWebsites").length) {
    websites_blocking.setup_date_pickers();
  }
  setup_controls();
  lists.setup();
  setup_hidden_features_input();
  setup_input_filters();
  $("input[name='monitor-tabs']").on("change", function () {
    monitors.set_current_active_monitor(parseInt(this.value, 10));
  });
  $(".view-basic").show();
  $(".view-advanced").hide();
  folds.refresh();
  jquery_load_finished = true;
  start_web_channel();
});

function setup_controls() {
  if (typeof shortcuts !== "undefined") {
    shortcuts.setup_recorder();
  }
  SETUP_ORDER.forEach(function (kind) {
    UI_MODULES.forEach(function (name) {
      var module = window[name];
      if (module && module.kind === kind && typeof module.setup === "function") {
        module.setup();
      }
    });
  });
}

// Runs once, when the channel is up or has failed.
function ovra_load_finished() {
  if (load_finished) {
    return;
  }
  load_finished = true;
  USE_WEBKIT_BRIDGE = false;
  native_call("load_finished");
  translate();
  setup_ovra();
  features.refresh_unused_pages();
  keyboard_manager.start();
  setup_widgets();
  if (!has_native_side()) {
    run_on_its_own();
  }
}

// Without a program behind it the page is a design aid: it remembers what
// is changed in it and tints itself by the day temperature.
function run_on_its_own() {
  save_manager.init();
  enable_all_gamma_options();
  find_geolocation();
}

function setup_widgets() {
  $("input[type='checkbox'].checkbox").each(function () {
    if (!$(this).next().hasClass("checkbox-icon")) {
      $(this).after("<span class='checkbox-icon'><i class='fa fa-check'></i></span>");
    }
  });
  $("body").on("drag dragstart dragend dragover dragenter dragleave drop", function (event) {
    event.preventDefault();
    event.stopPropagation();
  }).on("dragover dragenter", function () {
    $(this).addClass("is-dragover");
  }).on("dragleave dragend drop", function () {
    $(this).removeClass("is-dragover");
  });
  $("#toggle-help").on("click", function () {
    $(this).toggleClass("toggled");
    $(".help-button").toggleClass("show", $(this).hasClass("toggled"));
  });
  $(document).on("click", ".help-button[data-help]", function (event) {
    event.stopPropagation();
    open_help($(this).attr("data-help"));
  });
  features.setup_features_page();
  if (typeof Waves !== "undefined") {
    Waves.attach(".button", ["waves-light"]);
    Waves.init({ duration: 500 });
  }
}

// --- Platform, scale, size -------------------------------------------------

function setup_ovra() {
  if (!native_call("get_os_name", setup_ovra_os)) {
    setup_ovra_os("Linux");
  }
  native_call("get_application_name", setup_application_type);
  refresh_ui_scale();
}

var OS_CLASSES = { "Linux": "linux", "Windows": "windows", "Windows XP": "windows-xp", "OSX": "osx" };

function setup_ovra_os(os_name) {
  var os_class = OS_CLASSES[os_name];
  if (!os_class) {
    return;
  }
  $(".main-window-container").addClass(os_class);
  window_dimensions.use_shadow_margin = os_name === "Windows" || os_name === "Windows XP";
  if (os_name === "Linux") {
    $(".minimize, .exit").hide();
  }
  var lists_by_platform = "#color-effect-select option, .advanced-settings-menu li, " +
    "#ovra-type option, #font-type-select option";
  $(lists_by_platform).not("." + os_class).remove();
  refresh_dropdowns();
  features.build_icons();
  if (load_finished) {
    refresh_size();
  }
}

function setup_application_type(application_name) {
  if (application_name !== "Tamberlyne") {
    return;
  }
  $("#toggle-help, .help-button").hide();
  $(".advanced-settings-menu li[page-name='AI'], .advanced-settings-menu li[page-name='Exercises']").hide();
  $(".main-window-container").addClass("tamberlyne");
}

function setup_retina_display(double_scale) {
  $("html, body").toggleClass("scale-2x", !!double_scale).toggleClass("scale-1x", !double_scale);
}

function refresh_ui_scale() {
  var answered = native_call("is_retina_display", function (double_scale) {
    setup_retina_display(double_scale);
    refresh_size();
  });
  if (!answered) {
    setup_retina_display(new URLSearchParams(location.search).get("scale") === "2");
    refresh_size();
  }
}

function refresh_size() {
  native_call("refresh_size", window_dimensions.get_window_width(),
    window_dimensions.get_window_height());
}

function refresh_dropdowns() {
  $("select").each(function () {
    if ($(this).data("ui-selectmenu")) {
      $(this).selectmenu("refresh");
    }
  });
}

// --- Translation -----------------------------------------------------------

// Words held in variables, for texts that scripts compose.
var PAGE_WORDS = {
  ADD: function (text) { ADD = text; },
  REMOVE: function (text) { REMOVE = text; },
  min: function (text) { MIN = text; },
  sec: function (text) { SEC = text; },
  HOUR: function (text) { HOUR = text; },
  ON: function (text) { ON = text; },
  OFF: function (text) { OFF = text; },
  FEATURE_ON_OFF: function (text) { FEATURE_ON_OFF = text; },
  LOADING: function (text) {
    LOADING = text;
    $("#GeoResults.loading").text(text);
  }
};

// Every element with data-tr takes the text of its key (data-tr-placeholder
// for a placeholder). One question a key; the answers come in order, so the
// last one, a key with no text, finds every text in place.
function translate() {
  if (!has_native_side()) {
    return;
  }
  var appliers = {};
  function add(key, apply) {
    (appliers[key] = appliers[key] || []).push(apply);
  }
  $("[data-tr]").each(function () {
    var element = this;
    add(element.getAttribute("data-tr"), function (text) { element.textContent = text; });
  });
  $("[data-tr-placeholder]").each(function () {
    var element = this;
    add(element.getAttribute("data-tr-placeholder"), function (text) { element.placeholder = text; });
  });
  Object.keys(PAGE_WORDS).forEach(function (key) {
    add(key, PAGE_WORDS[key]);
  });
  Object.keys(appliers).forEach(function (key) {
    native_call("GET_STRING", key, function (text) {
      appliers[key].forEach(function (apply) { apply(text); });
    });
  });
  native_call("GET_STRING", "REFRESH_DROPDOWNS_PLACEHOLDER", function () {
    translation_done = true;
    refresh_dropdowns();
    redraw_units();
    lists.refresh_buttons();
    features.refresh_information();
  });
  if (load_finished) {
    refresh_dropdowns();
  }
  refresh_language_wrapper();
}

function redraw_units() {
  UI_MODULES.forEach(function (name) {
    if (window[name] && typeof window[name].redraw === "function") {
      window[name].redraw();
    }
  });
}

function refresh_language_wrapper() {
  native_call("get_language_code", function (code) {
    $("#language-wrapper").attr("class", code);
  });
}

// --- Commands from the native side ----------------------------------------

function enable_all_gamma_options() {
  $(".main-window-container").removeClass("gamma-pending");
}

function set_current_active_process(name) {
  lists.set_current_active_process(name);
}

// The place is looked up natively, which then sends the text to show.
function find_geolocation() {
  $("#GeoResults").addClass("loading").text(LOADING);
}

function open_advanced_view() {
  if (!use_advanced_settings.use_advanced_settings) {
    $("#use-advanced-settings-checkbox").click();
  }
}

function show_channel_notice(kind) {
  $(".channel-notice").removeClass("opened-elsewhere connection-closed").addClass(kind)
    .removeAttr("hidden");
}

// --- Help and the page's buttons ------------------------------------------

function open_help(help_uri) {
  native_call("open_url", HELP_BASE_URL + help_uri);
}

function help_clicked() {}

["save_and_close_clicked", "reset_colors", "minimize_clicked", "close_clicked", "start_rest",
  "start_eye_exercises", "start_neck_exercises", "start_back_exercises", "zoom_in", "zoom_out",
  "import_settings", "export_settings", "reset_settings_to_default", "start_mouse_clicking",
  "stop_mouse_clicking", "open_version_link", "invert_colors", "revert_colors",
  "select_overlay_screen_area", "reset_selected_overlay_screen_area", "show_blink_screen",
  "hide_blink_screen"].forEach(function (name) {
  window[name] = function () {
    native_call(name);
  };
});

function open_ovra_website() {
  native_call("open_website_link");
}

function activate_hidden_feature() {
  var $input = $("#hidden-feature-input");
  var spell = $.trim($input.val());
  $input.val("");
  if (spell) {
    native_call("activate_hidden_feature", spell);
  }
}

function setup_hidden_features_input() {
  $("#hidden-feature-input").on("keydown", function (event) {
    if (event.keyCode === 13) {
      $("#hidden-features-activate-button").click();
    }
  });
}

// Number boxes take digits, a decimal point and the keys that move or
// finish; signed boxes also take a minus.
var NUMBER_KEYS = [46, 8, 9, 27, 13, 110, 190, 35, 36, 37, 38, 39];

function number_key_allowed(event, signed) {
  var code = event.keyCode;
  if (NUMBER_KEYS.indexOf(code) !== -1 || (code === 65 && event.ctrlKey)) {
    return true;
  }
  if (signed && (code === 189 || code === 109 || code === 173)) {
    return true;
  }
  if (event.shiftKey || event.ctrlKey || event.altKey) {
    return false;
  }
  return (code >= 48 && code <= 57) || (code >= 96 && code <= 105);
}

function setup_input_filters() {
  var number_classes = ".js-input-number, .js-input-seconds, .js-input-hour, .js-input-ms, " +
    ".js-input-hz, .js-input-signed";
  $(document).on("keydown", number_classes, function (event) {
    if (!number_key_allowed(event, $(this).hasClass("js-input-signed"))) {
      event.preventDefault();
    }
  });
}
