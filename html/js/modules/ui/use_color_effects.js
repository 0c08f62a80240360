"use strict";

forms.checkbox(exports, {
  name: "use_color_effects",
  element: "#use-color-effects-checkbox",
  slot: "use_color_effects_changed"
});
