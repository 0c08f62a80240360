"use strict";

forms.checkbox(exports, {
  name: "use_smart_brightness",
  element: "#checkbox-use-smart-brightness",
  slot: "use_smart_brightness_changed"
});
