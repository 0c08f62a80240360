// What the native side reports about the running system: shown at once,
// never reported back.
"use strict";

function show_remaining_line(visible) {
  $(".remaining-work").toggleClass("empty", !visible);
}

exports.set_blink_count = function (count) {
  $("#blink-counter").text(count);
};

exports.set_ovra_status = function (status) {
  $("#ovra-status").text(status);
};

exports.set_transition_times_info = function (text) {
  $("#transition-times-info").text(text);
};

exports.set_moon_phases_info = function (text) {
  $("#moon-phases-info").text(text);
};

// A message takes the place of the remaining time; an empty one is ignored.
exports.set_timer_message = function (message) {
  if (!message) {
    return;
  }
  $("#remainingWork").text(message);
  $("#remainingType .verb, #remainingType .type").text("");
  show_remaining_line(true);
};

// "25 min", "until", "rest": an empty time hides the line.
exports.set_remaining_time = function (remaining, verb, type) {
  var text = $.trim(remaining || "");
  if (!text) {
    show_remaining_line(false);
    return;
  }
  $("#remainingWork").text(text);
  $("#remainingType .verb").text(verb || "");
  $("#remainingType .type").text(type || "");
  show_remaining_line(true);
};

exports.set_pwm_control_status = function (status, value) {
  $("#pwm-control-status").text(status ? value + " Hz" : OFF);
};

exports.set_geolocation_string = function (text) {
  $("#GeoResults").removeClass("loading").text(text);
};

exports.set_current_application_name = function (text) {
  $("#about-application-name").text(text);
};

exports.set_current_version = function (text) {
  $("#about-version").text(text);
};

exports.set_current_publisher_name = function (text) {
  $("#about-publisher").text(text);
};

exports.set_current_website = function (text) {
  $("#about-website").text(text);
};
