"use strict";

forms.dropdown(exports, {
  name: "font_type",
  element: "#font-type-select",
  slot: "font_type_changed",
  signal: "set_font_type_value"
});
