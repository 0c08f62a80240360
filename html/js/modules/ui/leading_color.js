"use strict";

forms.dropdown(exports, {
  name: "leading_color",
  element: "#leading-color-select",
  slot: "leading_color_changed",
  signal: "set_leading_color_dropdown_value"
});
