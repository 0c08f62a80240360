"use strict";

forms.checkbox(exports, {
  name: "use_automatic_brightness",
  element: "#checkbox-use-automatic-brightness",
  slot: "use_automatic_brightness_changed"
});
