"use strict";

forms.dropdown(exports, {
  name: "color_effect",
  element: "#color-effect-select",
  slot: "color_effect_changed",
  signal: "set_color_effect_dropdown_value"
});
