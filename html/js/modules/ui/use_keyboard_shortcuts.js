"use strict";

forms.checkbox(exports, {
  name: "use_keyboard_shortcuts",
  element: "#checkbox-use-keyboard-shortcuts",
  slot: "use_keyboard_shortcuts_changed"
});
