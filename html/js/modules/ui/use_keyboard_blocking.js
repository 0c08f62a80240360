"use strict";

forms.checkbox(exports, {
  name: "use_keyboard_blocking",
  element: "#checkbox-keyboard-blocking",
  slot: "use_keyboard_blocking_changed"
});
