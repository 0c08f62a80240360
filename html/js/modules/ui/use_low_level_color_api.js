"use strict";

forms.checkbox(exports, {
  name: "use_low_level_color_api",
  element: "#checkbox-use-low-level-color-api",
  slot: "use_low_level_color_api_changed"
});
