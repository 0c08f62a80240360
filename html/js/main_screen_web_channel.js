// The page's road to the native side: a QWebChannel over a WebSocket that
// the program serves on the same host as the page. The page connects by
// itself once it is built; without a server it comes up on its own.
"use strict";

var USE_WEBKIT_BRIDGE = false;
var signals_and_slots_connected = false;

// The socket closes with this code when another settings page takes over.
var CLOSE_OPENED_ELSEWHERE = 4001;

var web_channel = {
  socket: null,
  socket_error: null,
  // After the channel closed, the page keeps showing the last values but
  // sends nothing: a page that lost its program must not pretend to save.
  closed: false,
  first_restore_seen: false
};

// Calls a slot of the native object. Value-returning slots take a callback
// as their last argument. Returns false when nothing was sent.
function native_call(name) {
  var args = Array.prototype.slice.call(arguments, 1);
  if (web_channel.closed || typeof native_object === "undefined") {
    console.log("native: " + name + "(" + args.filter(function (a) {
      return typeof a !== "function";
    }).join(", ") + ")");
    return false;
  }
  var slot = native_object[name];
  if (typeof slot !== "function") {
    console.log("native object has no slot " + name);
    return false;
  }
  slot.apply(native_object, args);
  return true;
}

function has_native_side() {
  return typeof native_object !== "undefined" && !web_channel.closed;
}

// Where the page's own server listens: ws://<host>/<token>/channel/<window>.
// The token is the first segment of the page's path (or, from the printed
// address of the browser road, its `token` query parameter).
function web_channel_address(location_object) {
  var query = new URLSearchParams(location_object.search);
  var segments = location_object.pathname.split("/").filter(function (segment) {
    return segment.length > 0;
  });
  var first = segments.length > 0 ? segments[0] : "";
  var token = query.get("token") || (/\.html?$/.test(first) ? "" : first);
  var window_name = query.get("window") || "main";
  return "ws://" + location_object.host + "/" + encodeURIComponent(token) +
    "/channel/" + encodeURIComponent(window_name);
}

// Each signal of the native object and what it moves on the page. A list of
// module names means that each of those modules has a function of the
// signal's own name; a function is called as it stands. Handlers are looked
// up when the signal arrives, so modules may load in any order.
var SIGNAL_TABLE = {
  // Status pushes.
  set_timer_message: ["setters"],
  set_remaining_time: ["setters"],
  set_blink_count: ["setters"],
  set_ovra_status: ["setters"],
  set_transition_times_info: ["setters"],
  set_moon_phases_info: ["setters"],
  set_pwm_control_status: ["setters"],
  set_geolocation_string: ["setters"],
  // Page commands.
  translate: function () { translate(); },
  find_geolocation: function () { find_geolocation(); },
  open_advanced_view: function () { open_advanced_view(); },
  refresh_ui_scale: function () { refresh_ui_scale(); },
  enable_all_gamma_options: function () { enable_all_gamma_options(); },
  set_current_active_process_signal: function (name) { set_current_active_process(name); },
  settings_restored: function () { settings_restored(); },
  set_screen_count: ["manage_monitors"],
  ignore_monitor: ["manage_monitors"],
  set_active_features: ["features"],
  refresh_unused_pages_signal: function () { features.refresh_unused_pages(); },
  set_shortcuts_values: ["shortcuts"],
  save_color_pausers_signal: function () { lists.send("color_pausers"); },
  save_timer_pausers_signal: function () { lists.send("timer_pausers"); },
  save_mouse_pausers_signal: function () { lists.send("mouse_pausers"); },
  save_color_triggers_signal: function () { lists.send("color_triggers"); },
  save_websites_for_blocking_signal: function () { lists.send("websites_for_blocking"); },
  save_applications_for_blocking_signal: function () { lists.send("applications_for_blocking"); },
  // Lists and the about box.
  set_color_pausers_list: function (text) { lists.receive("color_pausers", text); },
  set_timer_pausers_list: function (text) { lists.receive("timer_pausers", text); },
  set_mouse_pausers_list: function (text) { lists.receive("mouse_pausers", text); },
  set_color_triggers_list: function (text) { lists.receive("color_triggers", text); },
  set_websites_for_blocking: function (text) { lists.receive("websites_for_blocking", text); },
  set_applications_for_blocking: function (text) { lists.receive("applications_for_blocking", text); },
  set_current_application_name: ["setters"],
  set_current_version: ["setters"],
  set_current_publisher_name: ["setters"],
  set_current_website: ["setters"],
  // Values and their control-only forms.
  set_day_temperature_slider_value: ["day_temperature", "day_blue_light"],
  set_day_temperature_slider_value_ui: ["day_temperature", "day_blue_light"],
  set_night_temperature_slider_value: ["night_temperature", "night_blue_light"],
  set_night_temperature_slider_value_ui: ["night_temperature", "night_blue_light"],
  set_day_brightness_slider_value: ["day_brightness"],
  set_day_brightness_slider_value_ui: ["day_brightness"],
  set_night_brightness_slider_value: ["night_brightness"],
  set_night_brightness_slider_value_ui: ["night_brightness"],
  set_sleep_light_slider_value: ["sleep_light"],
  set_sleep_light_slider_value_ui: ["sleep_light"],
  set_sleep_brightness_slider_value: ["sleep_brightness"],
  set_sleep_brightness_slider_value_ui: ["sleep_brightness"],
  set_pwm_frequency_slider_value: ["pwm_control"],
  set_pwm_frequency_slider_value_ui: ["pwm_control"],
  set_ovra_mode_dropdown_value: ["ovra_mode"],
  set_ovra_mode_dropdown_value_ui: ["ovra_mode"],
  set_ovra_type_dropdown_value: ["ovra_type"],
  set_ovra_type_dropdown_value_ui: ["ovra_type"],
  set_day_opacity_slider_value: ["day_opacity"],
  set_night_opacity_slider_value: ["night_opacity"],
  set_day_dim_slider_value: ["day_dim"],
  set_night_dim_slider_value: ["night_dim"],
  set_lightness_screen_opacity_slider_value: ["lightness_screen_opacity"],
  set_lightness_screen_radius_slider_value: ["lightness_screen_radius"],
  set_lightness_screen_x_position_slider_value: ["lightness_screen_x_position"],
  set_lightness_screen_y_position_slider_value: ["lightness_screen_y_position"],
  // Switches.
  set_pwm_control_update_continuously: ["pwm_control"],
  set_use_pwm_control: ["pwm_control"],
  set_use_per_monitor_settings: ["use_per_monitor_settings"],
  set_automatically_close_rest_screen_value: ["automatically_close_rest_screen"],
  set_use_sounds: ["use_sounds"],
  set_use_manual_color_settings: ["use_manual_color_settings", "use_manual_blue_light"],
  set_use_manual_brightness: ["use_manual_brightness"],
  set_use_sleep_light: ["use_sleep_light"],
  set_use_color_effects: ["use_color_effects"],
  set_use_manual_location: ["use_manual_location"],
  set_use_manual_night_duration: ["use_manual_night_duration"],
  set_use_automatic_brightness: ["use_automatic_brightness"],
  set_match_brightness_to_lighting: ["match_brightness_to_lighting"],
  set_use_smart_brightness: ["use_smart_brightness"],
  set_use_smart_inversion: ["use_smart_inversion"],
  set_use_blink_detection: ["use_blink_detection"],
  set_hide_taskbar_icon: ["hide_taskbar_icon"],
  set_use_mouse_inactivity: ["use_mouse_inactivity"],
  set_use_keyboard_inactivity: ["use_keyboard_inactivity"],
  set_use_keyboard_blocking: ["use_keyboard_blocking"],
  set_use_software_cursor: ["use_software_cursor"],
  set_auto_save_settings: ["auto_save_settings"],
  set_use_gamma_fixer: ["use_gamma_fixer"],
  set_optimize_ui_creation: ["optimize_ui_creation"],
  set_use_keyboard_shortcuts: ["use_keyboard_shortcuts"],
  set_destroy_ui_on_close: ["destroy_ui_on_close"],
  set_use_low_level_color_api: ["use_low_level_color_api"],
  set_start_on_startup: ["start_on_startup"],
  set_temperature_extended_values: ["temperature_extended_values", "blue_light_extended_values"],
  set_brightness_extended_values: ["brightness_extended_values"],
  set_use_inverted_colors: ["use_inverted_colors"],
  set_use_camera: ["use_camera"],
  set_use_blink_screen: ["use_blink_screen"],
  set_use_advanced_settings: ["use_advanced_settings"],
  set_use_color_pausers: ["use_color_pausers"],
  set_use_timer_pausers: ["use_timer_pausers"],
  set_use_mouse_pausers: ["use_mouse_pausers"],
  set_use_color_triggers: ["use_color_triggers"],
  set_use_overlay_screen: ["use_overlay_screen"],
  set_use_lightness_screen: ["use_lightness_screen"],
  set_color_pausers_pause_on_fullscreen_apps: ["color_pausers_pause_on_fullscreen_apps"],
  set_timer_pausers_pause_on_fullscreen_apps: ["timer_pausers_pause_on_fullscreen_apps"],
  set_mouse_pausers_pause_on_fullscreen_apps: ["mouse_pausers_pause_on_fullscreen_apps"],
  // Dropdowns.
  set_language_dropdown_value: ["language"],
  set_strictness_value: ["strictness"],
  set_timer_type_dropdown_value: ["timer_type"],
  set_color_effect_dropdown_value: ["color_effect"],
  set_rest_screen_type_dropdown_value: ["rest_screen_type"],
  set_color_scheme_dropdown_value: ["color_scheme"],
  set_leading_color_dropdown_value: ["leading_color"],
  set_overlay_color_dropdown_value: ["overlay_color"],
  set_font_type_value: ["font_type"],
  // Number boxes and times of day.
  set_pwm_max_frequency_value: ["pwm_control"],
  set_postpone_time_value: ["postpone_time"],
  set_work_time_value: ["work_time"],
  set_rest_time_value: ["rest_time"],
  set_day_transition_duration_value: ["day_transition"],
  set_night_transition_duration_value: ["night_transition"],
  set_sleep_transition_duration_value: ["sleep_transition"],
  set_pause_transition_duration_value: ["pause_transition"],
  set_latitude_value: ["latitude"],
  set_longitude_value: ["longitude"],
  set_new_moon_offset_value: ["new_moon_offset"],
  set_full_moon_offset_value: ["full_moon_offset"],
  set_time_zone_offset_value: ["time_zone_offset"],
  set_night_start_time_value: ["night_start_time"],
  set_night_end_time_value: ["night_end_time"],
  set_bedtime_value: ["bedtime"],
  set_wake_time_value: ["wake_time"]
};

function signal_handler(signal_name, target) {
  if (typeof target === "function") {
    return target;
  }
  return function () {
    var args = arguments;
    target.forEach(function (module_name) {
      var module = window[module_name];
      if (!module || typeof module[signal_name] !== "function") {
        console.log("no page handler for " + signal_name + " in " + module_name);
        return;
      }
      module[signal_name].apply(module, args);
    });
  };
}

function connect_signals_and_slots() {
  if (signals_and_slots_connected || typeof native_object === "undefined") {
    return;
  }
  signals_and_slots_connected = true;
  Object.keys(SIGNAL_TABLE).forEach(function (signal_name) {
    var signal = native_object[signal_name];
    if (!signal || typeof signal.connect !== "function") {
      console.log("native object has no signal " + signal_name);
      return;
    }
    signal.connect(signal_handler(signal_name, SIGNAL_TABLE[signal_name]));
  });
}

// The native side ends every restore push with settings_restored. After the
// first, every control shows a stored value: the window may be shown.
function settings_restored() {
  if (web_channel.first_restore_seen) {
    return;
  }
  web_channel.first_restore_seen = true;
  native_call("open_ovra_after_load_finished");
}

function web_channel_closed(event) {
  var was_open = !!window.native_object && !web_channel.closed;
  web_channel.closed = true;
  console.log("web channel closed");
  if (event && event.code === CLOSE_OPENED_ELSEWHERE) {
    show_channel_notice("opened-elsewhere");
  } else if (was_open) {
    show_channel_notice("connection-closed");
  }
}

function start_web_channel() {
  if (typeof native_object !== "undefined") {
    return;
  }
  var address;
  try {
    if (location.protocol !== "http:" && location.protocol !== "https:") {
      throw new Error("the page was not served by the program");
    }
    if (typeof QWebChannel === "undefined") {
      throw new Error("the channel script is missing");
    }
    address = web_channel_address(location);
    console.log("Connecting to WebSocket server at " + address + ".");
    web_channel.socket = new WebSocket(address);
  } catch (error) {
    web_channel_failed(error);
    return;
  }
  var socket = web_channel.socket;
  var opened = false;
  socket.onerror = function (error) {
    if (!opened) {
      web_channel_failed(error);
    }
  };
  socket.onclose = function (event) {
    if (opened) {
      web_channel_closed(event);
    } else {
      web_channel_failed(event);
    }
  };
  socket.onopen = function () {
    opened = true;
    console.log("WebSocket connected, setting up QWebChannel.");
    new QWebChannel(socket, function (channel) {
      window.native_object = channel.objects.native_object;
      connect_signals_and_slots();
      ovra_load_finished();
    });
  };
}

function web_channel_failed(error) {
  if (web_channel.socket_error !== null) {
    return;
  }
  web_channel.socket_error = error || "unknown";
  var text = error && error.message ? error.message : (error && error.type) || String(error);
  console.log("web channel error: " + text);
  ovra_load_finished();
}
