"use strict";

forms.checkbox(exports, {
  name: "use_timer_pausers",
  element: "#auto-pause-timer-checkbox",
  slot: "use_timer_pausers_changed"
});
