// Builds the advanced view from its fragments. Each fragment is prepended,
// so the last of the list, the menu, ends on top.
"use strict";

exports.PAGES = [
  "about_page", "debug_page", "hidden_features_page", "language_page", "settings_page",
  "features_page", "exercises_page", "color_triggers_page", "artificial_intelligence_page",
  "overlay_screen_page", "mouse_pausers_page", "timer_pausers_page", "color_pausers_page",
  "sounds_page", "hardware_page", "gpu_page", "cpu_page", "shortcuts_page", "ovra_page",
  "system_page", "rest_screen_page", "timer_page", "pwm_control_page", "magnification_page",
  "fonts_page", "color_scheme_page", "screen_effects_page", "manage_monitors_page",
  "sleep_page", "lightness_screen_page", "moon_page", "transition_page", "location_page",
  "brightness_page", "blue_light_page", "color_temperature_page", "advanced_settings"
];

exports.load_pages = function () {
  var $view = $(".view-advanced");
  exports.PAGES.forEach(function (name) {
    $view.prepend(read_file("pages/" + name + ".html"));
  });
};

// Opens the page whose label reads like the menu entry. Pages are matched by
// their visible text, which is why a menu entry and its page label are
// written from the same key.
exports.open_page = function (wanted) {
  var found = false;
  $(".page .settings-page-label").each(function () {
    if (!found && $.trim($(this).text()) === $.trim(wanted)) {
      found = true;
      $(".advanced-settings-view").hide();
      $(".page").hide();
      $(this).closest(".page").show().find(".page-content").scrollTop(0);
    }
  });
  if (found) {
    refresh_size();
  }
  return found;
};

exports.close_pages = function () {
  $(".page").hide();
  $(".advanced-settings-view").show();
  refresh_size();
};

exports.setup_menu = function () {
  $(".advanced-settings-menu").on("click", "li > a", function (event) {
    event.preventDefault();
    exports.open_page($(this).find(".menu-text").text());
  });
  $(".view-advanced").on("click", ".settings-page-title", function (event) {
    if ($(event.target).closest(".help-button").length === 0) {
      exports.close_pages();
    }
  });
};
