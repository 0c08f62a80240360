"use strict";

// The blink reminder screen, shown and hidden by two buttons.
exports.kind = "buttons";
exports.use_blink_screen = false;

function show(visible) {
  exports.use_blink_screen = visible;
  $("#show-blink-screen-button").toggleClass("active", visible);
  $("#hide-blink-screen-button").toggleClass("active", !visible);
}

exports.set_use_blink_screen = function (visible) {
  show(!!visible);
};

exports.setup = function () {
  $("#show-blink-screen-button").on("click", function () {
    show(true);
    native_call("show_blink_screen");
  });
  $("#hide-blink-screen-button").on("click", function () {
    show(false);
    native_call("hide_blink_screen");
  });
  show(false);
};
