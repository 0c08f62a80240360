"use strict";

forms.dropdown(exports, {
  name: "overlay_color",
  element: "#overlay-color-select",
  slot: "overlay_color_changed",
  signal: "set_overlay_color_dropdown_value"
});
