"use strict";

forms.dropdown(exports, {
  name: "timer_type",
  element: "#timer-type",
  slot: "timer_type_changed",
  signal: "set_timer_type_dropdown_value"
});
