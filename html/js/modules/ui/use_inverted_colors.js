"use strict";

// Inverts the display's ramps or gives them back; the buttons show which
// holds now.
exports.kind = "buttons";
exports.use_inverted_colors = false;

function show(inverted) {
  exports.use_inverted_colors = inverted;
  $(".invert-colors-button").toggleClass("active", inverted);
  $(".revert-colors-button").toggleClass("active", !inverted);
}

exports.set_use_inverted_colors = function (inverted) {
  show(!!inverted);
};

exports.setup = function () {
  $(".invert-colors-button").on("click", function () {
    show(true);
    native_call("invert_colors");
  });
  $(".revert-colors-button").on("click", function () {
    show(false);
    native_call("revert_colors");
  });
  show(false);
};
