"use strict";

forms.checkbox(exports, {
  name: "use_manual_night_duration",
  element: "#use-manual-night-duration-checkbox",
  slot: "use_manual_night_duration_changed"
});
