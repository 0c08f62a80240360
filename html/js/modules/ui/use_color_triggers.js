"use strict";

forms.checkbox(exports, {
  name: "use_color_triggers",
  element: "#color-triggers-checkbox",
  slot: "use_color_triggers_changed"
});
