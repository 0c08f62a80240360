"use strict";

forms.dropdown(exports, {
  name: "strictness",
  element: "#advanced-timer-type",
  slot: "timer_type_changed",
  signal: "set_strictness_value"
});
