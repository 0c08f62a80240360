"use strict";

forms.switch_buttons(exports, {
  name: "use_lightness_screen",
  on: "#lightness-screen-on",
  off: "#lightness-screen-off",
  slot: "use_lightness_screen_changed"
});
