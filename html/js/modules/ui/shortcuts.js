"use strict";

// The fourteen global shortcuts: a dropdown picks one, the box beside it
// records a new combination from the keys pressed in it.
exports.kind = "dropdown";
exports.values = [];

var KEY_NAMES = {
  8: "Backspace", 9: "Tab", 13: "Enter", 19: "Pause", 20: "CapsLock", 27: "Escape",
  32: "Space", 33: "PgUp", 34: "PgDown", 35: "End", 36: "Home", 37: "Left", 38: "Up",
  39: "Right", 40: "Down", 45: "Insert", 46: "Delete", 91: "Meta", 107: "+", 109: "-",
  186: ";", 187: "=", 188: ",", 189: "-", 190: ".", 191: "/", 192: "`", 219: "[",
  220: "\\", 221: "]", 222: "'"
};
// Modifiers alone name no key: a combination is written with them in front.
var MODIFIER_CODES = [16, 17, 18, 91, 92, 93, 224, 225];

exports.key_name = function (code) {
  if (MODIFIER_CODES.indexOf(code) !== -1) {
    return "";
  }
  if ((code >= 48 && code <= 57) || (code >= 65 && code <= 90)) {
    return String.fromCharCode(code);
  }
  if (code >= 112 && code <= 135) {
    return "F" + (code - 111);
  }
  return KEY_NAMES[code] || "";
};

exports.combination_of = function (event) {
  var text = "";
  if (event.ctrlKey) { text += "Ctrl+"; }
  if (event.shiftKey) { text += "Shift+"; }
  if (event.altKey) { text += "Alt+"; }
  if (event.metaKey) { text += "Meta+"; }
  return text + exports.key_name(event.keyCode);
};

function selected_index() {
  return parseInt($("#shortcuts-select").val(), 10) || 1;
}

function show_selected() {
  $("#feature-shortcut").val(exports.values[selected_index()] || "");
}

// The list has an empty entry first, so that a position is the index.
exports.set_shortcuts_values = function (values) {
  exports.values = (values || []).slice();
  $("#shortcuts-select").val("1");
  if ($("#shortcuts-select").data("ui-selectmenu")) {
    $("#shortcuts-select").selectmenu("refresh");
  }
  show_selected();
};

exports.setup_recorder = function () {
  $("#feature-shortcut").on("keydown", function (event) {
    if (event.keyCode === 9) {
      return;
    }
    event.preventDefault();
    event.stopPropagation();
    var text = exports.combination_of(event);
    var index = selected_index();
    $(this).val(text);
    exports.values[index] = text;
    forms.report("shortcut_changed", index, text);
  });
};

exports.setup = function () {
  $("#shortcuts-select").selectmenu({ width: null, change: show_selected });
};
