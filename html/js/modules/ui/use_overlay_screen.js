"use strict";

forms.switch_buttons(exports, {
  name: "use_overlay_screen",
  on: "#overlay-screen-on",
  off: "#overlay-screen-off",
  slot: "use_overlay_screen_changed"
});
