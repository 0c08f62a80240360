"use strict";

forms.checkbox(exports, {
  name: "use_keyboard_inactivity",
  element: "#checkbox-keyboard-inactivity",
  slot: "use_keyboard_inactivity_changed"
});
