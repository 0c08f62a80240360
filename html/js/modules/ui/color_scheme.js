"use strict";

forms.dropdown(exports, {
  name: "color_scheme",
  element: "#color-scheme-select",
  slot: "color_scheme_changed",
  signal: "set_color_scheme_dropdown_value"
});
