"use strict";

forms.checkbox(exports, {
  name: "use_mouse_pausers",
  element: "#mouse-pausers-checkbox",
  slot: "use_mouse_pausers_changed"
});
