"use strict";

forms.dropdown(exports, {
  name: "rest_screen_type",
  element: "#rest-screen-type-select",
  slot: "rest_screen_type_changed",
  signal: "set_rest_screen_type_dropdown_value"
});
