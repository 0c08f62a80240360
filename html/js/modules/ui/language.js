"use strict";

forms.dropdown(exports, {
  name: "language",
  element: "#language-select",
  slot: "language_changed",
  signal: "set_language_dropdown_value",
  text: true
});
