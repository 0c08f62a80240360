"use strict";

forms.checkbox(exports, {
  name: "use_manual_brightness",
  element: "#use-manual-brightness-checkbox",
  slot: "use_manual_brightness_changed"
});
