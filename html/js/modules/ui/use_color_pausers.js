"use strict";

forms.checkbox(exports, {
  name: "use_color_pausers",
  element: "#color-pausers-checkbox",
  slot: "use_color_pausers_changed"
});
