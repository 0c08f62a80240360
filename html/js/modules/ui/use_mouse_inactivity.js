"use strict";

forms.checkbox(exports, {
  name: "use_mouse_inactivity",
  element: "#checkbox-mouse-inactivity",
  slot: "use_mouse_inactivity_changed"
});
