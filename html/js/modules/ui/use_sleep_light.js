"use strict";

forms.checkbox(exports, {
  name: "use_sleep_light",
  element: "#use-sleep-light-checkbox",
  slot: "use_sleep_light_changed"
});
