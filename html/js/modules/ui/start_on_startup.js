"use strict";

forms.checkbox(exports, {
  name: "start_on_startup",
  element: "#checkbox-start-on-startup",
  slot: "start_on_startup_changed"
});
